// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// A column's default as a statement for any kind of store may write it. expression: as a store's catalogue
/// tells it, such as 5 or 'text'::text. Empty for none, for NULL, and for everything that is not a plain
/// number, text or boolean: such a text may come from a stranger, and must not get into a statement.
QString ConstantDefault(const QString& expression);

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// A name as one line of at most so many characters, for menus and questions: line breaks become blanks, and
/// a longer name ends in an ellipsis.
QString NameInText(const QString& name, qsizetype longest);

} // namespace Orvane

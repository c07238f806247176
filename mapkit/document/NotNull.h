// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The text for a column that must have one: empty for a null text, which a store would take for NULL.
inline QString NotNull(const QString& text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace Orvane

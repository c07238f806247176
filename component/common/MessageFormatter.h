// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/Messages.h"

#include <QString>

namespace Orvane {

/// Fills the placeholders "^1" to "^9" of a text.
class MessageFormatter
{
public:
    /// The text with each placeholder replaced by its argument, in one pass: a "^1" inside an argument is
    /// never expanded. A placeholder whose argument is not supplied, and a caret before anything but 1 to 9,
    /// stay as they are. Numbers take their shortest plain decimal form; Null gives nothing. Never raises.
    QString FormatMessage(const QString& text, const MessageArguments& arguments) const;
};

} // namespace Orvane

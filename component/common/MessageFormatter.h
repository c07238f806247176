// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/Messages.h"

#include <QString>

namespace Orvane {

/// Fills the placeholders "^1" to "^9" of a text.
class MessageFormatter
{
public:
    /// The text with each placeholder replaced by its argument, in one pass: a "^1" inside an argument is not
    /// expanded. A placeholder without an argument stays as it is, and so does a caret before anything but 1
    /// to 9. Numbers are written in their shortest plain decimal form; Null gives an empty text. Never
    /// raises.
    QString FormatMessage(const QString& text, const MessageArguments& arguments) const;
};

} // namespace Orvane

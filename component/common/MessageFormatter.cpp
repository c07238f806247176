// SPDX-License-Identifier: MIT
#include "component/common/MessageFormatter.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

constexpr QChar Caret = u'^';

// The argument for the placeholder at the caret, or nullptr.
const Value* ArgumentAt(const QString& text, qsizetype caret, const MessageArguments& arguments)
{
    if (text.at(caret) != Caret || caret + 1 >= text.size())
        return nullptr;
    const int number = text.at(caret + 1).unicode() - u'0';
    if (number < 1 || number > 9 || size_t(number) > arguments.size())
        return nullptr;
    const Value& argument = arguments[size_t(number) - 1];
    return argument.IsEmpty() ? nullptr : &argument;
}

QString ShownText(const Value& argument)
{
    return ToTextOrNone(argument);
}

} // namespace

QString MessageFormatter::FormatMessage(const QString& text, const MessageArguments& arguments) const
{
    QString message;
    message.reserve(text.size());
    for (qsizetype position = 0; position < text.size(); ++position) {
        if (const Value* argument = ArgumentAt(text, position, arguments)) {
            message += ShownText(*argument);
            ++position;
        } else {
            message += text.at(position);
        }
    }
    return message;
}

} // namespace Orvane

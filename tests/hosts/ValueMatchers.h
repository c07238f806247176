// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ValueConversions.h>

#include <gmock/gmock.h>
#include <ostream>

// How values and texts show in the message of a failed expectation.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE

namespace Orvane {

inline void PrintTo(const Value& value, std::ostream* stream)
{
    static constexpr const char* kinds[]
        = {"Empty", "Null", "Boolean", "Int16", "Int32", "Single", "Double", "Text"};
    *stream << kinds[int(value.Kind())];
    if (!value.IsEmpty() && !value.IsNull())
        *stream << ' ' << ToText(value).toStdString();
}

namespace Testing {

/// Same kind and same content.
MATCHER_P(IsValue, expected, "is " + testing::PrintToString(Value(expected)))
{
    return arg.IsIdenticalTo(Value(expected));
}

MATCHER(IsNullValue, "is Null")
{
    return arg.IsNull();
}

/// A number with that value, of any kind, as read from a database column.
MATCHER_P(IsNumber, expected, "is the number " + testing::PrintToString(expected))
{
    return (arg.IsNumber() || arg.IsBoolean()) && ToDouble(arg) == double(expected);
}

/// A boolean, or a number that stands for it.
MATCHER_P(IsFlag, expected, std::string("is ") + (expected ? "true" : "false"))
{
    return (arg.IsNumber() || arg.IsBoolean()) && ToBoolean(arg) == expected;
}

} // namespace Testing
} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "component/model/LayerCode.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <cmath>

namespace Orvane::Testing {

namespace {

// True if the conversion succeeds; the contract knows two reasons why it may not.
template <typename Convert> bool Converts(Convert convert)
{
    try {
        convert();
        return true;
    } catch (const RunTimeError& error) {
        const bool isKnown = error.Number() == int(ErrorNumber::Overflow)
            || error.Number() == int(ErrorNumber::TypeMismatch);
        Require(isKnown, "a conversion fails with 6 or 13");
        return false;
    }
}

void ConvertAll(const Value& value, bool isNumber)
{
    Require(Converts([&] { ToDouble(value); }) == isNumber, "a number converts to a double");
    Require(Converts([&] { ToBoolean(value); }) == isNumber, "a number converts to a boolean");
    Converts([&] { ToInt16(value); });
    Converts([&] { ToSingle(value); });
    const bool isWhole = Converts([&] { ToInt32(value); });
    Require(Int32In(value).has_value() == isWhole, "both ways to a whole number agree");
    Require(NumberIn(value).has_value() == isNumber, "both ways to a number agree");
}

} // namespace

int FuzzValues(const uint8_t* data, size_t size)
{
    const QString text = TextIn(data, size);
    const auto number = NumberInText(text);
    ConvertAll(text, number.has_value());
    if (number)
        Require(ToDouble(ToText(*number)) == *number, "a number is read as it was written");
    Converts([&] { Require(std::isfinite(LeadingNumber(text)), "a leading number is finite"); });
    return 0;
}

} // namespace Orvane::Testing

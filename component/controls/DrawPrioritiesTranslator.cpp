// SPDX-License-Identifier: MIT
#include "component/controls/DrawPrioritiesTranslator.h"

#include "component/common/Messages.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

constexpr qint16 highest = 1;
constexpr qint16 lowest = 255;

// The number is passed as text, so that its digits can be read back however a formatter writes numbers.
QString HighestText()
{
    return TranslateMsg("^1 (highest)", ToText(highest));
}

QString LowestText()
{
    return TranslateMsg("^1 (lowest)", ToText(lowest));
}

} // namespace

QString DrawPrioritiesTranslator::toString(const Value& value) const
{
    if (value.IsNull())
        return TranslateMsg("various");
    if (ValuesEqual(value, highest))
        return HighestText();
    if (ValuesEqual(value, lowest))
        return LowestText();
    return ToText(value);
}

Value DrawPrioritiesTranslator::FromString(const QString& text) const
{
    if (text == TranslateMsg("various"))
        return Value::Null();
    if (text == HighestText())
        return highest;
    if (text == LowestText())
        return lowest;
    return ToInt16(text);
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "component/controls/ITypedNumbers.h"
#include "component/controls/IUITranslator.h"

namespace Orvane {

/// Draw priorities: 1 (highest) to 255 (lowest), shown as plain digits with both ends named.
class DrawPrioritiesTranslator : public IUITranslator, public ITypedNumbers
{
public:
    DrawPrioritiesTranslator() = default;

    /// "various" for Null, "1 (highest)", "255 (lowest)", else the plain digits.
    QString toString(const Value& value) const;

    /// Null or a 16-bit integer.
    Value FromString(const QString& text) const;

    QString NumberText(const QString& digits) const override { return digits; }
    bool AllowsFractions() const override { return false; }
    Range NumbersOf(qint32 minimum, qint32 maximum) const override
    {
        return {double(minimum), double(maximum)};
    }
    qint32 PositionOf(double number) const override { return qint32(number); }
    std::optional<MapNumber> NumberOfMap(qint32, qint32) const override { return std::nullopt; }

private:
    QString IUITranslator_toString(const Value& value) const override { return toString(value); }
    Value IUITranslator_FromString(const QString& text) const override { return FromString(text); }
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "component/controls/ITypedNumbers.h"
#include "component/controls/IUITranslator.h"

namespace Orvane {

/// Scale limits: indices 0 to 256 of the scale table of the host's shell services, shown as "1:50000". Both
/// ends, 0 and 256, mean "no limit" and show the same text, which is always read back as 0.
class VisibleScalesTranslator : public IUITranslator, public ITypedNumbers
{
public:
    /// The indices that mean "no limit".
    static constexpr qint32 NoMinimum = 0;
    static constexpr qint32 NoMaximum = 256;
    /// The indices of scales.
    static constexpr qint32 FirstScale = 1;
    static constexpr qint32 LastScale = 255;

    /// True for a value that is not Null and not one of those that mean "no limit".
    static bool IsLimit(const Value& value);

    /// "various" for Null, "dont care" for 0 and 256, else "1:" and the denominator of the 32-bit index.
    QString toString(const Value& value) const;

    /// Null, the 16-bit integer 0, or the 32-bit index of the denominator that starts at the third character.
    Value FromString(const QString& text) const;

    /// As in "1:50000".
    QString NumberText(const QString& digits) const override;
    bool AllowsFractions() const override { return true; }
    /// The denominators; "dont care" has none.
    Range NumbersOf(qint32 minimum, qint32 maximum) const override;
    /// The nearest index.
    qint32 PositionOf(double denominator) const override;
    /// The scale of a host that implements IMapScale. The position includes it: a limit that lies there
    /// leaves the layer drawn at the map's scale. A slider that reaches 256 is that of the last index drawn,
    /// any other one of the first.
    std::optional<MapNumber> NumberOfMap(qint32 minimum, qint32 maximum) const override;

private:
    QString IUITranslator_toString(const Value& value) const override { return toString(value); }
    Value IUITranslator_FromString(const QString& text) const override { return FromString(text); }
};

} // namespace Orvane

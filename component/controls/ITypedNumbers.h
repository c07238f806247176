// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace Orvane {

/// What a translator offers besides IUITranslator if its values can be typed as numbers: which numbers stand
/// for which positions of the slider. Errors that the host's conversions raise are passed on unchanged.
class ITypedNumbers
{
public:
    struct Range {
        double smallest = 0;
        double largest = 0;
    };
    /// A number that the host's map has now.
    struct MapNumber {
        double number = 0;
        std::optional<qint32> position; ///< nothing if it is out of range
    };

    virtual ~ITypedNumbers() = default;
    ITypedNumbers(const ITypedNumbers&) = delete;
    ITypedNumbers& operator=(const ITypedNumbers&) = delete;

    /// The text to show for digits that are typed: "1:2500" for "2500".
    virtual QString NumberText(const QString& digits) const = 0;
    /// True if numbers may have a decimal point.
    virtual bool AllowsFractions() const = 0;
    /// The numbers that a slider from minimum to maximum has.
    virtual Range NumbersOf(qint32 minimum, qint32 maximum) const = 0;
    /// The position of a number that is in the range of NumbersOf.
    virtual qint32 PositionOf(double number) const = 0;
    /// What the map has now, for a slider from minimum to maximum; nothing if there is no such number.
    virtual std::optional<MapNumber> NumberOfMap(qint32 minimum, qint32 maximum) const = 0;

protected:
    ITypedNumbers() = default;
};

} // namespace Orvane

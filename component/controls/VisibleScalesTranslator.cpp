// SPDX-License-Identifier: MIT
#include "component/controls/VisibleScalesTranslator.h"

#include "component/common/Component.h"
#include "component/common/HostInterface.h"
#include "component/common/Messages.h"

#include <OrvaneShellLib/IMapScale.h>
#include <OrvaneShellLib/IShellServices.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr qint32 firstScale = VisibleScalesTranslator::FirstScale;
constexpr qint32 lastScale = VisibleScalesTranslator::LastScale;
constexpr qsizetype prefixLength = 2; // of "1:", even if a translation has changed it

double Denominator(qint32 index)
{
    return ShellServices().ScaleFromIndex(index);
}

qint32 NearestIndex(double denominator)
{
    return std::clamp(ShellServices().IndexFromScale(denominator), firstScale, lastScale);
}

// The last index before the scale, or at it, in the order of a table that may go either way.
qint32 IndexBefore(double denominator)
{
    const qint32 nearest = NearestIndex(denominator);
    const bool rises = Denominator(firstScale) < Denominator(lastScale);
    const bool isPast = rises ? Denominator(nearest) > denominator : Denominator(nearest) < denominator;
    return isPast ? std::max(nearest - 1, firstScale) : nearest;
}

qint32 IndexAfter(double denominator)
{
    const qint32 before = IndexBefore(denominator);
    return Denominator(before) == denominator ? before : std::min(before + 1, lastScale);
}

} // namespace

bool VisibleScalesTranslator::IsLimit(const Value& value)
{
    return !value.IsNull() && !ValuesEqual(value, NoMinimum) && !ValuesEqual(value, NoMaximum);
}

QString VisibleScalesTranslator::toString(const Value& value) const
{
    if (value.IsNull())
        return TranslateMsg("various");
    if (!IsLimit(value))
        return TranslateMsg("dont care");
    return TranslateMsg("1:^1", ShellServices().ScaleFromIndex(ToInt32(value)));
}

Value VisibleScalesTranslator::FromString(const QString& text) const
{
    if (text == TranslateMsg("various"))
        return Value::Null();
    if (text == TranslateMsg("dont care"))
        return qint16(NoMinimum);
    const qint32 denominator = ToInt32(text.mid(prefixLength));
    return ShellServices().IndexFromScale(denominator);
}

QString VisibleScalesTranslator::NumberText(const QString& digits) const
{
    return TranslateMsg("1:^1", digits);
}

ITypedNumbers::Range VisibleScalesTranslator::NumbersOf(qint32 minimum, qint32 maximum) const
{
    const double first = Denominator(std::max(minimum, firstScale));
    const double last = Denominator(std::min(maximum, lastScale));
    return {std::min(first, last), std::max(first, last)};
}

qint32 VisibleScalesTranslator::PositionOf(double denominator) const
{
    return NearestIndex(denominator);
}

std::optional<ITypedNumbers::MapNumber>
VisibleScalesTranslator::NumberOfMap(qint32 minimum, qint32 maximum) const
{
    const auto* map = HostInterface<IMapScale>();
    const double denominator = map ? map->CurrentScale() : 0;
    if (!std::isfinite(denominator) || denominator <= 0)
        return std::nullopt;
    const Range possible = NumbersOf(minimum, maximum);
    if (denominator < possible.smallest || denominator > possible.largest)
        return MapNumber{denominator, std::nullopt};
    return MapNumber{denominator, maximum == NoMaximum ? IndexAfter(denominator) : IndexBefore(denominator)};
}

} // namespace Orvane

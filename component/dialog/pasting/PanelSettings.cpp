// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/PanelSettings.h"

#include "component/common/Component.h"
#include "component/controls/VisibleScalesTranslator.h"

#include <OrvaneShellLib/IShellServices.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <optional>

namespace Orvane {

namespace {

using Scales = VisibleScalesTranslator;

constexpr qint32 StandardStyle = 0;

bool IsKnownMode(qint16 quickMode)
{
    return quickMode == QuickMode::Normal || quickMode == QuickMode::Backdrop
        || quickMode == QuickMode::Hidden;
}

std::optional<double> DenominatorOf(const Value& scaleIndex)
{
    const std::optional<qint32> index = Int32In(scaleIndex);
    if (!index || *index < Scales::NoMinimum || *index > Scales::NoMaximum)
        return std::nullopt;
    return Scales::IsLimit(*index) ? ShellServices().ScaleFromIndex(*index) : 0;
}

qint32 IndexOf(double denominator)
{
    return denominator == 0 ? Scales::NoMinimum : Scales().PositionOf(denominator);
}

std::optional<RendererStyle> StyleWithNumber(const std::vector<RendererStyle>& styles, const Value& value)
{
    const std::optional<qint32> number = Int32In(value);
    if (number && *number == StandardStyle)
        return RendererStyle{StandardStyle, {}};
    const auto found = std::find_if(
        styles.begin(), styles.end(), [&](const RendererStyle& style) { return number == style.number; });
    return found == styles.end() ? std::nullopt : std::optional(*found);
}

Value NumberOf(const RendererStyle& wanted, const std::vector<RendererStyle>& styles)
{
    if (wanted.number == StandardStyle)
        return StandardStyle;
    Value number = Value::Null();
    for (const RendererStyle& style : styles) {
        if (style.name == wanted.name && (number.IsNull() || style.number == wanted.number))
            number = style.number;
    }
    return number;
}

void SetScales(LayerStyle& style, const CopiedSettings::Scales& scales)
{
    const qint32 minimum = IndexOf(scales.minimum);
    const qint32 maximum = IndexOf(scales.maximum);
    if (maximum != Scales::NoMinimum && minimum > maximum)
        return;
    style.lsSet(Slot::MinVisScale, minimum);
    style.lsSet(Slot::MaxVisScale, maximum);
}

} // namespace

bool PanelSettings::Has(Setting setting) const
{
    if (setting == Setting::Mode)
        return IsKnownMode(quickMode);
    const auto& slotNumbers = EntryOf(setting).slotNumbers;
    return std::all_of(slotNumbers.begin(), slotNumbers.end(), [this](qint16 slot) {
        return slot < 0 || !style.lsIsNull(slot);
    });
}

PanelSettings PanelSettings::Only(const SettingSet& settings) const
{
    PanelSettings only;
    for (const Setting setting : settings) {
        if (setting == Setting::Mode)
            only.quickMode = quickMode;
        for (const qint16 slot : EntryOf(setting).slotNumbers) {
            if (slot >= 0)
                only.style.lsSet(slot, style.lsGet(slot));
        }
    }
    return only;
}

CopiedSettings ToCopy(const PanelSettings& settings, const std::vector<RendererStyle>& styles)
{
    CopiedSettings copied;
    copied.quickMode = settings.quickMode;
    copied.style = settings.style;
    const auto minimum = DenominatorOf(settings.style.lsGet(Slot::MinVisScale));
    const auto maximum = DenominatorOf(settings.style.lsGet(Slot::MaxVisScale));
    if (minimum && maximum)
        copied.scales = {*minimum, *maximum};
    copied.rendererStyle = StyleWithNumber(styles, settings.style.lsGet(Slot::RendererStyle));
    // What its reader would leave out is not copied.
    return CopiedSettings::FromBytes(copied.ToBytes()).value_or(CopiedSettings());
}

PanelSettings FromCopy(const CopiedSettings& copied, const std::vector<RendererStyle>& styles)
{
    PanelSettings settings{copied.style, copied.quickMode};
    if (copied.scales)
        SetScales(settings.style, *copied.scales);
    if (copied.rendererStyle)
        settings.style.lsSet(Slot::RendererStyle, NumberOf(*copied.rendererStyle, styles));
    return settings;
}

} // namespace Orvane

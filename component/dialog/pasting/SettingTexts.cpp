// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/SettingTexts.h"

#include "component/common/Messages.h"
#include "component/dialog/panel/PropertyPanel.h"
#include "component/dialog/panel/PropertyTexts.h"
#include "component/dialog/trees/NodeData.h"
#include "component/styles/ItemDescriptions.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QStringList>

namespace Orvane {

namespace {

QString TextOfSlot(const PropertyPanel& panel, const PanelSettings& settings, qint16 slot)
{
    return PropertyText(panel.ControlOf(slot).value(), settings.style.lsGet(slot));
}

QString RangeText(const QString& minimum, const QString& maximum)
{
    return minimum == maximum ? minimum : TranslateMsg("^1 to ^2", minimum, maximum);
}

QString ScalesText(const PropertyPanel& panel, const PanelSettings& settings)
{
    return RangeText(
        TextOfSlot(panel, settings, Slot::MinVisScale), TextOfSlot(panel, settings, Slot::MaxVisScale));
}

QString ScaleText(double denominator)
{
    return denominator == 0 ? TranslateMsg("dont care") : TranslateMsg("1:^1", denominator);
}

QString LineText(const LayerStyle& style)
{
    return LineDescription(
        {ToInt16(style.lsGet(Slot::OutlineStyle)), ToInt16(style.lsGet(Slot::LineThickness))});
}

} // namespace

QString SettingName(const PropertyPanel& panel, Setting setting)
{
    switch (setting) {
    case Setting::Mode:
        return TranslateMsg("Display mode");
    case Setting::VisibleScales:
        return TranslateMsg("Visible Scale Range");
    case Setting::DrawPriority:
        return TranslateMsg("Draw Priority");
    default:
        return PropertyName(panel.ControlOf(EntryOf(setting).slotNumbers[0]).value());
    }
}

QString SettingText(const PropertyPanel& panel, const PanelSettings& settings, Setting setting)
{
    switch (setting) {
    case Setting::Mode:
        return QuickModeText(settings.quickMode);
    case Setting::VisibleScales:
        return ScalesText(panel, settings);
    case Setting::LineStyle:
        return LineText(settings.style);
    default:
        return TextOfSlot(panel, settings, EntryOf(setting).slotNumbers[0]);
    }
}

QString CopiedScalesText(const CopiedSettings::Scales& scales)
{
    return RangeText(ScaleText(scales.minimum), ScaleText(scales.maximum));
}

QString SettingsAsText(const PropertyPanel& panel, const PanelSettings& settings, const QString& title)
{
    QStringList lines{title};
    for (const SettingEntry& entry : AllSettings) {
        if (!settings.Has(entry.setting))
            continue;
        const QString name = SettingName(panel, entry.setting);
        lines.append(TranslateMsg("^1: ^2", name, SettingText(panel, settings, entry.setting)));
    }
    return lines.join(u'\n');
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerStyle.h"

#include <QtGlobal>

#include <array>
#include <set>

namespace Orvane {

/// What can be copied from one layer to others, each as one line of a list.
enum class Setting : quint8 {
    Mode,
    Visible,
    Locked,
    SnapRequired,
    UseForSymbols,
    Hitable,
    Selectable,
    Enquirable,
    RendererStyle,
    LineColour,
    LineStyle,
    FillColour,
    Background,
    FillStyle,
    VisibleScales,
    DrawPriority,
};

using SettingSet = std::set<Setting>;

/// The frame of the panel that a setting is in.
enum class SettingGroup : quint8 { None, Flags, LineAndFill };

struct SettingEntry {
    Setting setting;
    const char* key; ///< its name in copied settings, and where they are remembered
    SettingGroup group = SettingGroup::None;
    std::array<qint16, 2> slotNumbers{-1, -1}; ///< of LayerStyle; -1: none, as for the quick mode
    bool isTickedAtFirst = true; ///< until the user has chosen what to paste
};

/// All settings, in the order of the panel.
inline constexpr std::array AllSettings{
    SettingEntry{Setting::Mode, "mode", SettingGroup::None, {-1, -1}, false},
    SettingEntry{Setting::Visible, "visible", SettingGroup::Flags, {Slot::Visible, -1}},
    SettingEntry{Setting::Locked, "locked", SettingGroup::Flags, {Slot::Locked, -1}},
    SettingEntry{Setting::SnapRequired, "snapRequired", SettingGroup::Flags, {Slot::SnapRequired, -1}},
    SettingEntry{Setting::UseForSymbols, "useForSymbols", SettingGroup::Flags, {Slot::UseForSymbols, -1}},
    SettingEntry{Setting::Hitable, "hitable", SettingGroup::Flags, {Slot::Hitable, -1}},
    SettingEntry{Setting::Selectable, "selectable", SettingGroup::Flags, {Slot::Selectable, -1}},
    SettingEntry{Setting::Enquirable, "enquirable", SettingGroup::Flags, {Slot::Enquirable, -1}},
    SettingEntry{Setting::RendererStyle, "style", SettingGroup::None, {Slot::RendererStyle, -1}},
    SettingEntry{Setting::LineColour, "lineColour", SettingGroup::LineAndFill, {Slot::LineColour, -1}},
    SettingEntry{
        Setting::LineStyle,
        "lineStyle",
        SettingGroup::LineAndFill,
        {Slot::OutlineStyle, Slot::LineThickness}},
    SettingEntry{Setting::FillColour, "fillColour", SettingGroup::LineAndFill, {Slot::FillForeColour, -1}},
    SettingEntry{Setting::Background, "background", SettingGroup::LineAndFill, {Slot::FillBackColour, -1}},
    SettingEntry{Setting::FillStyle, "fillStyle", SettingGroup::LineAndFill, {Slot::FillStyle, -1}},
    SettingEntry{
        Setting::VisibleScales, "visibleScales", SettingGroup::None, {Slot::MinVisScale, Slot::MaxVisScale}},
    SettingEntry{Setting::DrawPriority, "drawPriority", SettingGroup::None, {Slot::DrawPriority, -1}, false},
};

/// The entry of a setting.
constexpr const SettingEntry& EntryOf(Setting setting)
{
    return AllSettings[std::size_t(setting)];
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "ovctrls/SystemColours.h"

#include <QPalette>

#include <array>

namespace Orvane {

namespace {

// In the order of the system colour numbers: scroll bar, desktop, active and inactive title, menu, window,
// frame, menu text, window text, title text, active and inactive border, workspace, highlight and its text,
// face, shadow, grey text, face text, inactive title text, light, dark shadow, midlight, tool tip text and
// tool tip.
constexpr std::array systemRoles{
    QPalette::Mid,
    QPalette::Window,
    QPalette::Highlight,
    QPalette::Mid,
    QPalette::Window,
    QPalette::Base,
    QPalette::Dark,
    QPalette::WindowText,
    QPalette::Text,
    QPalette::HighlightedText,
    QPalette::Window,
    QPalette::Window,
    QPalette::Dark,
    QPalette::Highlight,
    QPalette::HighlightedText,
    QPalette::Window,
    QPalette::Dark,
    QPalette::PlaceholderText,
    QPalette::WindowText,
    QPalette::WindowText,
    QPalette::Light,
    QPalette::Shadow,
    QPalette::Midlight,
    QPalette::ToolTipText,
    QPalette::ToolTipBase,
};

QPalette::ColorRole RoleOf(qint32 colour)
{
    const auto number = quint32(colour) & 0xFFu;
    return number < systemRoles.size() ? systemRoles[number] : QPalette::Window;
}

} // namespace

QColor ResolveColour(qint32 colour, const QPalette& palette)
{
    if (IsSystemColour(colour))
        return palette.color(RoleOf(colour));
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

} // namespace Orvane

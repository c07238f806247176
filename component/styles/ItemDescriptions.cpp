// SPDX-License-Identifier: MIT
#include "component/styles/ItemDescriptions.h"

#include "component/common/Messages.h"
#include "component/styles/StandardColours.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/LayerValues.h>

#include <algorithm>
#include <cstdlib>

namespace Orvane {

namespace {

QString PatternedLineDescription(qint16 style)
{
    switch (style) {
    case 1:
        return TranslateMsg("Dashed line");
    case 2:
        return TranslateMsg("Dotted line");
    case 3:
        return TranslateMsg("Dash-dot line");
    case 4:
        return TranslateMsg("Dash-dot-dot line");
    default:
        return TranslateMsg("Line style ^1", qint32(style));
    }
}

} // namespace

QString ColourDescription(qint32 colour)
{
    if (colour == TransparentColour)
        return TranslateMsg("Transparent");
    const auto known = std::find_if(
        standardColours.begin(), standardColours.end(),
        [colour](const StandardColour& standard) { return standard.colour == colour; });
    return known == standardColours.end() ? QColorFromBgr(colour).name().toUpper()
                                          : TranslateMsg(QString::fromLatin1(known->name));
}

QString LineDescription(const LineItem& line)
{
    if (line.style == NoLineStyle)
        return TranslateMsg("<none>");
    if (line.style != 0)
        return PatternedLineDescription(line.style);
    if (line.thickness == 0)
        return TranslateMsg("Thinnest line");
    if (line.thickness == -1)
        return TranslateMsg("1 pixel");
    const QString unit = line.thickness > 0 ? TranslateMsg("mm") : TranslateMsg("pixels");
    return QString::number(std::abs(int(line.thickness))) + ' ' + unit;
}

QString FillDescription(qint32 style)
{
    constexpr qint32 solid = 0;
    if (style == solid)
        return TranslateMsg("Solid");
    return style == HollowFill ? TranslateMsg("Outline only") : TranslateMsg("Pattern ^1", style);
}

} // namespace Orvane

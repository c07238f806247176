// SPDX-License-Identifier: MIT
#include "ovctrls/LinePatterns.h"

#include <QPen>

#include <iterator>

namespace Orvane {

void SetLinePattern(QPen& pen, int style)
{
    static constexpr Qt::PenStyle plain[]
        = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine};
    if (style < 0 || style > NoLinePattern)
        return;
    if (style < int(std::size(plain)))
        pen.setStyle(plain[style]);
    else if (style == NoLinePattern)
        pen.setStyle(Qt::NoPen);
    else
        pen.setDashPattern({double(style), 2, 1, 2});
}

} // namespace Orvane

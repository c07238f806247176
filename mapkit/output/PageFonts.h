// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

namespace Orvane::PageFonts {

/// Fonts of the page, with sizes in page pixels on every device.
inline QFont OfSize(int pixels, bool bold = false)
{
    QFont font;
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

inline QFont Title()
{
    return OfSize(24, true);
}

inline QFont Heading()
{
    return OfSize(12, true);
}

inline QFont Text()
{
    return OfSize(12);
}

inline QFont Small()
{
    return OfSize(10);
}

} // namespace Orvane::PageFonts

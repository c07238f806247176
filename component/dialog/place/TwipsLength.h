// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <optional>

namespace Orvane {

/// One side of a window in twips, restored from a setting and written back exactly unless it was changed.
/// Pixels are coarser than twips, so the stored number must be kept besides the pixels.
///
///     width.Restore(9001, window.width());           // 600 pixels at 15 twips a pixel
///     width.TwipsOf(window.width(), 15)              // 9001 while the window is 600 pixels wide
class TwipsLength
{
public:
    /// From now on these twips stand for these pixels.
    void Restore(float twips, int pixels) { m_restored = Restored{twips, pixels}; }

    /// The pixels in twips. twipsPerPixel: of the screen that the window is on. slack: by how many pixels the
    /// window system may have changed the restored ones.
    float TwipsOf(int pixels, double twipsPerPixel, int slack = 0) const
    {
        if (m_restored && std::abs(m_restored->pixels - pixels) <= slack)
            return m_restored->twips;
        return float(pixels * twipsPerPixel);
    }

private:
    struct Restored {
        float twips;
        int pixels;
    };

    std::optional<Restored> m_restored;
};

} // namespace Orvane

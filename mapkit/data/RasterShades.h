// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <array>
#include <vector>

class GDALDataset;

namespace Orvane {

/// Converts a raster's values to colours: by its palette, as red, green and blue, or in shades of grey.
class RasterShades
{
public:
    /// Examines the raster, and also its values if they are not bytes.
    explicit RasterShades(GDALDataset& raster);

    /// False for values that are indexes into a palette.
    bool MayBlend() const { return m_palette.empty(); }

    /// Reads these pixels of the raster, which is warped and has an alpha band as its last one, and puts them
    /// into the image from the point to on. False if they cannot be read.
    bool Read(GDALDataset& warped, const QRect& pixels, QImage& image, QPoint to) const;

private:
    QRgb ColourOf(const float* values) const;
    int Shade(float value) const;

    std::vector<QRgb> m_palette;
    std::array<int, 3> m_bands = {1, 1, 1}; // for red, green and blue, from 1
    bool m_isBytes = true;
    double m_least = 0;
    double m_greatest = 255;
};

} // namespace Orvane

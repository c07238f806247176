// SPDX-License-Identifier: MIT
#include "mapkit/data/RasterShades.h"

#include <algorithm>
#include <cmath>
#include <gdal_priv.h>

namespace Orvane {

namespace {

constexpr int Channels = 4; // red, green, blue, alpha

std::vector<QRgb> PaletteOf(const GDALColorTable* table)
{
    std::vector<QRgb> palette;
    for (int i = 0; table && i < table->GetColorEntryCount(); ++i) {
        GDALColorEntry entry = {};
        table->GetColorEntryAsRGB(i, &entry);
        palette.push_back(qRgba(entry.c1, entry.c2, entry.c3, entry.c4));
    }
    return palette;
}

} // namespace

RasterShades::RasterShades(GDALDataset& raster)
{
    GDALRasterBand& first = *raster.GetRasterBand(1);
    m_palette = PaletteOf(first.GetColorTable());
    m_isBytes = first.GetRasterDataType() == GDT_Byte;
    if (raster.GetRasterCount() >= 3)
        m_bands = {1, 2, 3};
    std::array<double, 2> range = {};
    if (m_isBytes || !m_palette.empty() || first.ComputeRasterMinMax(TRUE, range.data()) != CE_None)
        return;
    m_least = range[0];
    m_greatest = std::max(range[1], std::nextafter(range[0], range[0] + 1));
}

bool RasterShades::Read(GDALDataset& warped, const QRect& pixels, QImage& image, QPoint to) const
{
    std::array<int, Channels> bands = {m_bands[0], m_bands[1], m_bands[2], warped.GetRasterCount()};
    std::vector<float> values(size_t(pixels.width()) * size_t(pixels.height()) * Channels);
    constexpr GSpacing step = sizeof(float);
    const CPLErr result = warped.RasterIO(
        GF_Read, pixels.x(), pixels.y(), pixels.width(), pixels.height(), values.data(), pixels.width(),
        pixels.height(), GDT_Float32, Channels, bands.data(), step * Channels,
        step * Channels * pixels.width(), step, nullptr);
    if (result != CE_None)
        return false;
    const float* value = values.data();
    for (int y = 0; y < pixels.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(to.y() + y)) + to.x();
        for (int x = 0; x < pixels.width(); ++x, value += Channels)
            line[x] = qPremultiply(ColourOf(value));
    }
    return true;
}

// The alpha band ranges from 0 to 255 only for byte values.
QRgb RasterShades::ColourOf(const float* values) const
{
    const int alpha = m_isBytes ? int(values[3]) : values[3] > 0 ? 255 : 0;
    if (alpha == 0)
        return 0;
    if (m_palette.empty())
        return qRgba(Shade(values[0]), Shade(values[1]), Shade(values[2]), alpha);
    const auto index = size_t(std::max(0.0F, values[0]));
    return index < m_palette.size() ? m_palette[index] : 0;
}

int RasterShades::Shade(float value) const
{
    if (!std::isfinite(value))
        return 0;
    return int(std::clamp((value - m_least) / (m_greatest - m_least) * 255, 0.0, 255.0));
}

} // namespace Orvane

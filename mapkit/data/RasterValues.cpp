// SPDX-License-Identifier: MIT
#include "mapkit/data/RasterValues.h"

#include <charconv>
#include <cmath>
#include <gdal_priv.h>

namespace Orvane {

namespace {

bool ReadPixel(GDALRasterBand& band, QPoint pixel, double& value)
{
    return band.RasterIO(GF_Read, pixel.x(), pixel.y(), 1, 1, &value, 1, 1, GDT_Float64, 0, 0, nullptr)
        == CE_None;
}

// A short float is not as exact as a double: 0.1 is read as 0.10000000149.
double WithoutFalseDigits(double value, GDALDataType type)
{
    if (type != GDT_Float32)
        return value;
    char text[32] = {};
    const auto written = std::to_chars(std::begin(text), std::end(text), float(value));
    double exact = value;
    std::from_chars(std::begin(text), written.ptr, exact);
    return exact;
}

double Scaled(GDALRasterBand& band, double value)
{
    const double scale = band.GetScale();
    const double offset = band.GetOffset();
    return scale == 1 && offset == 0 ? value : value * scale + offset;
}

QString CategoryOf(GDALRasterBand& band, double value)
{
    char** names = band.GetCategoryNames();
    const bool isNamed = names && value >= 0 && value < CSLCount(names) && value == std::floor(value);
    return isNamed ? QString::fromUtf8(names[int(value)]) : QString();
}

} // namespace

std::optional<RasterValue> ValueAt(GDALRasterBand& band, QPoint pixel)
{
    double mask = 0;
    double value = 0;
    if (!ReadPixel(*band.GetMaskBand(), pixel, mask) || !ReadPixel(band, pixel, value))
        return std::nullopt;
    RasterValue result;
    result.band = band.GetBand();
    result.description = QString::fromUtf8(band.GetDescription()).trimmed();
    result.unit = QString::fromUtf8(band.GetUnitType()).trimmed();
    if (mask == 0 || !std::isfinite(value))
        return result;
    result.category = CategoryOf(band, value);
    result.number = Scaled(band, WithoutFalseDigits(value, band.GetRasterDataType()));
    return result;
}

} // namespace Orvane

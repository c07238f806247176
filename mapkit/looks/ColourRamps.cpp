// SPDX-License-Identifier: MIT
#include "mapkit/looks/ColourRamps.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace Orvane::ColourRamps {

namespace {

constexpr size_t AnchorCount = 5;

struct KnownRamp {
    const char* key;
    const char* name;
    std::array<QRgb, AnchorCount> anchors; // from the lowest class to the highest
};

constexpr std::array<KnownRamp, 8> Known = {{
    {"blues",
     QT_TRANSLATE_NOOP("ColourRamps", "Blues"),
     {0xffe6f0fa, 0xffb0d1ed, 0xff62a3d6, 0xff2467a8, 0xff0b2f60}},
    {"greens",
     QT_TRANSLATE_NOOP("ColourRamps", "Greens"),
     {0xffe9f5e3, 0xffb7dea9, 0xff6fb56c, 0xff2f7d43, 0xff0c3d22}},
    {"oranges",
     QT_TRANSLATE_NOOP("ColourRamps", "Oranges"),
     {0xfffff0de, 0xfffccd97, 0xfff39848, 0xffc5560f, 0xff6e2804}},
    {"purples",
     QT_TRANSLATE_NOOP("ColourRamps", "Purples"),
     {0xfff1ecf8, 0xffcfbce6, 0xffa07fca, 0xff6a4199, 0xff351258}},
    {"greys",
     QT_TRANSLATE_NOOP("ColourRamps", "Greys"),
     {0xfff0f0f0, 0xffc8c8c8, 0xff939393, 0xff5b5b5b, 0xff262626}},
    {"heat",
     QT_TRANSLATE_NOOP("ColourRamps", "Yellow to red"),
     {0xfffff5b8, 0xfffdcf6a, 0xfff58b3b, 0xffd53a26, 0xff7d0a26}},
    {"lagoon",
     QT_TRANSLATE_NOOP("ColourRamps", "Yellow to violet"),
     {0xfff5ec76, 0xff86cc74, 0xff2f9a86, 0xff2f5f88, 0xff3a1d5c}},
    {"balance",
     QT_TRANSLATE_NOOP("ColourRamps", "Blue to red, pale in the middle"),
     {0xff1f5fa6, 0xff8fbbe0, 0xfff4f1ea, 0xffea9d85, 0xffb0202e}},
}};

const KnownRamp* Find(const QString& key)
{
    const auto found = std::find_if(
        Known.begin(), Known.end(), [&](const KnownRamp& ramp) { return key == QLatin1String(ramp.key); });
    return found == Known.end() ? nullptr : &*found;
}

// A colour in the space Oklab, in which equal distances look equal.
struct Lab {
    double lightness;
    double a;
    double b;
};

double Linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Encoded(double linear)
{
    const double channel = linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
    return std::clamp(channel, 0.0, 1.0);
}

Lab LabOf(const QColor& colour)
{
    const double r = Linear(double(colour.redF()));
    const double g = Linear(double(colour.greenF()));
    const double b = Linear(double(colour.blueF()));
    const double l = std::cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b);
    const double m = std::cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b);
    const double s = std::cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b);
    return {
        0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
        1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
        0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

QColor ColourOf(const Lab& lab)
{
    const double l = std::pow(lab.lightness + 0.3963377774 * lab.a + 0.2158037573 * lab.b, 3);
    const double m = std::pow(lab.lightness - 0.1055613458 * lab.a - 0.0638541728 * lab.b, 3);
    const double s = std::pow(lab.lightness - 0.0894841775 * lab.a - 1.2914855480 * lab.b, 3);
    return QColor::fromRgb(QColor::fromRgbF(
                               float(Encoded(4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s)),
                               float(Encoded(-1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s)),
                               float(Encoded(-0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s)))
                               .rgb());
}

QColor Mixed(const QColor& from, const QColor& to, double part)
{
    const Lab one = LabOf(from);
    const Lab other = LabOf(to);
    const auto mix = [part](double a, double b) { return a + (b - a) * part; };
    return ColourOf({mix(one.lightness, other.lightness), mix(one.a, other.a), mix(one.b, other.b)});
}

// place: 0 at the first anchor, 1 at the last.
QColor ColourAt(std::span<const QRgb> anchors, double place)
{
    const double position = place * double(anchors.size() - 1);
    const auto before = std::min(size_t(position), anchors.size() - 2);
    return Mixed(
        QColor::fromRgb(anchors[before]), QColor::fromRgb(anchors[before + 1]), position - double(before));
}

} // namespace

std::vector<Ramp> Offered()
{
    std::vector<Ramp> ramps;
    ramps.reserve(Known.size());
    for (const KnownRamp& ramp : Known)
        ramps.push_back({QLatin1String(ramp.key), QCoreApplication::translate("ColourRamps", ramp.name)});
    return ramps;
}

bool Has(const QString& key)
{
    return Find(key) != nullptr;
}

std::vector<QColor> ColoursOf(const QString& key, int count, bool isReversed)
{
    std::vector<QColor> colours;
    const KnownRamp* ramp = Find(key);
    for (int i = 0; ramp && i < count; ++i)
        colours.push_back(ColourAt(ramp->anchors, count > 1 ? double(i) / (count - 1) : 1));
    if (isReversed)
        std::reverse(colours.begin(), colours.end());
    return colours;
}

std::vector<QColor> ColoursBetween(const QColor& low, const QColor& high, int count)
{
    const std::array<QRgb, 2> ends = {low.rgb(), high.rgb()};
    std::vector<QColor> colours;
    colours.reserve(size_t(std::max(0, count)));
    for (int i = 0; i < count; ++i)
        colours.push_back(ColourAt(ends, count > 1 ? double(i) / (count - 1) : 1));
    return colours;
}

} // namespace Orvane::ColourRamps

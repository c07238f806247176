// SPDX-License-Identifier: MIT
#include "mapkit/output/ClassTexts.h"

#include "mapkit/looks/Classification.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Orvane {

namespace {

constexpr int MostDecimals = 9;
constexpr double Unreadable = 1e15; // numbers from here on have an exponent

std::vector<double> LimitsOf(const Classification& classes)
{
    std::vector<double> limits;
    limits.reserve(size_t(classes.Count()) + 1);
    for (int i = 0; i < classes.Count(); ++i)
        limits.push_back(classes.LowerLimit(i));
    if (classes.Count() > 0)
        limits.push_back(classes.UpperLimit(classes.Count() - 1));
    return limits;
}

// Infinite if there is only one number.
double NarrowestStep(const std::vector<double>& limits)
{
    double narrowest = std::numeric_limits<double>::infinity();
    for (size_t i = 1; i < limits.size(); ++i) {
        if (limits[i] > limits[i - 1])
            narrowest = std::min(narrowest, limits[i] - limits[i - 1]);
    }
    return narrowest;
}

std::vector<double> Rounded(std::vector<double> limits, double factor)
{
    for (double& limit : limits)
        limit = std::round(limit * factor) / factor;
    return limits;
}

// True when all are whole numbers if they are multiplied by the factor.
bool AreWhole(const std::vector<double>& limits, double factor)
{
    return std::all_of(limits.begin(), limits.end(), [factor](double limit) {
        return std::abs(limit * factor - std::round(limit * factor)) < 1e-6;
    });
}

// Two digits of the narrowest step, without zeros that all limits end in. Negative: an exponent is needed.
int DecimalsFor(const std::vector<double>& limits)
{
    const double step = NarrowestStep(limits);
    const double size = std::max(std::abs(limits.front()), std::abs(limits.back()));
    if (!std::isfinite(step))
        return AreWhole(limits, 1) && size < Unreadable ? 0 : -1;
    const int digits = std::max(0, 1 - int(std::floor(std::log10(step))));
    if (digits > MostDecimals || size >= Unreadable)
        return -1;
    const std::vector<double> rounded = Rounded(limits, std::pow(10, digits));
    int decimals = digits;
    while (decimals > 0 && AreWhole(rounded, std::pow(10, decimals - 1)))
        --decimals;
    return decimals;
}

} // namespace

std::vector<QString> ClassTexts(const Classification& classes)
{
    const std::vector<double> limits = LimitsOf(classes);
    std::vector<QString> texts;
    if (limits.empty())
        return texts;
    const int decimals = DecimalsFor(limits);
    const QLocale locale;
    const auto text = [&](double limit) {
        return decimals < 0 ? locale.toString(limit, 'g', 6) : locale.toString(limit, 'f', decimals);
    };
    texts.reserve(limits.size());
    for (size_t i = 1; i < limits.size(); ++i) {
        const QString from = text(limits[i - 1]);
        const QString to = text(limits[i]);
        texts.push_back(from == to ? to : from + QStringLiteral(" – ") + to);
    }
    return texts;
}

} // namespace Orvane

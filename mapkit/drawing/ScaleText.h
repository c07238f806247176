// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace Orvane {

/// A scale as the user reads it: "1:2,200,000", rounded as RoundedScale does, its digits grouped by the
/// locale. denominator: above 0.
QString ScaleText(double denominator);

/// The smallest and the largest denominator that ReadScale takes.
inline constexpr double MinScaleDenominator = 1;
inline constexpr double MaxScaleDenominator = 1e10;

/// The denominator of a scale that the user has typed: "1:25,000", "1 : 25 000", "25000", whatever groups its
/// digits. Nothing if the text is no scale, or one outside the limits above.
std::optional<double> ReadScale(const QString& text);

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

#include <vector>

namespace Orvane {

/// Rows of colours for maps, in even steps for the eye.
namespace ColourRamps {

/// A ramp that the user can choose.
struct Ramp {
    QString key; ///< stored in maps, never translated
    QString name; ///< translated
};

/// All ramps, in the order in which they are offered.
std::vector<Ramp> Offered();

/// Whether there is a ramp with that key.
bool Has(const QString& key);

/// The colours of that many classes, the lowest first: from light to dark, or between two strong colours;
/// the other way round if isReversed. A single class gets the strongest colour. Empty for a key without a
/// ramp.
std::vector<QColor> ColoursOf(const QString& key, int count, bool isReversed);

/// The colours of that many classes from one colour to another.
std::vector<QColor> ColoursBetween(const QColor& low, const QColor& high, int count);

} // namespace ColourRamps

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <span>
#include <vector>

namespace Orvane {

/// How numbers are divided into classes.
enum class ClassDivision {
    Quantiles = 0, ///< about the same number of features in each
    EqualSteps = 1, ///< all of the same width
};

/// The numbers of a layer's features, divided into classes, the lowest first. Immutable, so that any thread
/// may use it.
class Classification
{
public:
    static constexpr int MinCount = 2;
    static constexpr int MaxCount = 9;
    /// The class of a feature without a number.
    static constexpr int NoClass = -1;

    /// numbers: one per feature; numbers that are not finite have no class. count: limited to MinCount to
    /// MaxCount.
    Classification(std::span<const double> numbers, ClassDivision division, int count);

    /// The number of classes: fewer than requested if there are few different numbers, 0 if there are no
    /// numbers.
    int Count() const { return int(m_limits.size()) - 1; }
    /// The lower limit of a class, which belongs to the class. The last class also includes its upper limit.
    double LowerLimit(int index) const { return m_limits[size_t(index)]; }
    double UpperLimit(int index) const { return m_limits[size_t(index) + 1]; }
    /// True if a feature has no class.
    bool HasUnclassed() const;
    /// The class of a feature, given by its index.
    int ClassOf(size_t feature) const { return m_classes[feature]; }

private:
    int ClassOfNumber(double number) const;

    std::vector<double> m_limits; // the lower limit of each class, and the greatest number
    std::vector<qint8> m_classes; // one a feature
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <span>
#include <vector>

namespace Orvane {

/// How numbers are divided into classes.
enum class ClassDivision {
    Quantiles = 0, ///< about as many features in each
    EqualSteps = 1, ///< each as wide as the others
};

/// The numbers of a layer's features divided into classes, the lowest first. Immutable, for any thread.
class Classification
{
public:
    static constexpr int MinCount = 2;
    static constexpr int MaxCount = 9;
    /// Of a feature without a number.
    static constexpr int NoClass = -1;

    /// numbers: one a feature; what is not finite has no class. count: kept within MinCount and MaxCount.
    Classification(std::span<const double> numbers, ClassDivision division, int count);

    /// The classes there are: fewer than asked for when there are few different numbers, 0 without any.
    int Count() const { return int(m_limits.size()) - 1; }
    /// The least number of a class; it belongs to it. The last class has its upper limit too.
    double LowerLimit(int index) const { return m_limits[size_t(index)]; }
    double UpperLimit(int index) const { return m_limits[size_t(index) + 1]; }
    /// The class of a feature, by its index.
    int ClassOf(size_t feature) const { return m_classes[feature]; }

private:
    int ClassOfNumber(double number) const;

    std::vector<double> m_limits; // where each class begins, and the greatest number
    std::vector<qint8> m_classes; // one a feature
};

} // namespace Orvane

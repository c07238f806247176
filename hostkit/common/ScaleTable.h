// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <array>

namespace Orvane {

/// The 255 scales that a user can choose from: index 1 is 1:100, index 255 is 1:200,000,000, and each step is
/// about six per cent. Every denominator is a whole, readable number (105, 2500, 52500), strictly greater
/// than the one before, and the usual map scales (1, 2, 2.5 and 5 times a power of ten) are all among them.
class ScaleTable
{
public:
    /// The indexes that a user can choose.
    static constexpr qint32 FirstIndex = 1;
    static constexpr qint32 LastIndex = 255;

    ScaleTable();

    /// The denominator of an index. An index below 1 gives that of the first scale, one above 255 that of the
    /// last.
    double Denominator(qint32 index) const;

    /// The index, 1 to 255, whose denominator is nearest; if two are equally near, the lower one. The inverse
    /// of Denominator. NaN gives 1.
    qint32 Index(double denominator) const;

private:
    std::array<double, LastIndex> m_denominators; // [0] belongs to index 1
};

} // namespace Orvane

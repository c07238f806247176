// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

class IShellServices;

/// How the columns MinVisScale and MaxVisScale keep a scale: as its denominator. 0 means no limit, in either
/// column.
namespace StoredScale {

/// Stored where there is no lower limit (scale index 0).
inline constexpr double NoMinimum = 0;
/// Stored where there is no upper limit (scale index 256); beyond any map scale, but still a 32-bit integer.
inline constexpr double NoMaximum = 2'000'000'000;

/// The scale index, 0 to 256, of a stored scale: 0 for NoMinimum and less, 256 for NoMaximum and more,
/// otherwise the nearest index in the services' scales. The inverse of FromIndex.
qint32 ToIndex(double stored, const IShellServices& services);

/// The value to store for a scale index; below 1 there is no lower limit, above 255 no upper limit.
double FromIndex(qint32 index, const IShellServices& services);

} // namespace StoredScale

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

class IShellServices;

/// How the columns MinVisScale and MaxVisScale keep a scale: as its denominator. 0 means no limit, in either
/// column; older maps also hold numbers beyond any map scale.
namespace StoredScale {

/// Stored where there is no limit.
inline constexpr double NoLimit = 0;
/// From here on, a stored scale means no limit: it is beyond any map scale.
inline constexpr double BeyondAllScales = 2'000'000'000;

/// The scale index of a stored scale: 0 for no limit, otherwise the nearest of 1 to 255 in the services'
/// scales. The inverse of FromIndex.
qint32 ToIndex(double stored, const IShellServices& services);

/// The value to store for a scale index; 0 and less, and 256 and more, mean no limit.
double FromIndex(qint32 index, const IShellServices& services);

} // namespace StoredScale

} // namespace Orvane

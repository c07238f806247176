// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Orvane {

/// The map files that the person worked with last, latest first, kept in the application's settings.
namespace RecentMaps {

inline constexpr int Most = 8;

/// Those that still exist, as absolute paths.
QStringList All();
/// Puts the map first.
void Add(const QString& path);

} // namespace RecentMaps

} // namespace Orvane

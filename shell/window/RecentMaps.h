// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Orvane {

/// The map files that the user worked with last, latest first, kept in the application's settings.
namespace RecentMaps {

inline constexpr int Most = 8;

/// As absolute paths, including files that no longer exist.
QStringList All();
/// The latest that still exists; empty for none.
QString Latest();
/// Puts the map first.
void Add(const QString& path);
void Remove(const QString& path);

} // namespace RecentMaps

} // namespace Orvane

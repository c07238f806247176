// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Orvane {

/// The maps that the user worked with last, latest first, kept in the application's settings.
namespace RecentMaps {

inline constexpr int Most = 8;

/// As absolute paths of files, including those that no longer exist, and as places on servers.
QStringList All();
/// False for a file that no longer exists; a server is not asked.
bool MayExist(const QString& place);
/// The latest that MayExist; empty for none.
QString Latest();
/// Puts the map first.
void Add(const QString& path);
void Remove(const QString& path);

} // namespace RecentMaps

} // namespace Orvane

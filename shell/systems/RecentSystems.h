// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Orvane {

/// The coordinate systems that the user chose last, kept with the program's settings.
namespace RecentSystems {

/// The last one first; as in CoordinateSystems.h.
QStringList All();

/// Puts the system in front.
void Add(const QString& system);

} // namespace RecentSystems

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/document/MapDocument.h"

#include <memory>

namespace Orvane {

/// What a map needs besides its place on this computer: the folder of shared data that the user has chosen
/// for it, and what reads the tables of its server. Nothing for a map in a file, nor in a program that was
/// built without PostgreSQL. login: for the tables; nullptr for nobody to ask. MapAccess::login is not set.
MapAccess AccessHere(const QString& place, std::shared_ptr<IServerLogin> login = {});

} // namespace Orvane

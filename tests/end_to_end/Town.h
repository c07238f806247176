// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTemporaryDir;

namespace Orvane::Testing {

/// The place of a town's map in a test with that folder. Towns are in files or in a server, whichever source
/// a program contains: TownInFile.cpp or TownOnServer.cpp.
QString PlaceOfTown(const QTemporaryDir& folder, const QString& name);

/// Makes a town's map there, with its data in the folder. Returns its place.
QString MakeTown(const QTemporaryDir& folder, const QString& name);

} // namespace Orvane::Testing

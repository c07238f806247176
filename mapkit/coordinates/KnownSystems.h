// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace Orvane {

/// A coordinate system of the database that comes with PROJ.
struct KnownSystem {
    QString code; ///< "EPSG:32632"
    QString name; ///< "WGS 84 / UTM zone 32N"
    QString areaName; ///< where it is meant to be used
    QString searchText; ///< code, name and area in lower case and without accents
};

/// The systems for maps of the earth, geographic and projected ones, without deprecated ones, ordered by
/// name. Reading them takes a tenth of a second or two; for any thread. Empty if there is no database.
std::vector<KnownSystem> ReadKnownSystems();

/// Text without case and accents, for finding one in the other.
QString SearchForm(const QString& text);

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/SchemeDocument.h"

#include <QString>
#include <QStringList>

namespace Orvane {

class SqliteLayerDatabase;

/// What became of an import.
struct SchemeImport {
    QString name; ///< of the scheme
    qsizetype matched = 0; ///< layers of the map that the scheme has values for
    QStringList onlyInFile; ///< names of the document's layers that the map does not have, in their order
    QStringList onlyInMap; ///< names of listed layers without values, which keep their own
};

/// One scheme out of a map and into another; layers are matched as LayerMatch.h says.
namespace SchemeExchange {

/// The saved values of the scheme. Raises HostError::UnknownScheme.
SchemeDocument Export(SqliteLayerDatabase& map, const QString& schemeName);

/// Stores the document as a scheme of its name, in one transaction; a scheme of that name is replaced. The
/// layers and the current scheme stay as they are.
SchemeImport Import(SqliteLayerDatabase& map, const SchemeDocument& scheme);

} // namespace SchemeExchange

} // namespace Orvane

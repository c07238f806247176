// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/schemes/SchemeDocument.h>
#include <orvane/hostkit/schemes/SchemeFile.h>

#include <QString>
#include <QStringList>

class QIODevice;

namespace Orvane {

class ILayerStore;

/// The result of an import.
struct SchemeImport {
    QString name; ///< of the scheme
    qsizetype matched = 0; ///< layers of the map that the scheme has values for
    QStringList onlyInFile; ///< names of layers in the document that the map does not have, in document order
    QStringList onlyInMap; ///< names of listed layers without values, which keep their own
};

/// Exports one scheme from a map and imports it into another; layers are matched as described in
/// LayerMatch.h.
namespace SchemeExchange {

/// The saved values of the scheme. Raises HostError::UnknownScheme.
SchemeDocument Export(ILayerStore& map, const QString& schemeName);

/// Writes the saved values of the scheme as SchemeDocument::ToJson does, layer by layer, whatever their
/// number. Asks the watcher of the map after each layer. Raises as Export and ToJson do.
void ExportTo(QIODevice& text, ILayerStore& map, const QString& schemeName);

/// Stores the document as a scheme under its name, in one transaction; an existing scheme of that name is
/// replaced. The layers and the current scheme stay as they are. For values that the document does not have,
/// the present values of the layer are stored. The scheme holds what the document says.
SchemeImport Import(ILayerStore& map, const SchemeDocument& scheme);

/// The same for a file, whatever its size. Asks the watcher of the map after each layer. Raises the errors of
/// the reader too; the map is then as before.
SchemeImport Import(ILayerStore& map, SchemeFile::Reader& file);

} // namespace SchemeExchange

} // namespace Orvane

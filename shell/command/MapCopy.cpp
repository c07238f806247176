// SPDX-License-Identifier: MIT
#include "shell/command/MapCopy.h"

#include "mapkit/document/MapDocument.h"
#include "mapkit/document/SourceTable.h"
#include "store/CopyLayerFile.h"
#include "store/SqliteLayerDatabase.h"
#include "store/StoreTransaction.h"

#include <QFileInfo>

namespace Orvane {

MapCopy::MapCopy(const QString& path)
{
    const QString original = QFileInfo(path).absoluteFilePath();
    const QString copy = m_folder.filePath(QStringLiteral("copy.orvane"));
    CopyLayerFile(original, copy);
    m_document = MapDocument::Open(copy);
    // Paths beside the map are kept relative to it.
    StoreTransaction transaction(m_document->Database());
    for (const LayerSource& source : SourceTable(m_document->Database(), original).All())
        m_document->SetSource(source);
    transaction.Commit();
}

MapCopy::~MapCopy() = default;

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/command/MapCopy.h"

#include "mapkit/document/MapDocument.h"
#include "store/sqlite/files/CopyLayerFile.h"

#include <QFileInfo>

namespace Orvane {

MapCopy::MapCopy(const QString& path)
{
    const QString original = QFileInfo(path).absoluteFilePath();
    const QString copy = m_folder.filePath(QStringLiteral("copy.orvane"));
    CopyLayerFile(original, copy);
    m_document = MapDocument::OpenCopy(copy, original);
}

MapCopy::~MapCopy() = default;

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/map/SourceText.h"

#include <QDir>
#include <QFileInfo>

namespace Orvane {

QString SourceText(const std::optional<LayerSource>& source)
{
    if (!source)
        return {};
    const QFileInfo file(source->path);
    if (!file.isAbsolute())
        return source->ogrLayer;
    const QString path = QDir::toNativeSeparators(source->path);
    if (source->ogrLayer.isEmpty() || source->ogrLayer == file.completeBaseName())
        return path;
    return QStringLiteral("%1 (%2)").arg(path, source->ogrLayer);
}

} // namespace Orvane

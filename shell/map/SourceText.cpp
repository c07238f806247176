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
    if (!file.isAbsolute() || source->path.contains(QLatin1String("://")))
        return source->ogrLayer;
    QString text = QDir::toNativeSeparators(source->path);
    if (!source->ogrLayer.isEmpty() && source->ogrLayer != file.completeBaseName())
        text += QStringLiteral(" (%1)").arg(source->ogrLayer);
    return text;
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/window/DroppedFiles.h"

#include <QMimeData>
#include <QUrl>

namespace Orvane {

QStringList LocalFiles(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    return paths;
}

} // namespace Orvane

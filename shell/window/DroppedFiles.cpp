// SPDX-License-Identifier: MIT
#include "shell/window/DroppedFiles.h"

#include <QDropEvent>
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

bool TakeAsCopy(QDropEvent& event)
{
    const bool isTaken
        = !LocalFiles(*event.mimeData()).isEmpty() && event.possibleActions().testFlag(Qt::CopyAction);
    if (isTaken)
        event.setDropAction(Qt::CopyAction);
    event.setAccepted(isTaken);
    return isTaken;
}

} // namespace Orvane

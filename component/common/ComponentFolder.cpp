// SPDX-License-Identifier: MIT
#include "component/common/MessageFile.h"
#include "messages/LibraryFile.h"

#include <QFileInfo>

namespace Orvane {

QString ComponentFolder()
{
    // Asked only once: the loader's path may be relative to the folder that was current at that time.
    static const QString folder = QFileInfo(LibraryFile()).absolutePath();
    return folder;
}

} // namespace Orvane

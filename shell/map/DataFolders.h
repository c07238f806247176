// SPDX-License-Identifier: MIT
#pragma once

#include "shell/map/LayerCommand.h"

#include <QString>
#include <QStringList>

namespace Orvane {

class MapDocument;

/// The folder in which the data of a source are: for a file, also one inside an archive, the folder of the
/// file or of the archive, for a folder of data that folder. Empty if there is no such folder on this
/// computer, as for a database server. path: as in LayerSource.
QString FolderOfData(const QString& path);

/// The command "Open Folder": shows the folders of the layers' data in the desktop's file manager, each once.
/// document: not owned; outlives the command. Running it raises if the desktop cannot show one.
LayerCommand OpenFolderCommand(const MapDocument& document);

} // namespace Orvane

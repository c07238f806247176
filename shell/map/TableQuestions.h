// SPDX-License-Identifier: MIT
#pragma once

#include "shell/map/DataImport.h"

#include <QStringList>

class QWidget;

namespace Orvane {

class MapDocument;
class MapSession;

/// What the user is asked about tables: which columns hold the coordinates.
namespace TableQuestions {

/// Examines files with progress over the window, and asks about all tables among them in one window. Raises
/// Cancelled.
FoundData FindData(const QStringList& paths, QWidget& window);

/// Whether a layer of the map is made of a table.
bool HasTables(const MapDocument& document);

/// Asks which columns the layers that are made of tables use from now on, and stores the answer as one step
/// of undo. Returns whether something was changed; the layers are then to be read again. Raises errors of the
/// database, and Cancelled.
bool ChangeColumns(MapSession& session, QWidget& window);

} // namespace TableQuestions

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace Orvane {

class MapDocument;

/// Asks in which file a map is to be stored.
namespace MapFileDialog {

/// The path that is proposed for a map: its own; for an untitled map, the name of its data, in their folder;
/// for a map on a server, its name there. If that folder cannot be written to, the user's documents.
/// Absolute, with the extension of maps. Raises errors of the database.
QString Proposed(const MapDocument& document);

/// Asks for the file to write; returns an absolute path, or an empty text when the user cancels. proposed: an
/// absolute path, or a folder that ends in "/". parent: of the window.
QString Ask(const QString& title, const QString& proposed, QWidget* parent);

} // namespace MapFileDialog

} // namespace Orvane

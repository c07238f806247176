// SPDX-License-Identifier: MIT
#pragma once

class QDomDocument;
class QgsProject;

namespace Orvane::SavedTree {

/// Replaces the tree and the snapping in the file of a project by what they are now. file: as
/// QgsProject::writeProject passes it; QGIS has put both in by then, but not yet the layers. Does nothing to
/// a file that has no tree.
void WriteAgain(QDomDocument& file, QgsProject& project);

} // namespace Orvane::SavedTree

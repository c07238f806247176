// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QgsProject;

namespace Orvane {

class ILayerStore;

/// Keeps the notes of a layer store (MapNotes.h) in a QGIS project, as an entry of its file: the texts by
/// their keys, {"LayerControl.ShownOnly": "normal=1..5,7"}. A project without notes has no entry.
///
/// All functions raise errors of the store.
class ProjectNotes
{
public:
    /// Neither is owned; both outlive this object.
    ProjectNotes(QgsProject& project, ILayerStore& store) : m_project(project), m_store(store) { }

    /// Gives the store the notes of the project, in place of its own. There are none in an entry that is not
    /// as above.
    void Read();

    /// Gives the project the notes of the store, which marks it as changed if they differ from what it has.
    void Write();

    /// Writes the notes together with the layers that they are about: runs writeLayers, then Write. Passes on
    /// what writeLayers raises; the store then has the notes of the project again.
    void WriteAfter(const std::function<void()>& writeLayers);

private:
    QgsProject& m_project;
    ILayerStore& m_store;
};

} // namespace Orvane

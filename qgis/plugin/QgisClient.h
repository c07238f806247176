// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardClient.h"
#include "qgis/project/ProjectNotes.h"

#include <OrvaneShellLib/ILayerSource.h>
#include <OrvaneShellLib/IMapScale.h>

#include <QList>
#include <QPointer>
#include <QSet>

#include <functional>
#include <memory>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

class EditorDock;
class ProjectMirror;

/// What the client lets QGIS do, with QGIS's own dialogs.
struct QgisCommands {
    /// Makes a layer, in the project or not yet; returns nullptr if the user cancelled.
    std::function<QgsMapLayer*()> makeLayer;
    /// Removes the layers, one or several, from the project, unless the user does not want it. Empty: the
    /// client asks itself.
    std::function<void(const QList<QgsMapLayer*>& layers)> removeLayers;
    /// The denominator of the scale of the map that is shown. Empty: none is.
    std::function<double()> mapScale = {};
};

/// The application object of QGIS: what is applied in the dialog goes to the project at once, as a part of
/// the same step, so that undoing it finds the layers as they are.
class QgisClient : public StandardClient, public IMapScale, public ILayerSource
{
    Q_DECLARE_TR_FUNCTIONS(QgisClient)

public:
    /// None of these is owned; all outlive this object. mirror: of that project and store.
    QgisClient(ILayerStore& store, IShellServices& services, QgsProject& project, ProjectMirror& mirror);

    /// Shows editors in that dock instead of windows; nullptr ends that, and takes the editor out of the
    /// dock. Not owned.
    void SetDock(EditorDock* dock);
    /// The commands replace those that need no QGIS window.
    void SetCommands(QgisCommands commands) { m_commands = std::move(commands); }

    /// The notes of the editors, which each step writes to the project.
    ProjectNotes& Notes() { return m_notes; }

    /// True while LayersChanged names layers that were written already.
    bool IsApplying() const { return m_isApplying; }
    /// True while a call is running that writes layers, or waits for the user.
    bool IsBusy() const { return m_running > 0 || m_managing > 0; }
    /// The same without the window for schemes, in which steps may be undone.
    bool IsWriting() const { return m_running > 0; }
    /// True while the editor has edits that were not applied.
    bool HasPendingEdits() const;
    /// Drops them: their layers are gone.
    void DropPendingEdits();

protected:
    void IStyleEditorClient_ShowEditor(QWidget* form) override;
    void IStyleEditorClient_EditorClosed(QWidget* form) override;
    void IStyleEditorClient_LayerChanged(qint32 layerID) override;
    void IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name) override;
    void IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name) override;
    void IStyleEditorClient_LoadScheme(const QString& name) override;
    /// Writes the changed layers and the notes, and passes on what that raises; nothing of the operation is
    /// left then.
    void IStyleEditorClient_RedrawMap() override;
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest& request) override;
    ConflictChoice IConflictQuestion_AskAboutConflicts(
        QWidget* form, const QString& node, const std::vector<ConflictingEdit>& edits) override;
    /// The named styles of the project's layers.
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override;
    qint32 IStyleEditorClient_CreateLayer() override;
    void IStyleEditorClient_DeleteLayer(qint32 layerID) override;
    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override;
    double IMapScale_CurrentScale() const override;
    /// The layer's source without a password, the file and layer if it is a file.
    QString ILayerSource_Source(qint32 layerID) override;
    void ISchemeManager_ManageSchemes(QWidget* form) override;

private:
    void Remove(const std::vector<qint32>& layerIDs);
    void ReadRemoved(const std::vector<qint32>& layerIDs);
    void RemoveAfterQuestion(const QList<QgsMapLayer*>& layers);

    QgsProject& m_project;
    ProjectMirror& m_mirror;
    ProjectNotes m_notes;
    QgisCommands m_commands;
    QPointer<EditorDock> m_dock;
    QPointer<QWidget> m_form;
    QSet<qint32> m_changed; // since the last RedrawMap
    bool m_isApplying = false;
    int m_running = 0;
    int m_managing = 0;
};

} // namespace Orvane

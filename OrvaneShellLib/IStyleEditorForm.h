// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RendererStyle.h>

#include <QSet>
#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class IStyleFilter;

/// What a host may ask of an editor beyond IStyleEditor. Reached by dynamic_cast from the form or from
/// IStyleEditor.
///
/// All calls are made on the user-interface thread. A call passes on unchanged what the host's own members
/// raise. AddNewLayer, Popup and Filter may ask the person about edits that were not applied, and the editor
/// may be gone when they return.
class IStyleEditorForm
{
public:
    virtual ~IStyleEditorForm() = default;
    IStyleEditorForm(const IStyleEditorForm&) = delete;
    IStyleEditorForm& operator=(const IStyleEditorForm&) = delete;

    /// The ID under which the editor was created.
    QString EditorID() const { return IStyleEditorForm_EditorID(); }

    /// Reads the one layer from the database and brings its node into view in the flat list; for layers that
    /// the host made. A layer that does not exist changes nothing.
    void AddNewLayer(qint32 layerID) { IStyleEditorForm_AddNewLayer(layerID); }

    /// Shows the dialog for a quick look, without restoring its view state.
    void Popup() { IStyleEditorForm_Popup(); }

    /// Stores the code that the panel shows into the layer: the number that its text begins with, 0 for none.
    /// Raises 6 for a number beyond a double. A layer that does not exist changes nothing.
    void SetLayerCode(qint32 layerID) { IStyleEditorForm_SetLayerCode(layerID); }

    /// Renames the layer through IStyleEditorClient::RenameLayer and shows the new name at all its nodes.
    void SetLayerName(qint32 layerID, const QString& name) { IStyleEditorForm_SetLayerName(layerID, name); }

    /// The host's renderer styles, read once for the life of the dialog.
    const std::vector<RendererStyle>& LoadRendererStyles() { return IStyleEditorForm_LoadRendererStyles(); }

    /// The filter of the flat list; nullptr when every layer is shown. Not owned.
    const IStyleFilter* Filter() const { return IStyleEditorForm_Filter(); }

    /// Stores the filter and, once the dialog is initialised, reads the flat list anew.
    void Filter(const IStyleFilter* filter) { IStyleEditorForm_Filter(filter); }

    /// Closes the dialog and drops edits that were not applied, without asking. The editor is gone then.
    void UnloadWithoutApply() { IStyleEditorForm_UnloadWithoutApply(); }

    /// Asks IStyleEditorClient::LayerDisplayName for these layers anew and shows the texts at all their
    /// nodes, as when another scale obscures them. Edits, selection, order and a name that is being edited
    /// stay; layers that are not listed are skipped.
    void RefreshLayerNames(const QSet<qint32>& layerIDs) { IStyleEditorForm_RefreshLayerNames(layerIDs); }

    /// True while the controls hold edits that were not applied.
    bool HasPendingEdits() const { return IStyleEditorForm_HasPendingEdits(); }

    /// Reads lists, schemes and panel anew, after the host changed the database by itself. Current nodes and
    /// scroll positions stay, and so do edits that were not applied.
    void Refresh() { IStyleEditorForm_Refresh(); }

protected:
    IStyleEditorForm() = default;

private:
    virtual QString IStyleEditorForm_EditorID() const = 0;
    virtual void IStyleEditorForm_AddNewLayer(qint32 layerID) = 0;
    virtual void IStyleEditorForm_Popup() = 0;
    virtual void IStyleEditorForm_SetLayerCode(qint32 layerID) = 0;
    virtual void IStyleEditorForm_SetLayerName(qint32 layerID, const QString& name) = 0;
    virtual const std::vector<RendererStyle>& IStyleEditorForm_LoadRendererStyles() = 0;
    virtual const IStyleFilter* IStyleEditorForm_Filter() const = 0;
    virtual void IStyleEditorForm_Filter(const IStyleFilter* filter) = 0;
    virtual void IStyleEditorForm_UnloadWithoutApply() = 0;
    virtual void IStyleEditorForm_RefreshLayerNames(const QSet<qint32>& layerIDs) = 0;
    virtual bool IStyleEditorForm_HasPendingEdits() const = 0;
    virtual void IStyleEditorForm_Refresh() = 0;
};

} // namespace Orvane

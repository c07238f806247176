// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/RendererStyle.h>

#include <QSet>
#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class IStyleFilter;

/// What an editor offers the host besides IStyleEditor. Use dynamic_cast from the form or from IStyleEditor
/// to get it.
///
/// The form is a QWidget of the component, which IStyleEditorClient::ShowEditor hands to the host; there it
/// says what the host may do with it and what closes it. Within another widget the form follows the size that
/// its parent gives it, and keeps the size of its window for the next one. Its shortcuts are then valid only
/// while it has the focus, and Escape drops edits but closes nothing. A host that shows the form's title and
/// icon takes them from windowTitle and windowIcon, and their signals.
///
/// All calls are made on the user-interface thread. Errors that the host's own members raise are passed on
/// unchanged. AddNewLayer, Popup and Filter may ask the user about edits that were not applied, and the
/// editor may have been destroyed when they return.
class IStyleEditorForm
{
public:
    virtual ~IStyleEditorForm() = default;
    IStyleEditorForm(const IStyleEditorForm&) = delete;
    IStyleEditorForm& operator=(const IStyleEditorForm&) = delete;

    /// The ID under which the editor was created.
    QString EditorID() const { return IStyleEditorForm_EditorID(); }

    /// Reads one layer from the database and scrolls its node into view in the flat list. Call it for layers
    /// that the host created. Does nothing if the layer does not exist.
    void AddNewLayer(qint32 layerID) { IStyleEditorForm_AddNewLayer(layerID); }

    /// Shows the dialog for a quick look, without restoring its view state.
    void Popup() { IStyleEditorForm_Popup(); }

    /// Stores the code shown in the panel in the layer: the number at the start of its text, 0 if there is
    /// none. Raises 6 (overflow) for a number too large for a double. Does nothing if the layer does not
    /// exist.
    void SetLayerCode(qint32 layerID) { IStyleEditorForm_SetLayerCode(layerID); }

    /// Renames the layer through IStyleEditorClient::RenameLayer and shows the new name on all its nodes.
    void SetLayerName(qint32 layerID, const QString& name) { IStyleEditorForm_SetLayerName(layerID, name); }

    /// The host's renderer styles, read once in the lifetime of the dialog.
    const std::vector<RendererStyle>& LoadRendererStyles() { return IStyleEditorForm_LoadRendererStyles(); }

    /// The filter of the flat list; nullptr when every layer is shown. Not owned.
    const IStyleFilter* Filter() const { return IStyleEditorForm_Filter(); }

    /// Stores the filter and, once the dialog is initialised, reads the flat list again.
    void Filter(const IStyleFilter* filter) { IStyleEditorForm_Filter(filter); }

    /// Closes the dialog and discards edits that were not applied, without asking. The editor is destroyed.
    void UnloadWithoutApply() { IStyleEditorForm_UnloadWithoutApply(); }

    /// Calls IStyleEditorClient::LayerDisplayName for these layers again and shows the texts on all their
    /// nodes, for example after a change of scale has obscured them. Edits, selection, order and a name that
    /// is being edited stay as they are; layers that are not listed are skipped.
    void RefreshLayerNames(const QSet<qint32>& layerIDs) { IStyleEditorForm_RefreshLayerNames(layerIDs); }

    /// True while the controls hold edits that were not applied.
    bool HasPendingEdits() const { return IStyleEditorForm_HasPendingEdits(); }

    /// Reads lists, schemes and panel again after the host itself has changed the database. Current nodes,
    /// scroll positions and edits that were not applied are kept.
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

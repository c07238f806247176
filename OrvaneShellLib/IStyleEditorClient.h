// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/ILayerDatabase.h>
#include <orvane/OrvaneShellLib/IRecordset.h>
#include <orvane/OrvaneShellLib/PromptRequest.h>
#include <orvane/OrvaneShellLib/RendererStyle.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QWidget;

namespace Orvane {

class IShellServices;

/// The host's application object: everything that the component needs from its host. The host owns it and
/// keeps it alive as long as the component's entry object exists. hostkit/StandardClient.h has a ready-made
/// one.
///
/// All calls are made on the user-interface thread. An error that a member raises is passed on unchanged to
/// the host if the host called the component; otherwise the user sees it as a message.
class IStyleEditorClient
{
public:
    virtual ~IStyleEditorClient() = default;
    IStyleEditorClient(const IStyleEditorClient&) = delete;
    IStyleEditorClient& operator=(const IStyleEditorClient&) = delete;

    /// The shell services. The host owns them and keeps them alive as long as the client. Called once, by
    /// Initialise.
    IShellServices* GetShellServices() { return IStyleEditorClient_GetShellServices(); }

    /// Shows the form, or brings it to the front if it is shown already. The host may keep a pointer to it
    /// until EditorClosed.
    ///
    /// The host chooses the place: a window, or a dock, tab, dialog or layout of its own. It may give the
    /// form a parent, move it to another, show, hide and resize it, at any time and with no further call. The
    /// component owns the form and destroys it after EditorClosed. A host that destroys it, with its parent
    /// for example, loses edits that were not applied, and EditorClosed is not called.
    ///
    /// Hiding the form does not close it, nor does hiding or destroying another tab. It is closed by
    /// IStyleEditor::Visible(false) or QWidget::close, which a host calls from its tab's close button, and by
    /// closing any widget that it is in: a dock, an MDI window, a dialog, the main window. The user is then
    /// asked about edits that were not applied. Unless they are settled, the widget stays open, except a
    /// dialog that is accepted or rejected, which is shown again. The form is closed only if the host's own
    /// closeEvent accepts too.
    void ShowEditor(QWidget* form) { IStyleEditorClient_ShowEditor(form); }

    /// The form is about to be hidden or destroyed: the host must stop using its pointer to it, and may hide
    /// what the form is in; to destroy that, use deleteLater. May be called twice for the same form.
    void EditorClosed(QWidget* form) { IStyleEditorClient_EditorClosed(form); }

    /// The text stored under the key, or an empty text. key: "DrawStyleEditor::" followed by the editor's ID.
    QString ReadSetting(QWidget* form, const QString& key)
    {
        return IStyleEditorClient_ReadSetting(form, key);
    }

    /// Stores the text under the key, for the current user, so that it is still there in the next run. May
    /// also be called after EditorClosed. form: nullptr if the host has destroyed it in EditorClosed.
    void WriteSetting(QWidget* form, const QString& key, const QString& value)
    {
        IStyleEditorClient_WriteSetting(form, key, value);
    }

    /// The layer database. The host owns it and keeps it alive as long as the client.
    ILayerDatabase& GetDatabase() { return IStyleEditorClient_Database(); }

    /// A table cursor over Layers, never nullptr. The caller owns it. To read or change a group, the
    /// component takes one cursor for all members and seeks each of them with it; BeginLayerEdit,
    /// LayerChanged and Update are called for each member.
    std::unique_ptr<IRecordset> LayersTable() { return IStyleEditorClient_LayersTable(); }

    /// The scale index (0 to 256) for a value of the MinVisScale or MaxVisScale column. 0 and 256 mean "no
    /// limit".
    qint32 StoredScaleToDialog(double storedScale) const
    {
        return IStyleEditorClient_StoredScaleToDialog(storedScale);
    }

    /// The value to store in a scale column for a scale index; the inverse of StoredScaleToDialog. The value
    /// for a maximum scale is rounded half to even to a 32-bit integer; if it does not fit, applying raises 6
    /// (overflow).
    double DialogScaleToStored(qint32 scaleIndex) const
    {
        return IStyleEditorClient_DialogScaleToStored(scaleIndex);
    }

    /// Puts the current row of a cursor over Layers into edit mode, at least by calling its Edit.
    void BeginLayerEdit(IRecordset& layers) { IStyleEditorClient_BeginLayerEdit(layers); }

    /// The layer's properties were set and are about to be stored. The host may note the layer but must not
    /// read the row yet. If storing fails, or a group's transaction is rolled back, the row stays as it was.
    void LayerChanged(qint32 layerID) { IStyleEditorClient_LayerChanged(layerID); }

    /// The text under which the layer is listed: its name, possibly with "(Obscured)" or "(Suppressed)".
    QString LayerDisplayName(qint32 layerID) { return IStyleEditorClient_LayerDisplayName(layerID); }

    /// Stores a new name for the layer. Does nothing if the layer does not exist.
    void RenameLayer(qint32 layerID, const QString& name) { IStyleEditorClient_RenameLayer(layerID, name); }

    /// Stores a new name for the group. Does nothing if the group does not exist.
    void RenameGroup(qint32 groupID, const QString& name) { IStyleEditorClient_RenameGroup(groupID, name); }

    /// The names of all layer schemes, in the order in which they are listed.
    QStringList GetSchemeNames() { return IStyleEditorClient_GetSchemeNames(); }

    /// The name of the current scheme, one of GetSchemeNames. With any other name the editor cannot save,
    /// revert or delete.
    QString GetCurrentScheme() { return IStyleEditorClient_GetCurrentScheme(); }

    /// Makes the scheme current and gives the layers its saved values. The host redraws the map itself. This
    /// may take long; the component shows a busy pointer.
    void LoadScheme(const QString& name) { IStyleEditorClient_LoadScheme(name); }

    /// Creates a scheme from the layers as they are. name: has no leading or trailing blanks. Raises if the
    /// name is taken. The host decides whether the new scheme becomes the current one.
    void CreateScheme(const QString& name) { IStyleEditorClient_CreateScheme(name); }

    /// Stores the layers' present values in the scheme.
    void SaveScheme(const QString& name) { IStyleEditorClient_SaveScheme(name); }

    /// Removes the scheme. It is never the last one, and another one has been loaded before the call.
    void DeleteScheme(const QString& name) { IStyleEditorClient_DeleteScheme(name); }

    /// Writes all schemes to the startup database, from which new maps start.
    void SaveSchemesToStartup() { IStyleEditorClient_SaveSchemesToStartup(); }

    /// Asks the user for a text or a whole number in a modal prompt.
    PromptAnswer PromptText(const PromptRequest& request) { return IStyleEditorClient_PromptText(request); }

    /// Creates a layer and returns its ID. Returns 0, which no layer has, if the user cancelled; then nothing
    /// happens.
    qint32 CreateLayer() { return IStyleEditorClient_CreateLayer(); }

    /// Deletes the layer; the host may ask the user first. The layer may still exist afterwards.
    void DeleteLayer(qint32 layerID) { IStyleEditorClient_DeleteLayer(layerID); }

    /// True when a layer has that code.
    bool IsCodeAssigned(qint16 code) { return IStyleEditorClient_IsCodeAssigned(code); }

    /// The prefix of every drawing command in a picker's item. Read once per editor.
    QString StyleCommandPrefix() const { return IStyleEditorClient_StyleCommandPrefix(); }

    /// True when layers may be normal, backdrop or hidden. Read once per editor.
    bool QuickModesAllowed() const { return IStyleEditorClient_QuickModesAllowed(); }

    /// The renderer's styles besides "Standard", in the order in which they are listed. Read once per editor.
    std::vector<RendererStyle> RendererStyles() const { return IStyleEditorClient_RendererStyles(); }

    /// The name of the theme that the form edits; empty when it edits the layers themselves.
    QString ThemeName(QWidget* form) const { return IStyleEditorClient_ThemeName(form); }

    /// Redraws the layers passed to LayerChanged since the last call. Called once per apply, after everything
    /// is stored.
    void RedrawMap() { IStyleEditorClient_RedrawMap(); }

protected:
    IStyleEditorClient() = default;

private:
    virtual IShellServices* IStyleEditorClient_GetShellServices() = 0;
    virtual void IStyleEditorClient_ShowEditor(QWidget* form) = 0;
    virtual void IStyleEditorClient_EditorClosed(QWidget* form) = 0;
    virtual QString IStyleEditorClient_ReadSetting(QWidget* form, const QString& key) = 0;
    virtual void IStyleEditorClient_WriteSetting(QWidget* form, const QString& key, const QString& value) = 0;
    virtual ILayerDatabase& IStyleEditorClient_Database() = 0;
    virtual std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() = 0;
    virtual qint32 IStyleEditorClient_StoredScaleToDialog(double storedScale) const = 0;
    virtual double IStyleEditorClient_DialogScaleToStored(qint32 scaleIndex) const = 0;
    virtual void IStyleEditorClient_BeginLayerEdit(IRecordset& layers) = 0;
    virtual void IStyleEditorClient_LayerChanged(qint32 layerID) = 0;
    virtual QString IStyleEditorClient_LayerDisplayName(qint32 layerID) = 0;
    virtual void IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name) = 0;
    virtual void IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name) = 0;
    virtual QStringList IStyleEditorClient_GetSchemeNames() = 0;
    virtual QString IStyleEditorClient_GetCurrentScheme() = 0;
    virtual void IStyleEditorClient_LoadScheme(const QString& name) = 0;
    virtual void IStyleEditorClient_CreateScheme(const QString& name) = 0;
    virtual void IStyleEditorClient_SaveScheme(const QString& name) = 0;
    virtual void IStyleEditorClient_DeleteScheme(const QString& name) = 0;
    virtual void IStyleEditorClient_SaveSchemesToStartup() = 0;
    virtual PromptAnswer IStyleEditorClient_PromptText(const PromptRequest& request) = 0;
    virtual qint32 IStyleEditorClient_CreateLayer() = 0;
    virtual void IStyleEditorClient_DeleteLayer(qint32 layerID) = 0;
    virtual bool IStyleEditorClient_IsCodeAssigned(qint16 code) = 0;
    virtual QString IStyleEditorClient_StyleCommandPrefix() const = 0;
    virtual bool IStyleEditorClient_QuickModesAllowed() const = 0;
    virtual std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const = 0;
    virtual QString IStyleEditorClient_ThemeName(QWidget* form) const = 0;
    virtual void IStyleEditorClient_RedrawMap() = 0;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/IRecordset.h>
#include <OrvaneShellLib/PromptRequest.h>
#include <OrvaneShellLib/RendererStyle.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QWidget;

namespace Orvane {

class IShellServices;

/// The host's application object: everything that the component asks of its host. The host owns it and keeps
/// it alive as long as the component's entry object lives. A ready-made one stands in
/// hostkit/StandardClient.h.
///
/// All calls are made on the user-interface thread. What a member raises is passed on unchanged: to the host
/// where the host called the component, else to the person as a message.
class IStyleEditorClient
{
public:
    virtual ~IStyleEditorClient() = default;
    IStyleEditorClient(const IStyleEditorClient&) = delete;
    IStyleEditorClient& operator=(const IStyleEditorClient&) = delete;

    /// The shell services; the host's, and alive as long as the client. Asked for once, by Initialise.
    IShellServices* GetShellServices() { return IStyleEditorClient_GetShellServices(); }

    /// Shows the form as a window of the host's choosing and keeps it until EditorClosed. The form stays the
    /// component's; it may be given a parent.
    void ShowEditor(QWidget* form) { IStyleEditorClient_ShowEditor(form); }

    /// The form is about to be hidden or unloaded: the host forgets it. May be called twice for one form.
    void EditorClosed(QWidget* form) { IStyleEditorClient_EditorClosed(form); }

    /// The text stored under the key, empty when there is none. key: "DrawStyleEditor::" and the editor's ID.
    QString ReadSetting(QWidget* form, const QString& key)
    {
        return IStyleEditorClient_ReadSetting(form, key);
    }

    /// Stores the text under the key, for this person and beyond this run. Called after EditorClosed, too.
    void WriteSetting(QWidget* form, const QString& key, const QString& value)
    {
        IStyleEditorClient_WriteSetting(form, key, value);
    }

    /// The layer database; the host's, and alive as long as the client.
    ILayerDatabase& Database() { return IStyleEditorClient_Database(); }

    /// A table cursor over Layers, never nullptr. The caller's.
    std::unique_ptr<IRecordset> LayersTable() { return IStyleEditorClient_LayersTable(); }

    /// The scale index (0 to 256) for a value of the MinVisScale or MaxVisScale column. 0 and 256 mean "no
    /// limit".
    qint32 StoredScaleToDialog(double storedScale) const
    {
        return IStyleEditorClient_StoredScaleToDialog(storedScale);
    }

    /// The value to store in a scale column for a scale index; the inverse of StoredScaleToDialog. Of a
    /// maximum it is rounded half to even to 32 bits; beyond them the apply raises 6 (overflow).
    double DialogScaleToStored(qint32 scaleIndex) const
    {
        return IStyleEditorClient_DialogScaleToStored(scaleIndex);
    }

    /// Puts the current row of a cursor over Layers into edit mode, by calling its Edit at least.
    void BeginLayerEdit(IRecordset& layers) { IStyleEditorClient_BeginLayerEdit(layers); }

    /// The layer's properties were set and are stored next. The host may note it, and must not read the row
    /// yet. When storing then fails, or a group's transaction is rolled back, the row stays as it was.
    void LayerChanged(qint32 layerID) { IStyleEditorClient_LayerChanged(layerID); }

    /// The text under which the layer is listed: its name, which may carry "(Obscured)" or "(Suppressed)".
    QString LayerDisplayName(qint32 layerID) { return IStyleEditorClient_LayerDisplayName(layerID); }

    /// Stores a new name of the layer. One that does not exist changes nothing.
    void RenameLayer(qint32 layerID, const QString& name) { IStyleEditorClient_RenameLayer(layerID, name); }

    /// Stores a new name of the group. One that does not exist changes nothing.
    void RenameGroup(qint32 groupID, const QString& name) { IStyleEditorClient_RenameGroup(groupID, name); }

    /// The names of all layer schemes, in the order to list them.
    QStringList GetSchemeNames() { return IStyleEditorClient_GetSchemeNames(); }

    /// The name of the current scheme, one of GetSchemeNames; with any other the editor can neither save,
    /// revert nor delete.
    QString GetCurrentScheme() { return IStyleEditorClient_GetCurrentScheme(); }

    /// Makes the scheme current and gives the layers its saved values. The host redraws by itself. May take
    /// long; the component shows a busy pointer.
    void LoadScheme(const QString& name) { IStyleEditorClient_LoadScheme(name); }

    /// Creates a scheme of that name, which has no blanks around it, from the layers as they are. Raises when
    /// there is one of that name. Whether it becomes the current one is the host's choice.
    void CreateScheme(const QString& name) { IStyleEditorClient_CreateScheme(name); }

    /// Stores the layers as they are into the scheme.
    void SaveScheme(const QString& name) { IStyleEditorClient_SaveScheme(name); }

    /// Removes the scheme; never the last one, and another was loaded before.
    void DeleteScheme(const QString& name) { IStyleEditorClient_DeleteScheme(name); }

    /// Writes all schemes to the startup database, from which new maps begin.
    void SaveSchemesToStartup() { IStyleEditorClient_SaveSchemesToStartup(); }

    /// Asks the person for a text or a whole number, modally.
    PromptAnswer PromptText(const PromptRequest& request) { return IStyleEditorClient_PromptText(request); }

    /// Creates a layer and returns its ID; 0, which no layer has, when the person gave up: then nothing
    /// happens.
    qint32 CreateLayer() { return IStyleEditorClient_CreateLayer(); }

    /// Deletes the layer; the host asks first if it wants to. The layer may be there still afterwards.
    void DeleteLayer(qint32 layerID) { IStyleEditorClient_DeleteLayer(layerID); }

    /// True when a layer has that code.
    bool IsCodeAssigned(qint16 code) { return IStyleEditorClient_IsCodeAssigned(code); }

    /// What precedes every drawing command of a picker's item. Read once an editor.
    QString StyleCommandPrefix() const { return IStyleEditorClient_StyleCommandPrefix(); }

    /// True when layers may be normal, backdrop or hidden. Read once an editor.
    bool QuickModesAllowed() const { return IStyleEditorClient_QuickModesAllowed(); }

    /// The renderer's styles beside "Standard", in the order to list them. Read once an editor.
    std::vector<RendererStyle> RendererStyles() const { return IStyleEditorClient_RendererStyles(); }

    /// The name of the theme that the form edits; empty when it edits the layers themselves.
    QString ThemeName(QWidget* form) const { return IStyleEditorClient_ThemeName(form); }

    /// Redraws what LayerChanged named since the last call. Called once an apply, after all is stored.
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

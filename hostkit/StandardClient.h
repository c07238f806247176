// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IConflictQuestion.h>
#include <orvane/OrvaneShellLib/IEditPermission.h>
#include <orvane/OrvaneShellLib/IEditorWatch.h>
#include <orvane/OrvaneShellLib/IManyLayers.h>
#include <orvane/OrvaneShellLib/IMapNotes.h>
#include <orvane/OrvaneShellLib/INodeCommands.h>
#include <orvane/OrvaneShellLib/ISchemeManager.h>
#include <orvane/OrvaneShellLib/IStyleEditorClient.h>

#include <QCoreApplication>
#include <QSet>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

class HostNotifications;
class LayerNames;
class SettingsStore;
class ILayerStore;
class UndoHistory;
struct LayerDeletion;
struct SchemeDocument;
struct SchemeImport;

/// A ready-made host application object over a layer database: windows, settings, prompts, names, schemes,
/// creating and deleting layers. Derive from it and override only what differs:
///
///     class MyClient : public StandardClient
///     {
///         using StandardClient::StandardClient;
///         std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override { ... }
///     };
///
/// The signals of Notifications() report what happened to the layers. All calls are made on the
/// user-interface thread; errors of the database are passed on unchanged.
class StandardClient : public IStyleEditorClient,
                       public IConflictQuestion,
                       public IEditorWatch,
                       public IManyLayers,
                       public ISchemeManager,
                       public IMapNotes,
                       public INodeCommands,
                       public IEditPermission
{
    Q_DECLARE_TR_FUNCTIONS(StandardClient)

public:
    /// Neither is owned; both outlive this object.
    StandardClient(ILayerStore& database, IShellServices& shellServices);
    ~StandardClient() override;

    /// The signals to connect to; owned by this object.
    HostNotifications& Notifications();
    /// The user's changes to layers, groups and schemes, for undo and redo; a host may add steps of its own.
    /// Owned by this object.
    UndoHistory& History();
    /// Runs act and keeps its changes to the layer database, including the host's own tables, as one step of
    /// the history. act must change everything or nothing, send its own notifications, and return a
    /// description that can follow "Undo", such as "Change of Roads". Errors that it raises are passed on.
    ///
    /// When the step is undone or redone, the signals of Notifications() that fit the changed rows are
    /// emitted, and open editors read the rows again. Undo and redo raise HostError::EditsPending while an
    /// editor has edits that are not applied.
    void RecordStep(const std::function<QString()>& act);

    /// The window in front of which editors and prompts are shown; nullptr for none. Not owned.
    void SetMainWindow(QWidget* mainWindow);
    /// Keeps settings in that file instead of the application's own settings. path: absolute.
    void SetSettingsFile(const QString& path);
    /// The startup database's file, which SaveSchemesToStartup writes; it may be missing. path: absolute.
    void SetStartupFile(const QString& path);

    /// Copies the schemes of the startup database into the map; for a new map, after its layers were created.
    void LoadSchemesFromStartup();
    /// Says whether this host calls ApplySchemeAtOpening, so that the user can choose such a scheme. At first
    /// false. Call it before the first editor is opened.
    void SetAppliesSchemeAtOpening(bool applies);
    /// Loads the scheme that the user has chosen for the opening of the map, in LoadScheme's way: one step of
    /// the history. Call it after the map was opened by the user, before the first editor is. Returns the
    /// scheme; nothing, without having changed anything, if none was chosen, if it is current and the layers
    /// are as it says, or if the map cannot be changed. Raises what LoadScheme raises.
    std::optional<QString> ApplySchemeAtOpening();
    /// True when the layers differ from the saved values of the current scheme.
    bool HasUnsavedSchemeChanges() { return UnsavedSchemeChanges() > 0; }
    /// How many layers differ from the current scheme, or are not in it. Cheap after the first call: only
    /// layers named by the signals of Notifications() since then are compared.
    qsizetype UnsavedSchemeChanges();

    /// Writes the saved values of the scheme to a file, as described in SchemeFile.h. Raises
    /// HostError::UnknownScheme and SchemeFileUnwritable.
    void ExportScheme(const QString& name, const QString& path);
    /// Reads a scheme file as SchemeFile::Read does, with progress and Cancel; raises its errors and
    /// UserCancelled.
    SchemeDocument ReadSchemeFile(const QString& path);
    /// Stores the scheme in the map in one transaction, replacing an existing scheme of that name, and
    /// reports what did not match. The layers and the current scheme stay as they are.
    SchemeImport ImportScheme(const SchemeDocument& scheme);
    /// Stores the scheme of a file in the same way, whatever the size of the file, with progress and Cancel.
    /// mayImport: called with the scheme's name before anything is changed, and may ask the user; if it
    /// returns false, nothing is done and nothing returned. Raises the errors of SchemeFile::Read and of the
    /// database, and UserCancelled; the map is then as before.
    std::optional<SchemeImport>
    ImportSchemeFile(const QString& path, const std::function<bool(const QString& name)>& mayImport);

    /// Refreshes the listed names of these layers in every open editor. For a host whose LayerDisplayName
    /// depends on more than the name: call it when the result for these layers has changed.
    void RefreshListedNames(const QSet<qint32>& layerIDs);
    /// Makes every open editor read what is stored; edits that are not applied stay. Call it after the layer
    /// database was changed without this object. Raises the first error after all editors have been
    /// refreshed.
    void RefreshEditors();
    /// The same after nothing but columns of these layers were changed without this object: only these are
    /// read, which is fast for a few layers among many. Editors of a component with a contract before 1.5
    /// read everything.
    void RefreshEditors(const QSet<qint32>& layerIDs);
    /// Whether editors may keep notes in the layer database. At first true. Set it to false if the notes
    /// would be lost sooner than the layers that they are about; see LayerList::Notes.
    void SetKeepsNotes(bool keeps);
    /// Forgets the layers' names and which layers differ from the scheme. Call it after layers were added or
    /// changed without this object.
    void InvalidateLayerNames();

protected:
    IShellServices* IStyleEditorClient_GetShellServices() override;
    /// Shows the form as a window in front of the main window; a form that a host has put into another widget
    /// is only shown and raised. A host that shows the form in its own way need not call this.
    void IStyleEditorClient_ShowEditor(QWidget* form) override;
    void IStyleEditorClient_EditorClosed(QWidget* form) override;
    QString IStyleEditorClient_ReadSetting(QWidget* form, const QString& key) override;
    void IStyleEditorClient_WriteSetting(QWidget* form, const QString& key, const QString& value) override;
    ILayerDatabase& IStyleEditorClient_Database() override;
    std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override;
    /// Scales are stored as described in StoredScale.h.
    qint32 IStyleEditorClient_StoredScaleToDialog(double storedScale) const override;
    double IStyleEditorClient_DialogScaleToStored(qint32 scaleIndex) const override;
    void IStyleEditorClient_BeginLayerEdit(IRecordset& layers) override;
    /// Notes the layer until RedrawMap.
    void IStyleEditorClient_LayerChanged(qint32 layerID) override;
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override;
    void IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name) override;
    void IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name) override;
    /// Schemes are stored as described in LayerSchemes.h.
    QStringList IStyleEditorClient_GetSchemeNames() override;
    QString IStyleEditorClient_GetCurrentScheme() override;
    void IStyleEditorClient_LoadScheme(const QString& name) override;
    void IStyleEditorClient_CreateScheme(const QString& name) override;
    void IStyleEditorClient_SaveScheme(const QString& name) override;
    void IStyleEditorClient_DeleteScheme(const QString& name) override;
    /// Raises HostError::NoStartupDatabase if no startup file was set.
    void IStyleEditorClient_SaveSchemesToStartup() override;
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest& request) override;
    /// Creates a layer as LayerFactory::Create does.
    qint32 IStyleEditorClient_CreateLayer() override;
    /// Calls ConfirmDeletion, then removes the layer's rows. A system layer is not deleted, and the user is
    /// not asked.
    void IStyleEditorClient_DeleteLayer(qint32 layerID) override;
    bool IStyleEditorClient_IsCodeAssigned(qint16 code) override;
    /// "~"
    QString IStyleEditorClient_StyleCommandPrefix() const override;
    /// true
    bool IStyleEditorClient_QuickModesAllowed() const override;
    /// None besides "Standard".
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override;
    /// Empty: editors edit the layers themselves.
    QString IStyleEditorClient_ThemeName(QWidget* form) const override;
    /// Emits LayersChanged with the layers noted since the last call, if there are any.
    void IStyleEditorClient_RedrawMap() override;
    /// Asks in a message box that names each value.
    ConflictChoice IConflictQuestion_AskAboutConflicts(
        QWidget* form, const QString& node, const std::vector<ConflictingEdit>& edits) override;
    /// Knows the editor from now on, whoever shows it: undo, RefreshEditors and RefreshListedNames reach it.
    /// Emits EditorShown for an editor that was not known.
    void IEditorWatch_EditorShown(QWidget* form) final;
    /// Emits EditorClosed for an editor that was known.
    void IEditorWatch_EditorEnded(QWidget* form) final;

    /// Calls ConfirmDeletion once for all, then removes the rows of all layers as one step. System layers and
    /// layers that do not exist are left out.
    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override;
    /// A window that lists, renames, copies, deletes, exports, imports and compares the schemes; each change
    /// is one step of the history. It remembers its size in the settings.
    void ISchemeManager_ManageSchemes(QWidget* form) override;

    /// A sentence if the layer database cannot be changed.
    QString IEditPermission_WhyNotEdited() const override;

    /// As set by SetKeepsNotes; false if the layer database cannot be changed.
    bool IMapNotes_KeepsNotes() const override;
    /// Notes are stored in the table MapNotes of the layer database, which the first note creates.
    QString IMapNotes_Note(const QString& key) override;
    void IMapNotes_SetNote(const QString& key, const QString& text) override;

    /// None.
    std::vector<NodeCommand> INodeCommands_Commands(QWidget* form) override;
    /// Empty: possible.
    QString INodeCommands_WhyNot(const QString& id, const std::vector<qint32>& layerIDs) override;
    /// Does nothing.
    void INodeCommands_Run(QWidget* form, const QString& id, const std::vector<qint32>& layerIDs) override;

    /// Asks the user whether to delete the layer, or several at once, and everything that is removed with
    /// them; true deletes them.
    virtual bool ConfirmDeletion(const LayerDeletion& deletion);

    /// The window to show a question in front of: the active one, otherwise the main window; nullptr for
    /// none.
    QWidget* DialogParent() const;
    /// The layer database given to the constructor.
    ILayerStore& LayerDatabase() const;

private:
    struct Parts;

    ILayerStore& m_database;
    IShellServices& m_shellServices;
    std::unique_ptr<Parts> m_parts;
};

} // namespace Orvane

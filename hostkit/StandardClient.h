// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QCoreApplication>
#include <QSet>

#include <functional>
#include <memory>

namespace Orvane {

class HostNotifications;
class LayerNames;
class SettingsStore;
class SqliteLayerDatabase;
class UndoHistory;
struct LayerDeletion;
struct SchemeDocument;
struct SchemeImport;

/// A ready-made host application object over a layer database: windows, settings, prompts, names, schemes,
/// creating and deleting layers. Derive and override only what is your own:
///
///     class MyClient : public StandardClient
///     {
///         using StandardClient::StandardClient;
///         std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override { ... }
///     };
///
/// What happened to the layers is told by the signals of Notifications(). All calls are made on the
/// user-interface thread; what the database raises is passed on unchanged.
class StandardClient : public IStyleEditorClient
{
    Q_DECLARE_TR_FUNCTIONS(StandardClient)

public:
    /// Neither is owned; both outlive this object.
    StandardClient(SqliteLayerDatabase& database, IShellServices& shellServices);
    ~StandardClient() override;

    /// The signals to connect to; owned by this object.
    HostNotifications& Notifications();
    /// What the person did to layers, groups and schemes, to be undone; a host may add steps of its own.
    /// Owned by this object.
    UndoHistory& History();
    /// Does the act and keeps what it changed in the layer database, the host's own tables included, as one
    /// step of the history. act: changes all or nothing, tells it by itself, and answers what it did in words
    /// that can follow "Undo": "Change of Roads". What it raises is passed on.
    ///
    /// When the step is undone or redone, it is told by the signals of Notifications() that suit the rows,
    /// and open editors read them anew. Raises HostError::EditsPending then while an editor holds edits.
    void RecordStep(const std::function<QString()>& act);

    /// The window in front of which editors and prompts are shown; nullptr for none. Not owned.
    void SetMainWindow(QWidget* mainWindow);
    /// Keeps settings in that file instead of the application's own settings. path: absolute.
    void SetSettingsFile(const QString& path);
    /// The startup database's file, which SaveSchemesToStartup writes; it may be missing. path: absolute.
    void SetStartupFile(const QString& path);

    /// Gives the map the schemes of the startup database; for a new map, once it has its layers.
    void LoadSchemesFromStartup();
    /// True when the layers differ from the saved values of the current scheme.
    bool HasUnsavedSchemeChanges() { return UnsavedSchemeChanges() > 0; }
    /// How many layers do, or are not known to it. Cheap after the first time: only layers that the signals
    /// of Notifications() named since are compared.
    qsizetype UnsavedSchemeChanges();

    /// Writes the saved values of the scheme into a file, as SchemeFile.h says. Raises
    /// HostError::UnknownScheme and SchemeFileUnwritable.
    void ExportScheme(const QString& name, const QString& path);
    /// Stores the scheme into the map, where it replaces one of its name, and reports what did not match. The
    /// layers and the current scheme stay as they are. In one transaction.
    SchemeImport ImportScheme(const SchemeDocument& scheme);

    /// Shows the listed names of these layers anew in every open editor: for a host whose LayerDisplayName
    /// depends on more than the name, when its answer for them is another one.
    void RefreshListedNames(const QSet<qint32>& layerIDs);
    /// Forgets the layers' names, and which of them differ from the scheme; after layers were added or
    /// changed without this object.
    void InvalidateLayerNames();

protected:
    IShellServices* IStyleEditorClient_GetShellServices() override;
    /// Shows the form as a window in front of the main window.
    void IStyleEditorClient_ShowEditor(QWidget* form) override;
    void IStyleEditorClient_EditorClosed(QWidget* form) override;
    QString IStyleEditorClient_ReadSetting(QWidget* form, const QString& key) override;
    void IStyleEditorClient_WriteSetting(QWidget* form, const QString& key, const QString& value) override;
    ILayerDatabase& IStyleEditorClient_Database() override;
    std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override;
    /// Scales are stored as StoredScale.h says.
    qint32 IStyleEditorClient_StoredScaleToDialog(double storedScale) const override;
    double IStyleEditorClient_DialogScaleToStored(qint32 scaleIndex) const override;
    void IStyleEditorClient_BeginLayerEdit(IRecordset& layers) override;
    /// Notes the layer until RedrawMap.
    void IStyleEditorClient_LayerChanged(qint32 layerID) override;
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override;
    void IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name) override;
    void IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name) override;
    /// Schemes are kept as LayerSchemes.h says.
    QStringList IStyleEditorClient_GetSchemeNames() override;
    QString IStyleEditorClient_GetCurrentScheme() override;
    void IStyleEditorClient_LoadScheme(const QString& name) override;
    void IStyleEditorClient_CreateScheme(const QString& name) override;
    void IStyleEditorClient_SaveScheme(const QString& name) override;
    void IStyleEditorClient_DeleteScheme(const QString& name) override;
    /// Raises HostError::NoStartupDatabase when no startup file was named.
    void IStyleEditorClient_SaveSchemesToStartup() override;
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest& request) override;
    /// Creates a layer as LayerFactory::Create does.
    qint32 IStyleEditorClient_CreateLayer() override;
    /// Asks ConfirmDeletion, then removes the layer's rows. A system layer stays, without a question.
    void IStyleEditorClient_DeleteLayer(qint32 layerID) override;
    bool IStyleEditorClient_IsCodeAssigned(qint16 code) override;
    /// "~"
    QString IStyleEditorClient_StyleCommandPrefix() const override;
    /// true
    bool IStyleEditorClient_QuickModesAllowed() const override;
    /// None beside "Standard".
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override;
    /// Empty: editors edit the layers themselves.
    QString IStyleEditorClient_ThemeName(QWidget* form) const override;
    /// Emits LayersChanged with the layers noted since the last call, if there are any.
    void IStyleEditorClient_RedrawMap() override;

    /// Asks the person whether the layer is to be deleted with all that goes with it; true deletes it.
    virtual bool ConfirmDeletion(const LayerDeletion& deletion);

    /// The window to show a question in front of: the active one, else the main window; nullptr for none.
    QWidget* DialogParent() const;
    /// The layer database given to the constructor.
    SqliteLayerDatabase& LayerDatabase() const;

private:
    struct Parts;

    SqliteLayerDatabase& m_database;
    IShellServices& m_shellServices;
    std::unique_ptr<Parts> m_parts;
};

} // namespace Orvane

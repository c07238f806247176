// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/ForwardingClient.h>

#include <memory>

namespace Orvane {

class CallTrace;

/// Traces every call that the component makes to its host: to the client, as "client.Member(...)", to its
/// layer database with all cursors, and to its shell services. Together with TracingLibrary it shows
/// everything that passes between host and component:
///
///     CallTrace trace(file);
///     TracingClient tracedClient(client, trace);
///     StyleEditorPlugin plugin;
///     TracingLibrary library(plugin.Library(), trace);
///     library.Initialise(&tracedClient);
class TracingClient : public ForwardingClient
{
public:
    /// Neither is owned; both outlive this object.
    TracingClient(IStyleEditorClient& client, CallTrace& trace);
    ~TracingClient() override;

protected:
    IShellServices* IStyleEditorClient_GetShellServices() override;
    void IStyleEditorClient_ShowEditor(QWidget* form) override;
    void IStyleEditorClient_EditorClosed(QWidget* form) override;
    QString IStyleEditorClient_ReadSetting(QWidget* form, const QString& key) override;
    void IStyleEditorClient_WriteSetting(QWidget* form, const QString& key, const QString& value) override;
    ILayerDatabase& IStyleEditorClient_Database() override;
    std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override;
    qint32 IStyleEditorClient_StoredScaleToDialog(double storedScale) const override;
    double IStyleEditorClient_DialogScaleToStored(qint32 scaleIndex) const override;
    void IStyleEditorClient_BeginLayerEdit(IRecordset& layers) override;
    void IStyleEditorClient_LayerChanged(qint32 layerID) override;
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override;
    void IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name) override;
    void IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name) override;
    QStringList IStyleEditorClient_GetSchemeNames() override;
    QString IStyleEditorClient_GetCurrentScheme() override;
    void IStyleEditorClient_LoadScheme(const QString& name) override;
    void IStyleEditorClient_CreateScheme(const QString& name) override;
    void IStyleEditorClient_SaveScheme(const QString& name) override;
    void IStyleEditorClient_DeleteScheme(const QString& name) override;
    void IStyleEditorClient_SaveSchemesToStartup() override;
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest& request) override;
    ConflictChoice IConflictQuestion_AskAboutConflicts(
        QWidget* form, const QString& node, const std::vector<ConflictingEdit>& edits) override;
    qint32 IStyleEditorClient_CreateLayer() override;
    void IStyleEditorClient_DeleteLayer(qint32 layerID) override;
    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override;
    double IMapScale_CurrentScale() const override;
    void ISchemeManager_ManageSchemes(QWidget* form) override;
    QString IEditPermission_WhyNotEdited() const override;
    bool IMapNotes_KeepsNotes() const override;
    QString IMapNotes_Note(const QString& key) override;
    void IMapNotes_SetNote(const QString& key, const QString& text) override;
    std::vector<NodeCommand> INodeCommands_Commands(QWidget* form) override;
    QString INodeCommands_WhyNot(const QString& id, const std::vector<qint32>& layerIDs) override;
    void INodeCommands_Run(QWidget* form, const QString& id, const std::vector<qint32>& layerIDs) override;
    QString ILayerSource_Source(qint32 layerID) override;
    void IChoiceWatch_LayersChosen(QWidget* form, const std::vector<qint32>& layerIDs) override;
    bool IStyleEditorClient_IsCodeAssigned(qint16 code) override;
    QString IStyleEditorClient_StyleCommandPrefix() const override;
    bool IStyleEditorClient_QuickModesAllowed() const override;
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override;
    QString IStyleEditorClient_ThemeName(QWidget* form) const override;
    void IStyleEditorClient_RedrawMap() override;

private:
    CallTrace& m_trace;
    std::unique_ptr<IShellServices> m_shellServices; // created when the component asks for it
    std::unique_ptr<ILayerDatabase> m_database; // created when the component asks for it
};

} // namespace Orvane

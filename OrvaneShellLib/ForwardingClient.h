// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IChoiceWatch.h>
#include <orvane/OrvaneShellLib/IConflictQuestion.h>
#include <orvane/OrvaneShellLib/IEditPermission.h>
#include <orvane/OrvaneShellLib/IEditorWatch.h>
#include <orvane/OrvaneShellLib/ILayerSource.h>
#include <orvane/OrvaneShellLib/IManyLayers.h>
#include <orvane/OrvaneShellLib/IMapNotes.h>
#include <orvane/OrvaneShellLib/IMapScale.h>
#include <orvane/OrvaneShellLib/INodeCommands.h>
#include <orvane/OrvaneShellLib/ISchemeManager.h>
#include <orvane/OrvaneShellLib/IStyleEditorClient.h>

namespace Orvane {

/// Passes every call on to another client. Derive from it and override the member to watch, change or block:
///
///     class QuietClient : public ForwardingClient
///     {
///         using ForwardingClient::ForwardingClient;
///         void IStyleEditorClient_RedrawMap() override { }
///     };
class ForwardingClient : public IStyleEditorClient,
                         public IConflictQuestion,
                         public IEditorWatch,
                         public IManyLayers,
                         public IMapScale,
                         public ISchemeManager,
                         public IMapNotes,
                         public INodeCommands,
                         public ILayerSource,
                         public IChoiceWatch,
                         public IEditPermission
{
public:
    /// client: not owned; outlives this object.
    explicit ForwardingClient(IStyleEditorClient& client) : m_client(client) { }

protected:
    IShellServices* IStyleEditorClient_GetShellServices() override { return m_client.GetShellServices(); }
    void IStyleEditorClient_ShowEditor(QWidget* form) override { m_client.ShowEditor(form); }
    void IStyleEditorClient_EditorClosed(QWidget* form) override { m_client.EditorClosed(form); }
    QString IStyleEditorClient_ReadSetting(QWidget* form, const QString& key) override
    {
        return m_client.ReadSetting(form, key);
    }
    void IStyleEditorClient_WriteSetting(QWidget* form, const QString& key, const QString& value) override
    {
        m_client.WriteSetting(form, key, value);
    }
    ILayerDatabase& IStyleEditorClient_Database() override { return m_client.GetDatabase(); }
    std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override { return m_client.LayersTable(); }
    qint32 IStyleEditorClient_StoredScaleToDialog(double storedScale) const override
    {
        return m_client.StoredScaleToDialog(storedScale);
    }
    double IStyleEditorClient_DialogScaleToStored(qint32 scaleIndex) const override
    {
        return m_client.DialogScaleToStored(scaleIndex);
    }
    void IStyleEditorClient_BeginLayerEdit(IRecordset& layers) override { m_client.BeginLayerEdit(layers); }
    void IStyleEditorClient_LayerChanged(qint32 layerID) override { m_client.LayerChanged(layerID); }
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override
    {
        return m_client.LayerDisplayName(layerID);
    }
    void IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name) override
    {
        m_client.RenameLayer(layerID, name);
    }
    void IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name) override
    {
        m_client.RenameGroup(groupID, name);
    }
    QStringList IStyleEditorClient_GetSchemeNames() override { return m_client.GetSchemeNames(); }
    QString IStyleEditorClient_GetCurrentScheme() override { return m_client.GetCurrentScheme(); }
    void IStyleEditorClient_LoadScheme(const QString& name) override { m_client.LoadScheme(name); }
    void IStyleEditorClient_CreateScheme(const QString& name) override { m_client.CreateScheme(name); }
    void IStyleEditorClient_SaveScheme(const QString& name) override { m_client.SaveScheme(name); }
    void IStyleEditorClient_DeleteScheme(const QString& name) override { m_client.DeleteScheme(name); }
    void IStyleEditorClient_SaveSchemesToStartup() override { m_client.SaveSchemesToStartup(); }
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest& request) override
    {
        return m_client.PromptText(request);
    }
    qint32 IStyleEditorClient_CreateLayer() override { return m_client.CreateLayer(); }
    void IStyleEditorClient_DeleteLayer(qint32 layerID) override { m_client.DeleteLayer(layerID); }
    bool IStyleEditorClient_IsCodeAssigned(qint16 code) override { return m_client.IsCodeAssigned(code); }
    QString IStyleEditorClient_StyleCommandPrefix() const override { return m_client.StyleCommandPrefix(); }
    bool IStyleEditorClient_QuickModesAllowed() const override { return m_client.QuickModesAllowed(); }
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override
    {
        return m_client.RendererStyles();
    }
    QString IStyleEditorClient_ThemeName(QWidget* form) const override { return m_client.ThemeName(form); }
    void IStyleEditorClient_RedrawMap() override { m_client.RedrawMap(); }
    /// Overwrite if the other client does not ask.
    ConflictChoice IConflictQuestion_AskAboutConflicts(
        QWidget* form, const QString& node, const std::vector<ConflictingEdit>& edits) override
    {
        auto* question = dynamic_cast<IConflictQuestion*>(&m_client);
        return question ? question->AskAboutConflicts(form, node, edits) : ConflictChoice::Overwrite;
    }
    /// Nothing happens if the other client does not watch.
    void IEditorWatch_EditorShown(QWidget* form) override
    {
        if (auto* watch = dynamic_cast<IEditorWatch*>(&m_client))
            watch->EditorShown(form);
    }
    void IEditorWatch_EditorEnded(QWidget* form) override
    {
        if (auto* watch = dynamic_cast<IEditorWatch*>(&m_client))
            watch->EditorEnded(form);
    }

    /// One after the other if the other client cannot do it at once.
    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override
    {
        if (auto* many = dynamic_cast<IManyLayers*>(&m_client)) {
            many->DeleteLayers(layerIDs);
            return;
        }
        for (const qint32 layerID : layerIDs)
            m_client.DeleteLayer(layerID);
    }
    /// False if the other client has no such window.
    bool ISchemeManager_CanManageSchemes() const override
    {
        const auto* manager = dynamic_cast<const ISchemeManager*>(&m_client);
        return manager && manager->CanManageSchemes();
    }
    /// Nothing happens if the other client has no such window. What the user does in that window does not
    /// pass this client.
    void ISchemeManager_ManageSchemes(QWidget* form) override
    {
        if (auto* manager = dynamic_cast<ISchemeManager*>(&m_client))
            manager->ManageSchemes(form);
    }

    /// 0 if the other client does not know it.
    double IMapScale_CurrentScale() const override
    {
        const auto* scale = dynamic_cast<const IMapScale*>(&m_client);
        return scale ? scale->CurrentScale() : 0;
    }

    /// Empty if the other client does not tell.
    QString IEditPermission_WhyNotEdited() const override
    {
        const auto* permission = dynamic_cast<const IEditPermission*>(&m_client);
        return permission ? permission->WhyNotEdited() : QString();
    }

    /// False if the other client keeps none.
    bool IMapNotes_KeepsNotes() const override
    {
        const auto* notes = dynamic_cast<const IMapNotes*>(&m_client);
        return notes && notes->KeepsNotes();
    }
    /// Empty if the other client keeps none.
    QString IMapNotes_Note(const QString& key) override
    {
        auto* notes = dynamic_cast<IMapNotes*>(&m_client);
        return notes ? notes->Note(key) : QString();
    }
    /// Nothing happens if the other client keeps none.
    void IMapNotes_SetNote(const QString& key, const QString& text) override
    {
        if (auto* notes = dynamic_cast<IMapNotes*>(&m_client))
            notes->SetNote(key, text);
    }

    /// None if the other client has none.
    std::vector<NodeCommand> INodeCommands_Commands(QWidget* form) override
    {
        auto* commands = dynamic_cast<INodeCommands*>(&m_client);
        return commands ? commands->Commands(form) : std::vector<NodeCommand>();
    }
    QString INodeCommands_WhyNot(const QString& id, const std::vector<qint32>& layerIDs) override
    {
        auto* commands = dynamic_cast<INodeCommands*>(&m_client);
        return commands ? commands->WhyNot(id, layerIDs) : QString();
    }
    void INodeCommands_Run(QWidget* form, const QString& id, const std::vector<qint32>& layerIDs) override
    {
        if (auto* commands = dynamic_cast<INodeCommands*>(&m_client))
            commands->Run(form, id, layerIDs);
    }

    /// Empty if the other client does not know it.
    QString ILayerSource_Source(qint32 layerID) override
    {
        auto* source = dynamic_cast<ILayerSource*>(&m_client);
        return source ? source->Source(layerID) : QString();
    }

    /// Nothing happens if the other client does not want to know it; the component tells it all the same.
    void IChoiceWatch_LayersChosen(QWidget* form, const std::vector<qint32>& layerIDs) override
    {
        if (auto* watch = dynamic_cast<IChoiceWatch*>(&m_client))
            watch->LayersChosen(form, layerIDs);
    }

    /// The wrapped client, for use in overrides.
    IStyleEditorClient& Wrapped() const { return m_client; }

private:
    IStyleEditorClient& m_client;
};

} // namespace Orvane

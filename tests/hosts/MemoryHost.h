// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/CallLog.h"
#include "hosts/LayerSpecs.h"
#include "hosts/MemoryShellServices.h"
#include "hosts/RecordingDatabase.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <deque>
#include <functional>
#include <map>
#include <memory>

namespace Orvane::Testing {

class MemoryStore;

/// A host in memory: layers in a database without a file, settings and schemes in containers, scripted
/// answers of the user, and a log of all calls.
///
///     MemoryHost host;
///     host.AddLayer({.id = 17, .name = "Roads"});
///     host.AddGroup({.id = 3, .name = "Transport", .members = {17}});
///     ...
///     EXPECT_THAT(host.Calls(), ElementsAre("RedrawMap()"));
///
/// Calls of the builders and of the readers of stored values are not logged.
class MemoryHost : public IStyleEditorClient
{
public:
    MemoryHost();
    ~MemoryHost() override;

    void AddLayer(const LayerSpec& layer);
    void AddGroup(const GroupSpec& group);
    /// ordering: of the layer within the group. Neither needs to exist.
    void AddMember(qint32 groupID, qint32 layerID, qint32 ordering = 0);
    /// Removes the row, but not the rows that refer to it.
    void RemoveLayerRow(qint32 layerID);
    void RemoveGroupRow(qint32 groupID);
    /// Removes the layer from all groups.
    void RemoveMembers(qint32 layerID);
    /// Removes the row and the rows that refer to it.
    void RemoveGroup(qint32 groupID);
    void SetLayerColumn(qint32 layerID, const char* column, const Value& value);
    void SetGroupColumn(qint32 groupID, const char* column, const Value& value);
    /// The stored value; Empty when there is no such row.
    Value LayerColumn(qint32 layerID, const char* column);
    Value GroupColumn(qint32 groupID, const char* column);

    /// All calls, those to the shell services and to the database included.
    const CallLog& Log() const { return m_log; }
    /// The calls to members of IStyleEditorClient.
    QStringList Calls() const { return m_log.Of(CallKind::Client); }
    /// The query texts and table names that were opened.
    QStringList Queries() const;
    void ClearLog() { m_log.Clear(); }

    MemoryShellServices& Shell() { return m_shell; }
    /// The database as it is, without the log.
    ILayerDatabase& PlainDatabase();

    // What the host answers.

    std::map<QString, QString> settings;
    QStringList schemeNames{QStringLiteral("Standard")};
    QString currentScheme = QStringLiteral("Standard");
    QString themeName;
    QString styleCommandPrefix;
    bool quickModesAllowed = true;
    std::vector<RendererStyle> rendererStyles;
    /// The answers of PromptText, taken from the front; when none is left the prompt is cancelled.
    std::deque<PromptAnswer> promptAnswers;
    /// Called while PromptText waits for the user.
    std::function<void()> onPrompt;
    /// The layers that CreateLayer makes, taken from the front; when none is left, "New Layer" with the next
    /// ID and code.
    std::deque<LayerSpec> layersToCreate;
    /// The display names of layers that differ from their names.
    std::map<qint32, QString> displayNames;

    /// The requests to PromptText, in order.
    std::vector<PromptRequest> promptRequests;

    // Functions that are called besides the logging of a call.

    std::function<void(QWidget* form)> OnShowEditor;
    std::function<void(QWidget* form)> OnEditorClosed;
    std::function<void(const QString& scheme)> OnLoadScheme;

private:
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
    qint32 IStyleEditorClient_CreateLayer() override;
    void IStyleEditorClient_DeleteLayer(qint32 layerID) override;
    bool IStyleEditorClient_IsCodeAssigned(qint16 code) override;
    QString IStyleEditorClient_StyleCommandPrefix() const override;
    bool IStyleEditorClient_QuickModesAllowed() const override;
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override;
    QString IStyleEditorClient_ThemeName(QWidget* form) const override;
    void IStyleEditorClient_RedrawMap() override;

    void Note(const char* member, const std::vector<Value>& arguments = {}) const;
    LayerSpec OrdinaryNewLayer();

    mutable CallLog m_log; // const members are logged too
    std::unique_ptr<MemoryStore> m_store;
    RecordingDatabase m_database;
    MemoryShellServices m_shell;
};

} // namespace Orvane::Testing

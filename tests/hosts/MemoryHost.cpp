// SPDX-License-Identifier: MIT
#include "hosts/MemoryHost.h"

#include "hosts/MemoryStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <cmath>

namespace Orvane::Testing {

MemoryHost::MemoryHost()
    : m_store(std::make_unique<MemoryStore>()), m_database(m_store->Database(), m_log), m_shell(m_log)
{
}

MemoryHost::~MemoryHost() = default;

void MemoryHost::AddLayer(const LayerSpec& layer)
{
    m_store->AddLayer(layer);
}

void MemoryHost::AddGroup(const GroupSpec& group)
{
    m_store->AddGroup(group);
    for (std::size_t index = 0; index < group.members.size(); ++index)
        AddMember(group.id, group.members[index], qint32(index + 1));
}

void MemoryHost::AddMember(qint32 groupID, qint32 layerID, qint32 ordering)
{
    m_store->AddMember(groupID, layerID, ordering);
}

void MemoryHost::RemoveLayerRow(qint32 layerID)
{
    m_store->RemoveRows("Layers", "LayerID", layerID);
}

void MemoryHost::RemoveGroupRow(qint32 groupID)
{
    m_store->RemoveRows("LayerGroups", "ID", groupID);
}

void MemoryHost::RemoveMembers(qint32 layerID)
{
    m_store->RemoveRows("LayerGroupMembers", "LayerID", layerID);
}

void MemoryHost::RemoveGroup(qint32 groupID)
{
    m_store->RemoveRows("LayerGroupMembers", "GroupID", groupID);
    RemoveGroupRow(groupID);
}

void MemoryHost::SetLayerColumn(qint32 layerID, const char* column, const Value& value)
{
    m_store->SetLayerColumn(layerID, column, value);
}

void MemoryHost::SetGroupColumn(qint32 groupID, const char* column, const Value& value)
{
    m_store->SetGroupColumn(groupID, column, value);
}

Value MemoryHost::LayerColumn(qint32 layerID, const char* column)
{
    return m_store->LayerColumn(layerID, column);
}

Value MemoryHost::GroupColumn(qint32 groupID, const char* column)
{
    return m_store->GroupColumn(groupID, column);
}

QStringList MemoryHost::Queries() const
{
    QStringList sources = m_log.CallsTo(QStringLiteral("OpenRecordset"));
    const qsizetype before = QStringLiteral("OpenRecordset(").size();
    for (QString& source : sources)
        source = source.mid(before, source.size() - before - 1);
    return sources;
}

ILayerDatabase& MemoryHost::PlainDatabase()
{
    return m_store->Database();
}

void MemoryHost::Note(const char* member, const std::vector<Value>& arguments) const
{
    m_log.Add(CallKind::Client, member, arguments);
}

IShellServices* MemoryHost::IStyleEditorClient_GetShellServices()
{
    Note("GetShellServices");
    return &m_shell;
}

void MemoryHost::IStyleEditorClient_ShowEditor(QWidget* form)
{
    Note("ShowEditor");
    if (OnShowEditor)
        OnShowEditor(form);
}

void MemoryHost::IStyleEditorClient_EditorClosed(QWidget* form)
{
    Note("EditorClosed");
    if (OnEditorClosed)
        OnEditorClosed(form);
}

QString MemoryHost::IStyleEditorClient_ReadSetting(QWidget*, const QString& key)
{
    Note("ReadSetting", {key});
    const auto setting = settings.find(key);
    return setting == settings.end() ? QString() : setting->second;
}

void MemoryHost::IStyleEditorClient_WriteSetting(QWidget*, const QString& key, const QString& value)
{
    Note("WriteSetting", {key, value});
    settings[key] = value;
}

ILayerDatabase& MemoryHost::IStyleEditorClient_Database()
{
    return m_database;
}

std::unique_ptr<IRecordset> MemoryHost::IStyleEditorClient_LayersTable()
{
    Note("LayersTable");
    return RecordCursor(PlainDatabase().OpenRecordset(QStringLiteral("Layers")), m_log);
}

qint32 MemoryHost::IStyleEditorClient_StoredScaleToDialog(double storedScale) const
{
    Note("StoredScaleToDialog", {storedScale});
    return qint32(std::clamp(std::round(storedScale / 1000.0), 0.0, 256.0));
}

double MemoryHost::IStyleEditorClient_DialogScaleToStored(qint32 scaleIndex) const
{
    Note("DialogScaleToStored", {scaleIndex});
    return 1000.0 * scaleIndex;
}

void MemoryHost::IStyleEditorClient_BeginLayerEdit(IRecordset& layers)
{
    Note("BeginLayerEdit");
    layers.Edit();
}

void MemoryHost::IStyleEditorClient_LayerChanged(qint32 layerID)
{
    Note("LayerChanged", {layerID});
}

QString MemoryHost::IStyleEditorClient_LayerDisplayName(qint32 layerID)
{
    Note("LayerDisplayName", {layerID});
    const auto text = displayNames.find(layerID);
    return text != displayNames.end() ? text->second : ToTextOrNone(LayerColumn(layerID, "Name"));
}

void MemoryHost::IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name)
{
    Note("RenameLayer", {layerID, name});
    SetLayerColumn(layerID, "Name", name);
}

void MemoryHost::IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name)
{
    Note("RenameGroup", {groupID, name});
    SetGroupColumn(groupID, "Name", name);
}

QStringList MemoryHost::IStyleEditorClient_GetSchemeNames()
{
    Note("GetSchemeNames");
    return schemeNames;
}

QString MemoryHost::IStyleEditorClient_GetCurrentScheme()
{
    Note("GetCurrentScheme");
    return currentScheme;
}

void MemoryHost::IStyleEditorClient_LoadScheme(const QString& name)
{
    Note("LoadScheme", {name});
    currentScheme = name;
    if (OnLoadScheme)
        OnLoadScheme(name);
}

void MemoryHost::IStyleEditorClient_CreateScheme(const QString& name)
{
    Note("CreateScheme", {name});
    schemeNames.append(name);
}

void MemoryHost::IStyleEditorClient_SaveScheme(const QString& name)
{
    Note("SaveScheme", {name});
}

void MemoryHost::IStyleEditorClient_DeleteScheme(const QString& name)
{
    Note("DeleteScheme", {name});
    schemeNames.removeAll(name);
}

void MemoryHost::IStyleEditorClient_SaveSchemesToStartup()
{
    Note("SaveSchemesToStartup");
}

PromptAnswer MemoryHost::IStyleEditorClient_PromptText(const PromptRequest& request)
{
    Note("PromptText", {request.title, request.defaultText});
    promptRequests.push_back(request);
    if (onPrompt)
        onPrompt();
    if (promptAnswers.empty())
        return {};
    const PromptAnswer answer = promptAnswers.front();
    promptAnswers.pop_front();
    return answer;
}

LayerSpec MemoryHost::OrdinaryNewLayer()
{
    LayerSpec layer;
    layer.id = m_store->GreatestInLayers("LayerID") + 1;
    layer.code = m_store->GreatestInLayers("Code") + 1;
    layer.name = QStringLiteral("New Layer");
    return layer;
}

qint32 MemoryHost::IStyleEditorClient_CreateLayer()
{
    Note("CreateLayer");
    LayerSpec layer = OrdinaryNewLayer();
    if (!layersToCreate.empty()) {
        layer = layersToCreate.front();
        layersToCreate.pop_front();
    }
    AddLayer(layer);
    return layer.id;
}

void MemoryHost::IStyleEditorClient_DeleteLayer(qint32 layerID)
{
    Note("DeleteLayer", {layerID});
    RemoveMembers(layerID);
    RemoveLayerRow(layerID);
}

bool MemoryHost::IStyleEditorClient_IsCodeAssigned(qint16 code)
{
    Note("IsCodeAssigned", {code});
    return m_store->HasCode(code);
}

QString MemoryHost::IStyleEditorClient_StyleCommandPrefix() const
{
    Note("StyleCommandPrefix");
    return styleCommandPrefix;
}

bool MemoryHost::IStyleEditorClient_QuickModesAllowed() const
{
    Note("QuickModesAllowed");
    return quickModesAllowed;
}

std::vector<RendererStyle> MemoryHost::IStyleEditorClient_RendererStyles() const
{
    Note("RendererStyles");
    return rendererStyles;
}

QString MemoryHost::IStyleEditorClient_ThemeName(QWidget*) const
{
    Note("ThemeName");
    return themeName;
}

void MemoryHost::IStyleEditorClient_RedrawMap()
{
    Note("RedrawMap");
}

} // namespace Orvane::Testing

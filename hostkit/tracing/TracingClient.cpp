// SPDX-License-Identifier: MIT
#include "hostkit/tracing/TracingClient.h"

#include "hostkit/tracing/CallTrace.h"
#include "hostkit/tracing/TracingDatabase.h"
#include "hostkit/tracing/TracingShellServices.h"

namespace Orvane {

namespace {

constexpr TraceWord Form{"form"};

} // namespace

TracingClient::TracingClient(IStyleEditorClient& client, CallTrace& trace)
    : ForwardingClient(client), m_trace(trace)
{
}

TracingClient::~TracingClient() = default;

IShellServices* TracingClient::IStyleEditorClient_GetShellServices()
{
    IShellServices* services
        = m_trace.Command("client.GetShellServices", [&] { return Wrapped().GetShellServices(); });
    if (services && !m_shellServices)
        m_shellServices = std::make_unique<TracingShellServices>(*services, m_trace);
    return services ? m_shellServices.get() : nullptr;
}

void TracingClient::IStyleEditorClient_ShowEditor(QWidget* form)
{
    m_trace.Command(
        "client.ShowEditor", [&] { Wrapped().ShowEditor(form); }, Form);
}

void TracingClient::IStyleEditorClient_EditorClosed(QWidget* form)
{
    m_trace.Command(
        "client.EditorClosed", [&] { Wrapped().EditorClosed(form); }, Form);
}

QString TracingClient::IStyleEditorClient_ReadSetting(QWidget* form, const QString& key)
{
    return m_trace.Question(
        "client.ReadSetting", [&] { return Wrapped().ReadSetting(form, key); }, key);
}

void TracingClient::IStyleEditorClient_WriteSetting(QWidget* form, const QString& key, const QString& value)
{
    m_trace.Command(
        "client.WriteSetting", [&] { Wrapped().WriteSetting(form, key, value); }, key, value);
}

ILayerDatabase& TracingClient::IStyleEditorClient_Database()
{
    ILayerDatabase* database
        = m_trace.Command("client.GetDatabase", [&] { return &Wrapped().GetDatabase(); });
    if (!m_database)
        m_database = std::make_unique<TracingDatabase>(*database, m_trace);
    return *m_database;
}

std::unique_ptr<IRecordset> TracingClient::IStyleEditorClient_LayersTable()
{
    auto layers = m_trace.Command("client.LayersTable", [&] { return Wrapped().LayersTable(); });
    return std::make_unique<TracingRecordset>(std::move(layers), m_trace);
}

qint32 TracingClient::IStyleEditorClient_StoredScaleToDialog(double storedScale) const
{
    const auto ask = [&] { return Wrapped().StoredScaleToDialog(storedScale); };
    return m_trace.Question("client.StoredScaleToDialog", ask, storedScale);
}

double TracingClient::IStyleEditorClient_DialogScaleToStored(qint32 scaleIndex) const
{
    const auto ask = [&] { return Wrapped().DialogScaleToStored(scaleIndex); };
    return m_trace.Question("client.DialogScaleToStored", ask, scaleIndex);
}

void TracingClient::IStyleEditorClient_BeginLayerEdit(IRecordset& layers)
{
    m_trace.Command(
        "client.BeginLayerEdit", [&] { Wrapped().BeginLayerEdit(layers); }, TraceWord{"recordset"});
}

void TracingClient::IStyleEditorClient_LayerChanged(qint32 layerID)
{
    m_trace.Command(
        "client.LayerChanged", [&] { Wrapped().LayerChanged(layerID); }, layerID);
}

QString TracingClient::IStyleEditorClient_LayerDisplayName(qint32 layerID)
{
    const auto ask = [&] { return Wrapped().LayerDisplayName(layerID); };
    return m_trace.Question("client.LayerDisplayName", ask, layerID);
}

void TracingClient::IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name)
{
    m_trace.Command(
        "client.RenameLayer", [&] { Wrapped().RenameLayer(layerID, name); }, layerID, name);
}

void TracingClient::IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name)
{
    m_trace.Command(
        "client.RenameGroup", [&] { Wrapped().RenameGroup(groupID, name); }, groupID, name);
}

QStringList TracingClient::IStyleEditorClient_GetSchemeNames()
{
    return m_trace.Question("client.GetSchemeNames", [&] { return Wrapped().GetSchemeNames(); });
}

QString TracingClient::IStyleEditorClient_GetCurrentScheme()
{
    return m_trace.Question("client.GetCurrentScheme", [&] { return Wrapped().GetCurrentScheme(); });
}

void TracingClient::IStyleEditorClient_LoadScheme(const QString& name)
{
    m_trace.Command(
        "client.LoadScheme", [&] { Wrapped().LoadScheme(name); }, name);
}

void TracingClient::IStyleEditorClient_CreateScheme(const QString& name)
{
    m_trace.Command(
        "client.CreateScheme", [&] { Wrapped().CreateScheme(name); }, name);
}

void TracingClient::IStyleEditorClient_SaveScheme(const QString& name)
{
    m_trace.Command(
        "client.SaveScheme", [&] { Wrapped().SaveScheme(name); }, name);
}

void TracingClient::IStyleEditorClient_DeleteScheme(const QString& name)
{
    m_trace.Command(
        "client.DeleteScheme", [&] { Wrapped().DeleteScheme(name); }, name);
}

void TracingClient::IStyleEditorClient_SaveSchemesToStartup()
{
    m_trace.Command("client.SaveSchemesToStartup", [&] { Wrapped().SaveSchemesToStartup(); });
}

PromptAnswer TracingClient::IStyleEditorClient_PromptText(const PromptRequest& request)
{
    const auto ask = [&] { return Wrapped().PromptText(request); };
    return m_trace.Question(
        "client.PromptText", ask, request.title, request.defaultText, request.kind, request.minimum,
        request.maximum, request.width);
}

ConflictChoice TracingClient::IConflictQuestion_AskAboutConflicts(
    QWidget* form, const QString& node, const std::vector<ConflictingEdit>& edits)
{
    const auto ask = [&] { return ForwardingClient::IConflictQuestion_AskAboutConflicts(form, node, edits); };
    return m_trace.Question("client.AskAboutConflicts", ask, Form, node, edits);
}

qint32 TracingClient::IStyleEditorClient_CreateLayer()
{
    return m_trace.Question("client.CreateLayer", [&] { return Wrapped().CreateLayer(); });
}

void TracingClient::IStyleEditorClient_DeleteLayer(qint32 layerID)
{
    m_trace.Command(
        "client.DeleteLayer", [&] { Wrapped().DeleteLayer(layerID); }, layerID);
}

void TracingClient::IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs)
{
    m_trace.Command(
        "client.DeleteLayers", [&] { ForwardingClient::IManyLayers_DeleteLayers(layerIDs); }, layerIDs);
}

double TracingClient::IMapScale_CurrentScale() const
{
    return m_trace.Question(
        "client.CurrentScale", [&] { return ForwardingClient::IMapScale_CurrentScale(); });
}

void TracingClient::ISchemeManager_ManageSchemes(QWidget* form)
{
    m_trace.Command(
        "client.ManageSchemes", [&] { ForwardingClient::ISchemeManager_ManageSchemes(form); }, Form);
}

QString TracingClient::IEditPermission_WhyNotEdited() const
{
    return m_trace.Question(
        "client.WhyNotEdited", [&] { return ForwardingClient::IEditPermission_WhyNotEdited(); });
}

bool TracingClient::IMapNotes_KeepsNotes() const
{
    return m_trace.Question("client.KeepsNotes", [&] { return ForwardingClient::IMapNotes_KeepsNotes(); });
}

QString TracingClient::IMapNotes_Note(const QString& key)
{
    return m_trace.Question(
        "client.Note", [&] { return ForwardingClient::IMapNotes_Note(key); }, key);
}

void TracingClient::IMapNotes_SetNote(const QString& key, const QString& text)
{
    m_trace.Command(
        "client.SetNote", [&] { ForwardingClient::IMapNotes_SetNote(key, text); }, key, text);
}

std::vector<NodeCommand> TracingClient::INodeCommands_Commands(QWidget* form)
{
    return m_trace.Command(
        "client.Commands", [&] { return ForwardingClient::INodeCommands_Commands(form); }, Form);
}

QString TracingClient::INodeCommands_WhyNot(const QString& id, const std::vector<qint32>& layerIDs)
{
    return m_trace.Question(
        "client.WhyNot", [&] { return ForwardingClient::INodeCommands_WhyNot(id, layerIDs); }, id, layerIDs);
}

void TracingClient::INodeCommands_Run(QWidget* form, const QString& id, const std::vector<qint32>& layerIDs)
{
    m_trace.Command(
        "client.Run", [&] { ForwardingClient::INodeCommands_Run(form, id, layerIDs); }, Form, id, layerIDs);
}

QString TracingClient::ILayerSource_Source(qint32 layerID)
{
    return m_trace.Question(
        "client.Source", [&] { return ForwardingClient::ILayerSource_Source(layerID); }, layerID);
}

void TracingClient::IChoiceWatch_LayersChosen(QWidget* form, const std::vector<qint32>& layerIDs)
{
    m_trace.Command(
        "client.LayersChosen", [&] { ForwardingClient::IChoiceWatch_LayersChosen(form, layerIDs); }, Form,
        layerIDs);
}

bool TracingClient::IStyleEditorClient_IsCodeAssigned(qint16 code)
{
    return m_trace.Question(
        "client.IsCodeAssigned", [&] { return Wrapped().IsCodeAssigned(code); }, code);
}

QString TracingClient::IStyleEditorClient_StyleCommandPrefix() const
{
    return m_trace.Question("client.StyleCommandPrefix", [&] { return Wrapped().StyleCommandPrefix(); });
}

bool TracingClient::IStyleEditorClient_QuickModesAllowed() const
{
    return m_trace.Question("client.QuickModesAllowed", [&] { return Wrapped().QuickModesAllowed(); });
}

std::vector<RendererStyle> TracingClient::IStyleEditorClient_RendererStyles() const
{
    return m_trace.Question("client.RendererStyles", [&] { return Wrapped().RendererStyles(); });
}

QString TracingClient::IStyleEditorClient_ThemeName(QWidget* form) const
{
    return m_trace.Question(
        "client.ThemeName", [&] { return Wrapped().ThemeName(form); }, Form);
}

void TracingClient::IStyleEditorClient_RedrawMap()
{
    m_trace.Command("client.RedrawMap", [&] { Wrapped().RedrawMap(); });
}

} // namespace Orvane

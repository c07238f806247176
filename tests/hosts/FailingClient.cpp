// SPDX-License-Identifier: MIT
#include "hosts/FailingClient.h"

namespace Orvane::Testing {

FailingClient::FailingClient(IStyleEditorClient& client, PlannedFailure failure)
    : ForwardingClient(client), m_failure(std::move(failure)),
      m_database(std::make_unique<FailingDatabase>(client.GetDatabase(), m_failure))
{
}

FailingClient::~FailingClient() = default;

ILayerDatabase& FailingClient::IStyleEditorClient_Database()
{
    return *m_database;
}

std::unique_ptr<IRecordset> FailingClient::IStyleEditorClient_LayersTable()
{
    m_failure.Called("LayersTable");
    return FailInCursor(Wrapped().LayersTable(), m_failure);
}

void FailingClient::IStyleEditorClient_BeginLayerEdit(IRecordset& layers)
{
    m_failure.Called("BeginLayerEdit");
    Wrapped().BeginLayerEdit(layers);
}

void FailingClient::IStyleEditorClient_LayerChanged(qint32 layerID)
{
    m_failure.Called("LayerChanged");
    Wrapped().LayerChanged(layerID);
}

QString FailingClient::IStyleEditorClient_LayerDisplayName(qint32 layerID)
{
    m_failure.Called("LayerDisplayName");
    return Wrapped().LayerDisplayName(layerID);
}

qint32 FailingClient::IStyleEditorClient_CreateLayer()
{
    m_failure.Called("CreateLayer");
    return Wrapped().CreateLayer();
}

void FailingClient::IStyleEditorClient_DeleteLayer(qint32 layerID)
{
    m_failure.Called("DeleteLayer");
    Wrapped().DeleteLayer(layerID);
}

void FailingClient::IStyleEditorClient_LoadScheme(const QString& name)
{
    m_failure.Called("LoadScheme");
    Wrapped().LoadScheme(name);
}

void FailingClient::IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name)
{
    m_failure.Called("RenameLayer");
    Wrapped().RenameLayer(layerID, name);
}

void FailingClient::IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name)
{
    m_failure.Called("RenameGroup");
    Wrapped().RenameGroup(groupID, name);
}

QStringList FailingClient::IStyleEditorClient_GetSchemeNames()
{
    m_failure.Called("GetSchemeNames");
    return Wrapped().GetSchemeNames();
}

QString FailingClient::IStyleEditorClient_GetCurrentScheme()
{
    m_failure.Called("GetCurrentScheme");
    return Wrapped().GetCurrentScheme();
}

void FailingClient::IStyleEditorClient_CreateScheme(const QString& name)
{
    m_failure.Called("CreateScheme");
    Wrapped().CreateScheme(name);
}

void FailingClient::IStyleEditorClient_SaveScheme(const QString& name)
{
    m_failure.Called("SaveScheme");
    Wrapped().SaveScheme(name);
}

void FailingClient::IStyleEditorClient_DeleteScheme(const QString& name)
{
    m_failure.Called("DeleteScheme");
    Wrapped().DeleteScheme(name);
}

void FailingClient::IStyleEditorClient_SaveSchemesToStartup()
{
    m_failure.Called("SaveSchemesToStartup");
    Wrapped().SaveSchemesToStartup();
}

PromptAnswer FailingClient::IStyleEditorClient_PromptText(const PromptRequest& request)
{
    m_failure.Called("PromptText");
    return Wrapped().PromptText(request);
}

bool FailingClient::IStyleEditorClient_IsCodeAssigned(qint16 code)
{
    m_failure.Called("IsCodeAssigned");
    return Wrapped().IsCodeAssigned(code);
}

void FailingClient::IStyleEditorClient_RedrawMap()
{
    m_failure.Called("RedrawMap");
    Wrapped().RedrawMap();
}

QString FailingClient::IStyleEditorClient_ReadSetting(QWidget* form, const QString& key)
{
    m_failure.Called("ReadSetting");
    return Wrapped().ReadSetting(form, key);
}

void FailingClient::IStyleEditorClient_WriteSetting(QWidget* form, const QString& key, const QString& value)
{
    m_failure.Called("WriteSetting");
    Wrapped().WriteSetting(form, key, value);
}

} // namespace Orvane::Testing

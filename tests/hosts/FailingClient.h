// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/FailingDatabase.h"

#include <OrvaneShellLib/ForwardingClient.h>

#include <memory>

namespace Orvane::Testing {

/// Passes everything on to another client and raises as planned, in members that read, write or ask, and in
/// any member of its database and its cursors.
///
///     FailingClient client(host, {"Update", 3, RunTimeError(ErrorNumber::DatabaseLocked, "locked")});
class FailingClient : public ForwardingClient
{
public:
    /// client: not owned; outlives this object.
    FailingClient(IStyleEditorClient& client, PlannedFailure failure);
    ~FailingClient() override;

    /// Plans another failure in place of the one before.
    void Plan(PlannedFailure failure) { m_failure = std::move(failure); }
    bool HasFailed() const { return m_failure.HasCome(); }
    /// The member that has raised; empty before that.
    const std::string& FailedMember() const { return m_failure.FailedMember(); }

protected:
    ILayerDatabase& IStyleEditorClient_Database() override;
    std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override;
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
    void IStyleEditorClient_RedrawMap() override;
    QString IStyleEditorClient_ReadSetting(QWidget* form, const QString& key) override;
    void IStyleEditorClient_WriteSetting(QWidget* form, const QString& key, const QString& value) override;

private:
    PlannedFailure m_failure;
    std::unique_ptr<ILayerDatabase> m_database;
};

} // namespace Orvane::Testing

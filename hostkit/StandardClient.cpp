// SPDX-License-Identifier: MIT
#include "hostkit/StandardClient.h"

#include "hostkit/LayerDeletion.h"
#include "hostkit/StandardClientParts.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/common/LayerNames.h"
#include "hostkit/common/MapNotes.h"
#include "hostkit/common/StoredScale.h"
#include "hostkit/undo/LayerSteps.h"
#include "hostkit/windows/ConflictBox.h"
#include "hostkit/windows/EditorWindows.h"
#include "hostkit/windows/TextPrompt.h"
#include "messages/NameInText.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <QLocale>

namespace Orvane {

StandardClient::StandardClient(ILayerStore& database, IShellServices& shellServices)
    : m_database(database), m_shellServices(shellServices), m_parts(std::make_unique<Parts>(database))
{
}

StandardClient::~StandardClient() = default;

HostNotifications& StandardClient::Notifications()
{
    return m_parts->notifications;
}

UndoHistory& StandardClient::History()
{
    return m_parts->steps.History();
}

void StandardClient::RecordStep(const std::function<QString()>& act)
{
    m_parts->steps.Record(act);
}

void StandardClient::SetMainWindow(QWidget* mainWindow)
{
    m_parts->windows.SetMainWindow(mainWindow);
}

void StandardClient::SetSettingsFile(const QString& path)
{
    m_parts->settings = std::make_unique<SettingsStore>(path);
}

void StandardClient::SetStartupFile(const QString& path)
{
    m_parts->startupFile = path;
}

void StandardClient::RefreshListedNames(const QSet<qint32>& layerIDs)
{
    if (layerIDs.isEmpty())
        return;
    for (QWidget* window : m_parts->windows.Shown()) {
        if (auto* editor = dynamic_cast<IStyleEditorForm*>(window))
            editor->RefreshLayerNames(layerIDs);
    }
}

void StandardClient::RefreshEditors()
{
    InvalidateLayerNames();
    m_parts->windows.RefreshEditors();
}

void StandardClient::RefreshEditors(const QSet<qint32>& layerIDs)
{
    if (layerIDs.isEmpty())
        return;
    m_parts->names.ReadAgain(layerIDs);
    m_parts->schemes.NoteDifferences(layerIDs);
    m_parts->windows.RefreshEditors(layerIDs);
}

void StandardClient::SetKeepsNotes(bool keeps)
{
    m_parts->keepsNotes = keeps;
}

void StandardClient::InvalidateLayerNames()
{
    m_parts->names.Invalidate();
    m_parts->schemes.ForgetDifferences();
}

IShellServices* StandardClient::IStyleEditorClient_GetShellServices()
{
    return &m_shellServices;
}

void StandardClient::IStyleEditorClient_ShowEditor(QWidget* form)
{
    m_parts->windows.Show(form);
    emit m_parts->notifications.EditorShown(form);
}

void StandardClient::IStyleEditorClient_EditorClosed(QWidget* form)
{
    if (m_parts->windows.Forget(form))
        emit m_parts->notifications.EditorClosed(form);
}

QString StandardClient::IStyleEditorClient_ReadSetting(QWidget*, const QString& key)
{
    return m_parts->Settings().Read(key);
}

void StandardClient::IStyleEditorClient_WriteSetting(QWidget*, const QString& key, const QString& value)
{
    m_parts->Settings().Write(key, value);
}

ILayerDatabase& StandardClient::IStyleEditorClient_Database()
{
    return m_database;
}

std::unique_ptr<IRecordset> StandardClient::IStyleEditorClient_LayersTable()
{
    return m_database.OpenRecordset(QStringLiteral("Layers"));
}

qint32 StandardClient::IStyleEditorClient_StoredScaleToDialog(double storedScale) const
{
    return StoredScale::ToIndex(storedScale, m_shellServices);
}

double StandardClient::IStyleEditorClient_DialogScaleToStored(qint32 scaleIndex) const
{
    return StoredScale::FromIndex(scaleIndex, m_shellServices);
}

void StandardClient::IStyleEditorClient_BeginLayerEdit(IRecordset& layers)
{
    m_parts->steps.BeginEdits();
    layers.Edit();
}

void StandardClient::IStyleEditorClient_LayerChanged(qint32 layerID)
{
    m_parts->changedLayers.insert(layerID);
}

QString StandardClient::IStyleEditorClient_LayerDisplayName(qint32 layerID)
{
    return m_parts->names.Name(layerID);
}

void StandardClient::IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name)
{
    bool isThere = false;
    RecordStep([&] {
        isThere = m_database.Execute(
                      QStringLiteral("UPDATE Layers SET Name = ?2 WHERE LayerID = ?1"), {layerID, name})
            > 0;
        return tr("Rename \"%1\"").arg(NameInStep(name));
    });
    if (!isThere)
        return;
    m_parts->names.Set(layerID, name);
    emit m_parts->notifications.LayerRenamed(layerID, name);
}

void StandardClient::IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name)
{
    bool isThere = false;
    RecordStep([&] {
        isThere = m_database.Execute(
                      QStringLiteral("UPDATE LayerGroups SET Name = ?2 WHERE ID = ?1"), {groupID, name})
            > 0;
        return tr("Rename Group \"%1\"").arg(NameInStep(name));
    });
    if (isThere)
        emit m_parts->notifications.GroupRenamed(groupID, name);
}

PromptAnswer StandardClient::IStyleEditorClient_PromptText(const PromptRequest& request)
{
    return TextPrompt(request, DialogParent()).Ask();
}

qint32 StandardClient::IStyleEditorClient_CreateLayer()
{
    qint32 layerID = 0;
    RecordStep([&] {
        layerID = m_parts->factory.Create();
        return tr("Create \"%1\"").arg(NameInStep(m_parts->names.NameOfOne(layerID)));
    });
    emit m_parts->notifications.LayerCreated(layerID);
    return layerID;
}

void StandardClient::IStyleEditorClient_DeleteLayer(qint32 layerID)
{
    if (!m_parts->factory.CanDelete(layerID))
        return;
    const LayerDeletion deletion = m_parts->factory.WhatGoes(layerID);
    if (!ConfirmDeletion(deletion))
        return;
    RecordStep([&] {
        m_parts->factory.Delete(layerID);
        return tr("Delete \"%1\"").arg(NameInStep(deletion.layer));
    });
    m_parts->changedLayers.remove(layerID);
    emit m_parts->notifications.LayerDeleted(layerID);
}

void StandardClient::IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs)
{
    const std::vector<qint32> deleted = m_parts->factory.Deletable(layerIDs);
    if (deleted.size() < 2) {
        if (!deleted.empty())
            DeleteLayer(deleted.front());
        return;
    }
    if (!ConfirmDeletion(m_parts->factory.WhatGoes(deleted)))
        return;
    RecordStep([&] {
        m_parts->factory.Delete(deleted);
        return tr("Delete %1 Layers").arg(QLocale().toString(qulonglong(deleted.size())));
    });
    for (const qint32 layerID : deleted)
        m_parts->changedLayers.remove(layerID);
    for (const qint32 layerID : deleted)
        emit m_parts->notifications.LayerDeleted(layerID);
}

bool StandardClient::IStyleEditorClient_IsCodeAssigned(qint16 code)
{
    return m_parts->factory.IsCodeAssigned(code);
}

QString StandardClient::IStyleEditorClient_StyleCommandPrefix() const
{
    return QStringLiteral("~");
}

bool StandardClient::IStyleEditorClient_QuickModesAllowed() const
{
    return true;
}

std::vector<RendererStyle> StandardClient::IStyleEditorClient_RendererStyles() const
{
    return {};
}

QString StandardClient::IStyleEditorClient_ThemeName(QWidget*) const
{
    return {};
}

void StandardClient::IStyleEditorClient_RedrawMap()
{
    m_parts->steps.EndEdits();
    const QSet<qint32> changed = std::exchange(m_parts->changedLayers, {});
    if (!changed.isEmpty())
        emit m_parts->notifications.LayersChanged(changed);
}

ConflictChoice StandardClient::IConflictQuestion_AskAboutConflicts(
    QWidget* form, const QString& node, const std::vector<ConflictingEdit>& edits)
{
    return AskInConflictBox(form, node, edits);
}

void StandardClient::IEditorWatch_EditorShown(QWidget* form)
{
    if (m_parts->windows.Adopt(form))
        emit m_parts->notifications.EditorShown(form);
}

void StandardClient::IEditorWatch_EditorEnded(QWidget* form)
{
    if (m_parts->windows.Forget(form))
        emit m_parts->notifications.EditorClosed(form);
}

QString StandardClient::IEditPermission_WhyNotEdited() const
{
    return m_database.IsReadOnly()
        ? tr("The map is read-only. You can look at everything, but change nothing.")
        : QString();
}

bool StandardClient::IMapNotes_KeepsNotes() const
{
    return m_parts->keepsNotes && !m_database.IsReadOnly();
}

QString StandardClient::IMapNotes_Note(const QString& key)
{
    return MapNotes::Read(m_database, key);
}

void StandardClient::IMapNotes_SetNote(const QString& key, const QString& text)
{
    m_parts->steps.BeginEdits();
    MapNotes::Write(m_database, key, text);
}

std::vector<NodeCommand> StandardClient::INodeCommands_Commands(QWidget*)
{
    return {};
}

QString StandardClient::INodeCommands_WhyNot(const QString&, const std::vector<qint32>&)
{
    return {};
}

void StandardClient::INodeCommands_Run(QWidget*, const QString&, const std::vector<qint32>&)
{
}

bool StandardClient::ConfirmDeletion(const LayerDeletion& deletion)
{
    return deletion.Confirm(DialogParent());
}

QWidget* StandardClient::DialogParent() const
{
    return m_parts->windows.FrontWindow();
}

ILayerStore& StandardClient::LayerDatabase() const
{
    return m_database;
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "hostkit/StandardClient.h"

#include "hostkit/LayerDeletion.h"
#include "hostkit/LayerFactory.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/common/LayerNames.h"
#include "hostkit/common/SettingsStore.h"
#include "hostkit/common/StoredScale.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "hostkit/schemes/SchemeFile.h"
#include "hostkit/schemes/StartupSchemes.h"
#include "hostkit/undo/LayerSteps.h"
#include "hostkit/undo/SchemeSteps.h"
#include "hostkit/windows/ConflictBox.h"
#include "hostkit/windows/EditorWindows.h"
#include "hostkit/windows/LongWork.h"
#include "hostkit/windows/TextPrompt.h"
#include "messages/NameInText.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <QApplication>
#include <QTimer>

namespace Orvane {

struct StandardClient::Parts {
    explicit Parts(ILayerStore& database)
        : names(database), factory(database, names), steps(database, names, windows, notifications),
          schemes(database, steps, notifications)
    {
        refreshSoon.setSingleShot(true);
        QObject::connect(&refreshSoon, &QTimer::timeout, &notifications, [this] { RefreshNow(); });
        const auto changed = [this] { RefreshOtherEditors(); };
        QObject::connect(&notifications, &HostNotifications::LayersChanged, &notifications, changed);
        QObject::connect(&notifications, &HostNotifications::LayerCreated, &notifications, changed);
        QObject::connect(&notifications, &HostNotifications::LayerDeleted, &notifications, changed);
        QObject::connect(&notifications, &HostNotifications::GroupRenamed, &notifications, changed);
    }

    HostNotifications notifications;
    EditorWindows windows;
    std::unique_ptr<SettingsStore> settings; // created at the first use
    LayerNames names;
    LayerFactory factory;
    LayerSteps steps;
    SchemeSteps schemes;
    QString startupFile;
    QSet<qint32> changedLayers; // since the last RedrawMap
    QTimer refreshSoon; // after the operation that changed something

    // An editor that is alone has shown its own changes already.
    void RefreshOtherEditors()
    {
        if (windows.Shown().size() > 1)
            refreshSoon.start(0);
    }

    void RefreshNow() noexcept
    {
        try {
            windows.RefreshEditors();
        } catch (const std::exception&) { // such an editor shows nothing; using it says why
        }
    }

    SettingsStore& Settings()
    {
        if (!settings)
            settings = std::make_unique<SettingsStore>();
        return *settings;
    }
};

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

void StandardClient::LoadSchemesFromStartup()
{
    m_parts->schemes.LoadFromStartup(m_parts->startupFile);
}

qsizetype StandardClient::UnsavedSchemeChanges()
{
    return m_parts->schemes.UnsavedChanges();
}

void StandardClient::ExportScheme(const QString& name, const QString& path)
{
    m_parts->steps.EndEdits(); // before the work, which may be cancelled
    const LongWork work(
        m_database, tr("Export Scheme \"%1\"").arg(NameInStep(name)), m_parts->steps.Window());
    const Transaction oneState(m_database);
    SchemeFile::Make(path, [&](QIODevice& text) { SchemeExchange::ExportTo(text, m_database, name); });
}

SchemeDocument StandardClient::ReadSchemeFile(const QString& path)
{
    const LongWork work(m_database, tr("Import Scheme"), m_parts->steps.Window());
    return SchemeFile::Read(path, [this](double done) { m_database.AskWatcher(done); });
}

SchemeImport StandardClient::ImportScheme(const SchemeDocument& scheme)
{
    return m_parts->schemes.Import(scheme);
}

std::optional<SchemeImport> StandardClient::ImportSchemeFile(
    const QString& path, const std::function<bool(const QString& name)>& mayImport)
{
    SchemeFile::Reader file(path);
    if (!mayImport(file.Name()))
        return std::nullopt;
    return m_parts->schemes.Import(file);
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

QStringList StandardClient::IStyleEditorClient_GetSchemeNames()
{
    return m_parts->schemes.Names();
}

QString StandardClient::IStyleEditorClient_GetCurrentScheme()
{
    return m_parts->schemes.Current();
}

void StandardClient::IStyleEditorClient_LoadScheme(const QString& name)
{
    m_parts->schemes.Load(name);
}

void StandardClient::IStyleEditorClient_CreateScheme(const QString& name)
{
    m_parts->schemes.Create(name);
}

void StandardClient::IStyleEditorClient_SaveScheme(const QString& name)
{
    m_parts->schemes.Save(name);
}

void StandardClient::IStyleEditorClient_DeleteScheme(const QString& name)
{
    m_parts->schemes.Delete(name);
}

void StandardClient::IStyleEditorClient_SaveSchemesToStartup()
{
    if (m_parts->startupFile.isEmpty()) {
        throw RunTimeError(
            int(HostError::NoStartupDatabase), tr("This program has no startup database."),
            QStringLiteral("StandardClient"));
    }
    {
        m_parts->steps.EndEdits();
        const LongWork work(m_database, tr("Save Schemes for New Maps"), m_parts->steps.Window());
        StartupSchemes::Save(m_database, m_parts->startupFile);
    }
    emit m_parts->notifications.SchemesSavedToStartup();
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
        return tr("Create \"%1\"").arg(NameInStep(m_parts->names.Name(layerID)));
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

bool StandardClient::ConfirmDeletion(const LayerDeletion& deletion)
{
    return deletion.Confirm(DialogParent());
}

QWidget* StandardClient::DialogParent() const
{
    QWidget* active = QApplication::activeWindow();
    return active ? active : m_parts->windows.MainWindow();
}

ILayerStore& StandardClient::LayerDatabase() const
{
    return m_database;
}

} // namespace Orvane

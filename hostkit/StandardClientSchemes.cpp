// SPDX-License-Identifier: MIT
// The client's schemes, and their files.
#include "hostkit/StandardClientParts.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/manager/SchemeManager.h"
#include "hostkit/schemes/SchemeFile.h"
#include "hostkit/schemes/StartupSchemes.h"
#include "hostkit/windows/LongWork.h"
#include "hostkit/windows/OwnedDialog.h"
#include "messages/NameInText.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

void StandardClient::LoadSchemesFromStartup()
{
    m_parts->schemes.LoadFromStartup(m_parts->startupFile);
}

void StandardClient::SetAppliesSchemeAtOpening(bool applies)
{
    m_parts->appliesAtOpening = applies;
}

std::optional<QString> StandardClient::ApplySchemeAtOpening()
{
    std::optional<QString> scheme = m_parts->schemes.MissingAtOpening();
    if (scheme)
        IStyleEditorClient_LoadScheme(*scheme);
    return scheme;
}

qsizetype StandardClient::UnsavedSchemeChanges()
{
    return m_parts->schemes.UnsavedChanges();
}

void StandardClient::ExportScheme(const QString& name, const QString& path)
{
    m_parts->schemes.Export(name, path);
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
    return m_parts->schemes.ImportFile(path, mayImport);
}

void StandardClient::ISchemeManager_ManageSchemes(QWidget* form)
{
    const ManagerHost host{
        m_database,
        *this,
        m_parts->schemes,
        m_parts->steps.History(),
        m_parts->notifications,
        m_parts->Settings(),
        m_parts->appliesAtOpening};
    const OwnedDialog<SchemeManager> window(host, form ? form : DialogParent());
    window->exec();
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

} // namespace Orvane

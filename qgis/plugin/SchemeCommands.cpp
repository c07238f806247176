// SPDX-License-Identifier: MIT
#include "qgis/plugin/SchemeCommands.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "hostkit/undo/UndoHistory.h"
#include "messages/NameInText.h"
#include "qgis/plugin/ProjectSession.h"
#include "qgis/plugin/ThemeChoice.h"

#include <QFileDialog>
#include <QMessageBox>

namespace Orvane {

namespace {

constexpr auto SchemeFileSuffix = "json";

int Ask(QWidget& window, const QString& title, const QString& question, QMessageBox::StandardButtons buttons)
{
    QMessageBox box(QMessageBox::Question, title, question, buttons, &window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec();
}

// The scheme's name, without the characters that a file name may not contain.
QString SchemeFileName(const QString& scheme)
{
    QString name = NameInText(scheme);
    for (QChar& character : name) {
        if (QStringLiteral("/\\:*?\"<>|").contains(character))
            character = QLatin1Char('_');
    }
    return name + QLatin1Char('.') + QLatin1String(SchemeFileSuffix);
}

} // namespace

SchemeCommands::SchemeCommands(QWidget& window, ProjectSession& session)
    : m_window(window), m_session(session), m_themes(session.Project(), session.Store(), session.Mirror())
{
}

void SchemeCommands::ImportThemes()
{
    if (m_themes.Names().isEmpty())
        return emit Done(tr("This project has no map themes."));
    const auto allowed = AllowedThemes(AskForThemes(m_themes.Names(), m_window));
    if (!allowed || allowed->isEmpty())
        return;
    QgisClient& client = m_session.Client();
    IStyleEditorClient& schemes = client;
    schemes.GetCurrentScheme(); // makes the first scheme, which is not a step
    m_session.Watcher().TellNow();
    client.RecordStep([&] {
        m_themes.Import(*allowed);
        return allowed->size() == 1 ? tr("Import Map Theme \"%1\"").arg(NameInStep(allowed->first()))
                                    : tr("Import Map Themes");
    });
    emit client.Notifications().SchemesChanged(schemes.GetCurrentScheme());
    client.RefreshEditors();
    emit Done(tr("Schemes made of map themes: %1").arg(NameInText(allowed->join(QStringLiteral(", ")))));
}

std::optional<QStringList> SchemeCommands::AllowedThemes(const QStringList& chosen)
{
    IStyleEditorClient& schemes = m_session.Client();
    const QStringList taken = schemes.GetSchemeNames();
    const QString question = tr("The scheme \"%1\" already exists. Replace it with the map theme?");
    QStringList allowed;
    for (const QString& theme : chosen) {
        const int answer = taken.contains(theme) ? Ask(
                               m_window, tr("Import Map Themes"), question.arg(NameInText(theme)),
                               QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)
                                                 : int(QMessageBox::Yes);
        if (answer == QMessageBox::Cancel)
            return std::nullopt;
        if (answer == QMessageBox::Yes)
            allowed << theme;
    }
    return allowed;
}

void SchemeCommands::ExportTheme()
{
    IStyleEditorClient& schemes = m_session.Client();
    const QString name = schemes.GetCurrentScheme();
    const QString question = tr("The map theme \"%1\" already exists. Replace it with the scheme?");
    if (m_themes.Has(name)
        && Ask(m_window, tr("Export Scheme as Map Theme"), question.arg(NameInText(name)),
               QMessageBox::Yes | QMessageBox::No)
            != QMessageBox::Yes)
        return;
    m_session.Watcher().TellNow();
    m_session.Client().History().Add(m_themes.Export(name));
    emit Done(tr("The scheme \"%1\" was exported as a map theme.").arg(NameInText(name)));
}

void SchemeCommands::ImportFile()
{
    QFileDialog dialog(&m_window, tr("Import Scheme"), {}, tr("Layer schemes (*.json);;All files (*)"));
    dialog.setObjectName(QStringLiteral("dlgImportScheme"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString question = tr("The scheme \"%1\" already exists. Replace it with the one in the file?");
    const auto import
        = m_session.Client().ImportSchemeFile(dialog.selectedFiles().value(0), [&](const QString& name) {
              return MayReplaceScheme(question, name);
          });
    if (!import)
        return;
    m_session.Client().RefreshEditors();
    emit Done(tr("The scheme \"%1\" was imported. Layers that match: %2")
                  .arg(NameInText(import->name), QLocale().toString(qlonglong(import->matched))));
}

bool SchemeCommands::MayReplaceScheme(const QString& question, const QString& name)
{
    IStyleEditorClient& schemes = m_session.Client();
    return !schemes.GetSchemeNames().contains(name)
        || Ask(m_window, tr("Import Scheme"), question.arg(NameInText(name)),
               QMessageBox::Yes | QMessageBox::No)
        == QMessageBox::Yes;
}

void SchemeCommands::ExportFile()
{
    IStyleEditorClient& schemes = m_session.Client();
    const QString name = schemes.GetCurrentScheme();
    QFileDialog dialog(&m_window, tr("Export Scheme"), {}, tr("Layer schemes (*.json)"));
    dialog.setObjectName(QStringLiteral("dlgExportScheme"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QLatin1String(SchemeFileSuffix));
    dialog.selectFile(SchemeFileName(name));
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_session.Client().ExportScheme(name, dialog.selectedFiles().value(0));
    emit Done(tr("The scheme \"%1\" was exported.").arg(NameInText(name)));
}

} // namespace Orvane

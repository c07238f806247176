// SPDX-License-Identifier: MIT
#include "shell/actions/DataActions.h"

#include "hostkit/windows/LongWork.h"
#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/files/DataFiles.h"
#include "shell/dialogs/MissingData.h"
#include "shell/map/MapSession.h"
#include "shell/map/TableQuestions.h"
#include "shell/window/RunWithProgress.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

namespace Orvane {

DataActions::DataActions(QMenu& menu, const QAction* openData, QWidget& window) : m_window(window)
{
    const QList<QAction*> commands = menu.actions();
    QAction* before = commands.value(commands.indexOf(openData) + 1);
    QAction* raster = Add(
        menu, before, "actOpenRaster", tr("Open Ras&ter..."),
        tr("Add aerial photographs, scanned maps or elevation grids to the map"));
    m_find = Add(
        menu, before, "actFindData", tr("&Find Missing Data..."),
        tr("Search a folder for the missing data files of the map"));
    m_columns = Add(
        menu, before, "actTableColumns", tr("Table &Columns..."),
        tr("Choose the columns with the coordinates of the tables in the map"));
    const auto run = [this](const QAction* action, void (DataActions::*command)()) {
        connect(action, &QAction::triggered, this, [this, command] {
            Guard(&m_window, [&] { (this->*command)(); });
        });
    };
    run(openData, &DataActions::AskForData);
    run(raster, &DataActions::AskForRasters);
    run(m_find, &DataActions::FindData);
    run(m_columns, &DataActions::AskForColumns);
    connect(&menu, &QMenu::aboutToShow, this, [this] { Guard(&m_window, [this] { ShowWhatIsPossible(); }); });
}

void DataActions::ShowProblems(const QString& problems)
{
    if (problems.isEmpty())
        return;
    QMessageBox box(QMessageBox::Warning, tr("Map Data"), problems, QMessageBox::Ok, &m_window);
    box.setObjectName(QStringLiteral("dlgProblems"));
    box.setTextFormat(Qt::PlainText);
    QPushButton* find = nullptr;
    if (!MissingSources(m_session->Document()).empty())
        find = box.addButton(tr("&Find Missing Data..."), QMessageBox::ActionRole);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
    if (find && box.clickedButton() == find)
        FindData();
}

void DataActions::Use(MapSession& session)
{
    m_session = &session;
    // Queued: saving the map under another name ends the session that emits the signal. A session that has
    // ended has nothing to tell any more.
    connect(
        &session, &MapSession::DataFailed, &session,
        [this, &session](const QString& reason) {
            LongWork::RunAfter(&session, [this, reason] { Guard(&m_window, [&] { ShowProblems(reason); }); });
        },
        Qt::QueuedConnection);
    connect(
        &session, &MapSession::MapFileGone, this,
        [this] { LongWork::RunAfter(this, [this] { Guard(&m_window, [this] { TellMapIsGone(); }); }); },
        Qt::QueuedConnection);
}

void DataActions::TellMapIsGone()
{
    const QString name = QFileInfo(m_session->Document().FilePath()).fileName();
    QMessageBox box(
        QMessageBox::Warning, tr("Map File"),
        tr("The map file \"%1\" was moved or deleted. What you change is kept only when you save the map "
           "under "
           "another name.")
            .arg(name),
        QMessageBox::Save | QMessageBox::Ignore, &m_window);
    box.setObjectName(QStringLiteral("dlgMapGone"));
    box.setTextFormat(Qt::PlainText);
    box.setEscapeButton(QMessageBox::Ignore);
    if (box.exec() == QMessageBox::Save)
        emit SaveAsWanted();
}

QAction*
DataActions::Add(QMenu& menu, QAction* before, const char* name, const QString& text, const QString& tip)
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setStatusTip(tip);
    menu.insertAction(before, action);
    return action;
}

void DataActions::ShowWhatIsPossible()
{
    m_find->setEnabled(!MissingSources(m_session->Document()).empty());
    m_columns->setEnabled(TableQuestions::HasTables(m_session->Document()));
}

void DataActions::FindData()
{
    MapDocument& document = m_session->Document();
    const std::vector<LayerSource> missing = MissingSources(document);
    const QString folder = QFileDialog::getExistingDirectory(
        &m_window, tr("Find Missing Data"), QFileInfo(document.FilePath()).path());
    if (folder.isEmpty())
        return;
    std::vector<LayerSource> found;
    RunWithProgress(&m_window, tr("Looking for map data"), [&](Progress& progress) {
        found = LookForData(missing, folder, progress);
    });
    if (found.empty()) {
        QMessageBox box(
            QMessageBox::Information, tr("Find Missing Data"),
            tr("None of the missing files is in \"%1\".").arg(folder), QMessageBox::Ok, &m_window);
        box.setObjectName(QStringLiteral("dlgFindData"));
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return;
    }
    TakeFoundData(document, found);
    Reload();
    emit Told(tr("Layers whose data were found: %1 of %2").arg(found.size()).arg(missing.size()));
}

void DataActions::AskForColumns()
{
    if (TableQuestions::ChangeColumns(*m_session, m_window))
        Reload();
}

void DataActions::AskForData()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        &m_window, tr("Open Data"), {},
        tr("Map data (%1);;All files (*)")
            .arg(DataFiles::Patterns() + QLatin1Char(' ') + DataFiles::RasterPatterns()));
    if (!paths.isEmpty())
        emit DataChosen(paths);
}

void DataActions::AskForRasters()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        &m_window, tr("Open Raster"), {}, tr("Rasters (%1);;All files (*)").arg(DataFiles::RasterPatterns()));
    if (!paths.isEmpty())
        emit DataChosen(paths);
}

void DataActions::Reload()
{
    const QString problems = m_session->ReadAndShow();
    emit DataChanged();
    ShowProblems(problems);
}

} // namespace Orvane

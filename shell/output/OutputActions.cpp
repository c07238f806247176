// SPDX-License-Identifier: MIT
#include "shell/output/OutputActions.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/output/PageWriter.h"
#include "shell/map/MapSession.h"
#include "shell/output/PageDialog.h"
#include "shell/window/RunWithProgress.h"
#include "store/ILayerStore.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>

namespace Orvane {

namespace {

constexpr auto FolderKey = "Output/Folder";
constexpr auto FormatKey = "Output/Format";
constexpr auto UsualFormat = "pdf";
constexpr double FrameMargin = 0.5; // millimetres, inside the printer's own margin
constexpr int MessageStays = 8000; // milliseconds
constexpr int PreviewMargins = 24; // pixels

// "pdf" of "PDF document (*.pdf)".
QString EndingOf(const QString& filter)
{
    return filter.section(QStringLiteral("*."), 1).chopped(1);
}

// Wide enough for all its tools, of which Print is the last, and high enough for a page.
QSize SizeOf(const QPrintPreviewDialog& preview)
{
    const auto* tools = preview.findChild<QToolBar*>();
    const int width = tools ? tools->sizeHint().width() + PreviewMargins : 0;
    const QSize screen = preview.screen()->availableSize();
    return QSize(std::max(width, screen.width() / 2), screen.height() * 3 / 4).boundedTo(screen);
}

} // namespace

OutputActions::OutputActions(QMainWindow& window, MapCanvas& canvas)
    : QObject(&window), m_window(window), m_canvas(canvas)
{
}

void OutputActions::AddTo(QMenu& menu, QAction* before)
{
    QAction* write = NewAction(
        tr("&Export Map..."), tr("Write the map as PDF, SVG or PNG"), "actExport", &OutputActions::ExportMap);
    write->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
    QAction* print = NewAction(
        tr("&Print..."), tr("Print the map, with a preview"), "actPrint", &OutputActions::PrintMap);
    print->setShortcut(QKeySequence::Print);
    menu.insertActions(before, {write, print});
    menu.insertSeparator(before);
}

void OutputActions::ExportMap()
{
    PageDialog dialog(PageDialog::Purpose::Export, MapName(), m_canvas.ScaleDenominator(), &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString file = AskForFile();
    if (file.isEmpty())
        return;
    const MapPage page = PageFor(dialog.Settings());
    RunWithProgress(
        &m_window, tr("Drawing the map"), [&](Progress& progress) { WritePage(page, file, progress); });
    QSettings().setValue(QLatin1String(FolderKey), QFileInfo(file).absolutePath());
    QSettings().setValue(QLatin1String(FormatKey), QFileInfo(file).suffix().toLower());
    m_window.statusBar()->showMessage(
        tr("The map was written to %1").arg(QDir::toNativeSeparators(file)), MessageStays);
}

void OutputActions::PrintMap()
{
    PageDialog dialog(PageDialog::Purpose::Print, MapName(), m_canvas.ScaleDenominator(), &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(MapName());
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintPreviewDialog preview(&printer, &m_window);
    preview.setObjectName(QStringLiteral("dlgPreview"));
    preview.resize(SizeOf(preview));
    const PageSettings settings = dialog.Settings();
    connect(&preview, &QPrintPreviewDialog::paintRequested, this, [&](QPrinter* paper) {
        if (!Guard(&m_window, [&] { Paint(*paper, settings); }))
            QMetaObject::invokeMethod(&preview, &QDialog::reject, Qt::QueuedConnection);
    });
    preview.exec();
}

QAction* OutputActions::NewAction(
    const QString& text, const QString& tip, const char* name, void (OutputActions::*command)())
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setStatusTip(tip);
    connect(action, &QAction::triggered, this, [this, command] {
        Guard(&m_window, [&] { (this->*command)(); });
    });
    return action;
}

MapPage OutputActions::PageFor(const PageSettings& settings) const
{
    const MapDocument& document = m_session->Document();
    return {
        document.Database(),
        m_services,
        {m_session->LayersForPage(), document.System(), m_canvas.View().Extent(), document.Background()},
        settings};
}

QString OutputActions::MapName() const
{
    const QString name = m_session->Document().Name();
    return name.isEmpty() ? tr("New map") : name;
}

QString OutputActions::AskForFile() const
{
    const QStringList filters{
        tr("PDF document (*.pdf)"), tr("SVG drawing (*.svg)"), tr("PNG picture (*.png)")};
    const QSettings settings;
    const QString ending = settings.value(QLatin1String(FormatKey), QLatin1String(UsualFormat)).toString();
    const QString folder
        = settings.value(QLatin1String(FolderKey), QFileInfo(m_session->Document().FilePath()).absolutePath())
              .toString();
    QFileDialog dialog(&m_window, tr("Export Map"), folder);
    dialog.setObjectName(QStringLiteral("dlgExportFile"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    for (const QString& filter : filters) {
        if (EndingOf(filter) == ending)
            dialog.selectNameFilter(filter);
    }
    dialog.setDefaultSuffix(ending);
    dialog.selectFile(MapName() + QLatin1Char('.') + ending);
    connect(
        &dialog, &QFileDialog::filterSelected, &dialog, [&dialog, name = MapName()](const QString& filter) {
            dialog.setDefaultSuffix(EndingOf(filter));
            dialog.selectFile(QFileInfo(dialog.selectedFiles().value(0, name)).completeBaseName());
        });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void OutputActions::Paint(QPrinter& printer, PageSettings settings) const
{
    settings.size = printer.pageLayout().paintRect(QPageLayout::Millimeter).size();
    settings.margin = FrameMargin;
    Progress progress;
    PrintPage(PageFor(settings), printer, progress);
}

} // namespace Orvane

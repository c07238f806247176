// SPDX-License-Identifier: MIT
#include "qgis/plugin/QgisWindow.h"

#include "hostkit/windows/EditorDock.h"
#include "qgis/plugin/ProjectSession.h"

#include <QAction>
#include <QHeaderView>
#include <QItemSelection>
#include <QMainWindow>
#include <QMenu>
#include <QSet>
#include <qgisinterface.h>
#include <qgslayertree.h>
#include <qgslayertreemodel.h>
#include <qgslayertreeview.h>
#include <qgsmapcanvas.h>
#include <qgsproject.h>
#include <qgssettings.h>

namespace Orvane {

namespace {

// Keeps the widths of a panel's columns as they are.
class StillColumns
{
public:
    explicit StillColumns(QHeaderView& header) : m_header(header), m_mode(ModeOf(header))
    {
        m_header.setSectionResizeMode(QHeaderView::Fixed);
    }
    ~StillColumns() { m_header.setSectionResizeMode(m_mode); }
    StillColumns(const StillColumns&) = delete;
    StillColumns& operator=(const StillColumns&) = delete;

private:
    static QHeaderView::ResizeMode ModeOf(const QHeaderView& header)
    {
        return header.count() > 0 ? header.sectionResizeMode(0) : QHeaderView::Interactive;
    }

    QHeaderView& m_header;
    QHeaderView::ResizeMode m_mode;
};

// A map that is drawn now would end with images of the former looks, and the canvas would take these for new.
class DrawnAgain
{
public:
    explicit DrawnAgain(QgsMapCanvas& canvas) : m_canvas(canvas), m_wasDrawing(canvas.isDrawing())
    {
        m_canvas.cancelJobs(); // stopRendering would not wait for its images
    }
    ~DrawnAgain()
    {
        if (m_wasDrawing)
            m_canvas.refresh();
    }
    DrawnAgain(const DrawnAgain&) = delete;
    DrawnAgain& operator=(const DrawnAgain&) = delete;

private:
    QgsMapCanvas& m_canvas;
    bool m_wasDrawing;
};

QAction* ActionOf(QgisInterface& qgis, const char* name)
{
    return qgis.mainWindow()->findChild<QAction*>(QLatin1String(name));
}

// The action runs the dialog and adds the layer.
QgsMapLayer* MakeLayerInQgis(QgisInterface& qgis)
{
    QgsMapLayer* made = nullptr;
    const QMetaObject::Connection listening = QObject::connect(
        QgsProject::instance(), &QgsProject::layerWasAdded, [&made](QgsMapLayer* layer) { made = layer; });
    if (QAction* action = ActionOf(qgis, "mActionNewMemoryLayer"))
        action->trigger();
    QObject::disconnect(listening);
    return made;
}

template <typename Layers> QSet<QgsMapLayer*> SetOf(const Layers& layers)
{
    return {layers.begin(), layers.end()};
}

QItemSelection RowsOf(QgsLayerTreeView& view, const QList<QgsMapLayer*>& layers)
{
    QItemSelection rows;
    const QSet<QgsMapLayer*> wanted = SetOf(layers);
    const QList<QgsLayerTreeLayer*> nodes = view.layerTreeModel()->rootGroup()->findLayers();
    for (QgsLayerTreeLayer* node : nodes) {
        if (!wanted.contains(node->layer()))
            continue;
        const QModelIndex index = view.node2index(node);
        rows.select(index, index);
    }
    return rows;
}

// The action removes what is selected in the panel, after one question.
void RemoveLayersInQgis(QgisInterface& qgis, const QList<QgsMapLayer*>& layers)
{
    QAction* remove = ActionOf(qgis, "mActionRemoveLayer");
    QgsLayerTreeView& view = *qgis.layerTreeView();
    qgis.setActiveLayer(layers.first());
    view.selectionModel()->select(RowsOf(view, layers), QItemSelectionModel::ClearAndSelect);
    if (remove && SetOf(view.selectedLayers()) == SetOf(layers))
        remove->trigger();
}

const QString SizeSetting = QStringLiteral("orvane/dockSize");

// A dock at the top or bottom may become higher or lower, others wider or narrower.
Qt::Orientation GrowthOf(const QMainWindow& window, EditorDock& dock)
{
    const Qt::DockWidgetArea area = window.dockWidgetArea(&dock);
    return area == Qt::TopDockWidgetArea || area == Qt::BottomDockWidgetArea ? Qt::Vertical : Qt::Horizontal;
}

} // namespace

void QgisWindow::SaveSize(QgisInterface& qgis, EditorDock& dock)
{
    const auto* window = qobject_cast<QMainWindow*>(qgis.mainWindow());
    if (!dock.widget() || dock.isFloating())
        return;
    const bool isWide = GrowthOf(*window, dock) == Qt::Horizontal;
    QgsSettings().setValue(SizeSetting, isWide ? dock.width() : dock.height());
}

void QgisWindow::RestoreSize(QgisInterface& qgis, EditorDock& dock)
{
    auto* window = qobject_cast<QMainWindow*>(qgis.mainWindow());
    const int size = QgsSettings().value(SizeSetting, 0).toInt();
    if (size > 0 && !dock.isFloating())
        window->resizeDocks({&dock}, {size}, GrowthOf(*window, dock));
}

void QgisWindow::AddDock(QgisInterface& qgis, EditorDock& dock)
{
    auto* window = qobject_cast<QMainWindow*>(qgis.mainWindow());
    if (!window->restoreDockWidget(&dock)) {
        window->addDockWidget(Qt::RightDockWidgetArea, &dock);
        dock.hide();
    }
    if (auto* panels = window->findChild<QMenu*>(QStringLiteral("mPanelMenu")))
        panels->addAction(dock.toggleViewAction());
}

QgisCommands QgisWindow::Commands(QgisInterface& qgis)
{
    return {
        [&qgis] { return MakeLayerInQgis(qgis); },
        [&qgis](const QList<QgsMapLayer*>& layers) { RemoveLayersInQgis(qgis, layers); },
        [&qgis] { return qgis.mapCanvas()->scale(); }};
}

void QgisWindow::ConnectPanel(QgisInterface& qgis, ProjectSession& session)
{
    QgsLayerTreeView* view = qgis.layerTreeView();
    session.Mirror().SetPanel(view->layerTreeModel());
    QgsMapCanvas* canvas = qgis.mapCanvas();
    session.Mirror().SetAround([view, canvas, &session](size_t layers, const std::function<void()>& write) {
        const ProjectWatcher::Silence own(session.Watcher());
        const DrawnAgain again(*canvas);
        if (layers > size_t(canvas->layerCount()) / 4) // dropping images one by one looks at all of them
            canvas->clearCache();
        const StillColumns still(*view->header());
        write();
    });
}

} // namespace Orvane

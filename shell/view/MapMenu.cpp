// SPDX-License-Identifier: MIT
#include "shell/view/MapMenu.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Guard.h"
#include "mapkit/coordinates/PositionText.h"
#include "mapkit/document/MapDocument.h"
#include "shell/features/HitTest.h"
#include "shell/map/DataFolders.h"
#include "shell/map/MapSession.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include <algorithm>

namespace Orvane {

namespace {

constexpr size_t MostLayers = 8; // more would fill the screen
constexpr int DegreeDecimals = 6; // a tenth of a metre
constexpr int MapDecimals = 2; // a centimetre
constexpr double FineUnits = 0.001; // a pixel of less is of a map in degrees

// With a dot, and parted by a comma: this is what other programs read.
QString PairText(QPointF point, int decimals)
{
    return QString::number(point.x(), 'f', decimals) + QStringLiteral(", ")
        + QString::number(point.y(), 'f', decimals);
}

// An ampersand in a name is not a mnemonic.
QString MenuName(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void AddTitle(QMenu& menu, const QString& name)
{
    QAction* title = menu.addAction(MenuName(name));
    QFont bold = menu.font();
    bold.setBold(true);
    title->setFont(bold);
    title->setEnabled(false);
    title->setToolTip({});
}

} // namespace

MapMenu::MapMenu(MapCanvas& canvas, QWidget& window, const Shared& shared)
    : m_canvas(canvas), m_window(window), m_shared(shared)
{
    connect(&canvas, &MapCanvas::MenuWanted, this, [this](QPointF pixel) {
        Guard(&m_window, [&] { Open(pixel); });
    });
}

void MapMenu::Use(MapSession& session)
{
    m_session = &session;
    session.Shell().AddLayerCommand(OpenFolderCommand(session.Document()));
}

void MapMenu::Open(QPointF pixel)
{
    if (!m_session)
        return;
    auto* menu = new QMenu(&m_canvas);
    menu->setObjectName(QStringLiteral("mnuMap"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    const std::vector<const MapLayer*> layers = LayersAt(pixel);
    if (!layers.empty()) {
        AddTitle(*menu, layers.front()->name);
        AddLayer(*menu, layers.front()->layerID);
        menu->addSeparator();
    }
    for (size_t i = 1; i < layers.size(); ++i) {
        QMenu* more = menu->addMenu(MenuName(layers[i]->name));
        more->setToolTipsVisible(true);
        AddLayer(*more, layers[i]->layerID);
    }
    menu->addSeparator();
    AddMap(*menu, m_canvas.View().ToMap(pixel));
    menu->popup(m_canvas.mapToGlobal(pixel.toPoint()));
}

std::vector<const MapLayer*> MapMenu::LayersAt(QPointF pixel) const
{
    const double denominator = m_canvas.ScaleDenominator();
    const HitTest test(m_canvas.Layers(), m_canvas.View());
    const auto isShown = [=](const MapLayer& layer) { return layer.IsShownAt(denominator); };
    std::vector<const MapLayer*> layers;
    for (const Hit& hit : test.At(pixel, isShown)) {
        const bool isListed = std::find(layers.begin(), layers.end(), hit.layer) != layers.end();
        if (!isListed && layers.size() < MostLayers)
            layers.push_back(hit.layer);
    }
    for (const MapLayer* raster : test.RastersAt(pixel, isShown)) {
        if (layers.size() < MostLayers)
            layers.push_back(raster);
    }
    return layers;
}

void MapMenu::AddLayer(QMenu& menu, qint32 layerID)
{
    const auto add = [&](const QString& text, const std::function<void()>& act) {
        return menu.addAction(text, this, [this, act, session = m_session] {
            if (session) // the map of that time
                Guard(&m_window, act);
        });
    };
    for (const LayerCommand& command : m_session->Shell().LayerCommands()) {
        QAction* action = add(command.text, [run = command.run, layerID] { run({layerID}); });
        action->setObjectName(command.id);
        const QString whyNot = command.whyNot({layerID});
        action->setEnabled(whyNot.isEmpty());
        if (!whyNot.isEmpty())
            action->setToolTip(whyNot);
    }
    add(tr("Remove"), [this, layerID] { Remove(layerID); })->setObjectName(QStringLiteral("Remove"));
}

void MapMenu::AddMap(QMenu& menu, QPointF map)
{
    menu.addAction(&m_shared.showAll);
    menu.addAction(&m_shared.previousView);
    QAction* centre = menu.addAction(tr("Centre Here"), this, [this, map] {
        const MapView& view = m_canvas.View();
        m_canvas.SetView(MapView(map, view.UnitsPerPixel(), view.Size()));
    });
    centre->setObjectName(QStringLiteral("CentreHere"));
    AddCopies(*menu.addMenu(tr("Copy Coordinates")), map);
}

void MapMenu::AddCopies(QMenu& menu, QPointF map)
{
    menu.setObjectName(QStringLiteral("mnuCopyCoordinates"));
    const QString system = m_session->Document().System();
    const auto degrees = PositionText(system).DegreesOf(map);
    const int decimals = m_canvas.View().UnitsPerPixel() < FineUnits ? DegreeDecimals : MapDecimals;
    if (degrees)
        AddCopy(menu, PairText(*degrees, DegreeDecimals), tr("%1 (longitude, latitude)"));
    if (!degrees || *degrees != map)
        AddCopy(menu, PairText(map, decimals), tr("%1 (in the map's system)"));
}

void MapMenu::AddCopy(QMenu& menu, const QString& position, const QString& text)
{
    menu.addAction(text.arg(position), this, [position] { QApplication::clipboard()->setText(position); });
}

void MapMenu::Remove(qint32 layerID)
{
    if (!m_session)
        return;
    ShellClient& shell = m_session->Shell();
    shell.DeleteLayers({layerID});
    shell.RefreshEditors();
}

} // namespace Orvane

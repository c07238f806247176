// SPDX-License-Identifier: MIT
#include "shell/table/AttributeTables.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "shell/features/FeatureBounds.h"
#include "shell/features/FeatureSelection.h"
#include "shell/map/MapSession.h"
#include "shell/table/AttributeTable.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAction>
#include <QHash>
#include <QInputDialog>
#include <QMenu>
#include <QSet>

#include <algorithm>

namespace Orvane {

namespace {

constexpr int NoTable = 10110; // the number of the error

// Names as the user may choose them; the same name is told apart by a number.
QStringList DifferentNames(const std::vector<const MapLayer*>& layers)
{
    QStringList names;
    names.reserve(int(layers.size()));
    QSet<QString> taken;
    QHash<QString, int> numbers; // the last one that was given to a name
    for (const MapLayer* layer : layers) {
        QString name = layer->name;
        while (taken.contains(name)) {
            int& number = numbers[layer->name];
            number = std::max(number + 1, 2);
            name = QStringLiteral("%1 (%2)").arg(layer->name).arg(number);
        }
        taken.insert(name);
        names << name;
    }
    return names;
}

} // namespace

AttributeTables::AttributeTables(QWidget& window, MapCanvas& canvas, FeatureSelection& selection, QMenu& menu)
    : m_window(window), m_canvas(canvas), m_selection(selection)
{
    QAction* action = menu.addAction(tr("Attribute &Table..."));
    action->setObjectName(QStringLiteral("actAttributeTable"));
    action->setStatusTip(tr("Show the attributes of all features of a layer"));
    action->setShortcut(Qt::Key_F6);
    connect(action, &QAction::triggered, this, [this] { Guard(&m_window, [this] { Ask(); }); });
    connect(&canvas, &MapCanvas::LayersChanged, this, [this] { Guard(&m_window, [this] { Follow(); }); });
}

AttributeTables::~AttributeTables()
{
    CloseAll();
}

void AttributeTables::Use(MapSession& session)
{
    CloseAll();
    m_session = &session;
    session.Shell().AddLayerCommand(
        {QStringLiteral("AttributeTable"), tr("Attribute Table"),
         [this](const std::vector<qint32>& layerIDs) { return WhyNot(layerIDs); },
         [this](const std::vector<qint32>& layerIDs) {
             for (const qint32 layerID : layerIDs)
                 Show(layerID);
         }});
}

void AttributeTables::CloseAll()
{
    for (const auto& [layerID, entry] : std::exchange(m_tables, {}))
        delete entry.window.data();
}

void AttributeTables::Show(qint32 layerID)
{
    const MapLayer* layer = Layer(layerID);
    const std::optional<TableLayer> shown = layer ? TableLayerOf(*layer) : std::nullopt;
    if (!shown)
        throw RunTimeError(NoTable, WhyNoAttributes(layerID));
    Entry& entry = m_tables[layerID];
    if (!entry.window) {
        entry = {new AttributeTable(*shown, m_selection, &m_window), layer->features};
        connect(
            entry.window, &AttributeTable::ZoomWanted, this,
            [this, layerID](const std::set<qint64>& featureIDs) { ZoomTo(layerID, featureIDs); });
    }
    entry.window->show();
    entry.window->raise();
    entry.window->activateWindow();
}

// The layer is clear if one is chosen, if features of one layer are selected, or if only one has data.
void AttributeTables::Ask()
{
    const std::vector<qint32>& chosen = m_session->Shell().ChosenLayers();
    if (chosen.size() == 1)
        return Show(chosen.front());
    if (const std::optional<qint32> selected = SelectedLayer())
        return Show(*selected);
    const std::vector<const MapLayer*> layers = LayersWithData();
    if (layers.empty())
        throw RunTimeError(NoTable, tr("The map has no layer with data."));
    if (layers.size() == 1)
        return Show(layers.front()->layerID);
    const QStringList names = DifferentNames(layers);
    std::vector<qint32> layerIDs; // the layers may be read again meanwhile
    layerIDs.reserve(layers.size());
    for (const MapLayer* layer : layers)
        layerIDs.push_back(layer->layerID);
    QInputDialog dialog(&m_window);
    dialog.setObjectName(QStringLiteral("dlgTableLayer"));
    dialog.setWindowTitle(tr("Attribute Table"));
    dialog.setLabelText(tr("&Layer:"));
    dialog.setComboBoxItems(names);
    if (dialog.exec() == QDialog::Accepted)
        Show(layerIDs[size_t(names.indexOf(dialog.textValue()))]);
}

QString AttributeTables::WhyNot(const std::vector<qint32>& layerIDs) const
{
    constexpr size_t MostAtOnce = 10;
    if (layerIDs.size() > MostAtOnce)
        return tr("Select fewer layers: each has a window of its own.");
    for (const qint32 layerID : layerIDs) {
        QString reason = WhyNoAttributes(layerID);
        if (!reason.isEmpty())
            return reason;
    }
    return {};
}

QString AttributeTables::WhyNoAttributes(qint32 layerID) const
{
    const std::optional<LayerSource> source = m_session->Document().SourceOf(layerID);
    if (!source)
        return tr("This layer has no data, and so no attributes.");
    return source->kind == DataKind::Raster ? tr("A raster has no attributes.") : QString();
}

std::vector<const MapLayer*> AttributeTables::LayersWithData() const
{
    std::set<qint32> withSource;
    for (const LayerSource& source : m_session->Document().Sources()) {
        if (source.kind == DataKind::Features)
            withSource.insert(source.layerID);
    }
    std::vector<const MapLayer*> layers;
    for (const MapLayer& layer : m_session->Layers()) {
        if (withSource.contains(layer.layerID))
            layers.push_back(&layer);
    }
    std::sort(layers.begin(), layers.end(), [](const MapLayer* a, const MapLayer* b) {
        return QString::localeAwareCompare(a->name, b->name) < 0;
    });
    return layers;
}

std::optional<qint32> AttributeTables::SelectedLayer() const
{
    const FeatureKeys& keys = m_selection.Keys();
    if (keys.empty() || keys.begin()->layerID != keys.rbegin()->layerID)
        return std::nullopt;
    return keys.begin()->layerID;
}

const MapLayer* AttributeTables::Layer(qint32 layerID) const
{
    const std::vector<MapLayer>& layers = m_session->Layers();
    const auto found = std::find_if(
        layers.begin(), layers.end(), [=](const MapLayer& layer) { return layer.layerID == layerID; });
    return found == layers.end() ? nullptr : &*found;
}

std::optional<TableLayer> AttributeTables::TableLayerOf(const MapLayer& layer) const
{
    const std::optional<LayerSource> source = m_session->Document().SourceOf(layer.layerID);
    if (!source || source->kind == DataKind::Raster)
        return std::nullopt;
    return TableLayer{layer.name, *source, layer.flags.selectable && layer.flags.hitable};
}

void AttributeTables::Follow()
{
    for (auto& [layerID, entry] : m_tables) {
        if (!entry.window)
            continue;
        if (const MapLayer* layer = Layer(layerID))
            Follow(entry, *layer);
        else
            delete entry.window.data();
    }
    std::erase_if(m_tables, [](const auto& table) { return !table.second.window; });
}

// The map has other features when a file has changed, a feature was moved or the data are back.
void AttributeTables::Follow(Entry& entry, const MapLayer& layer) const
{
    const std::optional<TableLayer> now = TableLayerOf(layer);
    if (!now)
        return delete entry.window.data();
    entry.window->Follow(*now);
    if (std::exchange(entry.features, layer.features) != layer.features)
        entry.window->ReadAgain();
}

void AttributeTables::ZoomTo(qint32 layerID, const std::set<qint64>& featureIDs)
{
    FeatureKeys keys;
    for (const qint64 featureID : featureIDs)
        keys.insert({layerID, featureID});
    const Box bounds = BoundsOf(m_session->Layers(), keys);
    if (bounds.IsEmpty())
        throw RunTimeError(NoTable, tr("The map does not show these features."));
    m_canvas.ZoomTo(bounds);
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "mapkit/canvas/MapPicture.h"

#include <QHash>
#include <QPainter>
#include <QSet>

#include <new>

namespace Orvane {

namespace {

constexpr qint64 UnfinishedAfter = 300; // milliseconds

// The IDs of the layers that were added or removed, or that now look different.
QSet<qint32> ChangedLayers(const std::vector<MapLayer>& before, const std::vector<MapLayer>& after)
{
    QHash<qint32, const MapLayer*> known;
    for (const MapLayer& layer : before)
        known.insert(layer.layerID, &layer);
    QSet<qint32> changed;
    for (const MapLayer& layer : after) {
        const MapLayer* was = known.take(layer.layerID);
        if (!was || !was->LooksLike(layer))
            changed.insert(layer.layerID);
    }
    for (auto gone = known.keyBegin(); gone != known.keyEnd(); ++gone)
        changed.insert(*gone);
    return changed;
}

template <typename Map> void EraseLayers(Map& images, const QSet<qint32>& layerIDs)
{
    std::erase_if(images, [&](const auto& entry) {
        const std::vector<qint32>& key = entry.first;
        return std::any_of(
            key.begin(), key.end(), [&](qint32 layerID) { return layerIDs.contains(layerID); });
    });
}

// A picture that is too large for memory stays empty; the user can zoom in or hide layers.
SheetImage DrawOrNothing(
    const Sheet& sheet, const MapView& view, double devicePixelRatio, const std::atomic<bool>& cancelled)
{
    try {
        return DrawSheet(sheet, view, devicePixelRatio, cancelled);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

} // namespace

MapPicture::MapPicture(QObject* parent)
    : QObject(parent), m_cancelled(std::make_shared<std::atomic<bool>>(false))
{
}

MapPicture::~MapPicture()
{
    *m_cancelled = true;
    m_pool.waitForDone();
}

void MapPicture::SetLayers(std::vector<MapLayer> layers)
{
    TakeLayers(std::move(layers));
    Refresh();
}

void MapPicture::SetBackground(const QColor& colour)
{
    if (colour == m_background)
        return;
    m_background = colour;
    if (m_image.isNull())
        return;
    if (ForgetLabels())
        Refresh();
    else
        Compose();
}

// Their halos have the colour of the background. Returns whether there are any.
bool MapPicture::ForgetLabels()
{
    bool hasLabels = false;
    for (const Sheet& sheet : m_sheets) {
        if (sheet.labels)
            m_images.erase(sheet.Key());
        hasLabels |= sheet.labels;
    }
    return hasLabels;
}

void MapPicture::SetView(const MapView& view, double scaleDenominator, double devicePixelRatio)
{
    if (view == m_view && devicePixelRatio == m_devicePixelRatio && !m_image.isNull())
        return;
    TakeView(view, scaleDenominator, devicePixelRatio);
    Refresh();
}

void MapPicture::Show(
    std::vector<MapLayer> layers, const MapView& view, double scaleDenominator, double devicePixelRatio)
{
    TakeLayers(std::move(layers));
    TakeView(view, scaleDenominator, devicePixelRatio);
    Refresh();
}

void MapPicture::TakeLayers(std::vector<MapLayer> layers)
{
    const QSet<qint32> changed = ChangedLayers(m_layers, layers);
    EraseLayers(m_images, changed);
    EraseLayers(m_earlier, changed);
    m_layers = std::move(layers);
}

void MapPicture::TakeView(const MapView& view, double scaleDenominator, double devicePixelRatio)
{
    KeepRasterImages();
    m_view = view;
    m_scaleDenominator = scaleDenominator;
    m_devicePixelRatio = devicePixelRatio;
    m_images.clear();
}

// Drawing a raster may take long.
void MapPicture::KeepRasterImages()
{
    for (const Sheet& sheet : m_sheets) {
        const auto drawn = m_images.find(sheet.Key());
        if (drawn != m_images.end() && sheet.HasRaster())
            m_earlier[drawn->first] = {std::move(drawn->second), m_view};
    }
}

void MapPicture::Refresh()
{
    *m_cancelled = true;
    m_cancelled = std::make_shared<std::atomic<bool>>(false);
    ++m_generation;
    m_sheets = PlanSheets(m_layers, m_view, m_scaleDenominator);
    Images kept;
    std::vector<const Sheet*> missing;
    for (Sheet& sheet : m_sheets) {
        sheet.background = m_background;
        if (auto node = m_images.extract(sheet.Key()))
            kept.insert(std::move(node));
        else
            missing.push_back(&sheet);
    }
    m_images = std::move(kept);
    m_sinceShown.start();
    SetPending(missing.size());
    for (const Sheet* sheet : missing)
        Start(*sheet);
    if (m_pending == 0)
        Compose();
}

void MapPicture::Start(const Sheet& sheet)
{
    m_pool.start([this, sheet, view = m_view, ratio = m_devicePixelRatio, cancelled = m_cancelled,
                  generation = m_generation] {
        if (*cancelled)
            return;
        const SheetImage image = DrawOrNothing(sheet, view, ratio, *cancelled);
        QMetaObject::invokeMethod(
            this, [this, generation, sheet, image] { Take(generation, sheet, image); }, Qt::QueuedConnection);
    });
}

void MapPicture::Take(quint64 generation, const Sheet& sheet, const SheetImage& image)
{
    if (generation != m_generation)
        return;
    m_images[sheet.Key()] = image;
    m_earlier.erase(sheet.Key());
    for (const MapLayer& layer : sheet.layers)
        emit LayerDrawn(layer.layerID);
    for (const auto& [layerID, reason] : image.failures)
        LeaveOut(layerID);
    Finish();
    for (const auto& [layerID, reason] : image.failures)
        emit LayerFailed(layerID, reason);
}

void MapPicture::LeaveOut(qint32 layerID)
{
    for (MapLayer& layer : m_layers) {
        if (layer.layerID == layerID)
            layer.raster.reset();
    }
}

void MapPicture::Finish()
{
    SetPending(m_pending - 1);
    if (m_pending == 0 || m_sinceShown.elapsed() > UnfinishedAfter)
        Compose();
}

void MapPicture::Compose()
{
    m_sinceShown.start();
    m_imageView = m_view;
    m_image = QImage((QSizeF(m_view.Size()) * m_devicePixelRatio).toSize(), QImage::Format_RGB32);
    m_image.setDevicePixelRatio(m_devicePixelRatio);
    m_image.fill(m_background);
    QPainter painter(&m_image);
    for (const Sheet& sheet : m_sheets) {
        const auto found = m_images.find(sheet.Key());
        if (found != m_images.end())
            PlaceSheet(painter, sheet, found->second);
        else
            PlaceEarlier(painter, sheet);
    }
    painter.end();
    if (m_pending == 0)
        m_earlier.clear();
    emit Changed();
}

// Until the image for the present view is drawn, the last one is shown moved and scaled.
void MapPicture::PlaceEarlier(QPainter& painter, const Sheet& sheet) const
{
    const auto found = m_earlier.find(sheet.Key());
    if (found == m_earlier.end())
        return;
    const MapView& view = found->second.view;
    painter.save();
    painter.translate(m_view.ToPixel(view.ToMap({0, 0})));
    const double stretch = view.UnitsPerPixel() / m_view.UnitsPerPixel();
    painter.scale(stretch, stretch);
    PlaceSheet(painter, sheet, found->second.image);
    painter.restore();
}

void MapPicture::SetPending(size_t pending)
{
    const bool wasBusy = IsBusy();
    m_pending = pending;
    if (IsBusy() != wasBusy)
        emit BusyChanged(IsBusy());
}

} // namespace Orvane

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

void MapPicture::SetBackdrop(std::shared_ptr<const RasterBackdrop> backdrop)
{
    if (backdrop == m_backdrop)
        return;
    TakeBackdropSource(std::move(backdrop));
    Refresh();
}

void MapPicture::SetBackground(const QColor& colour)
{
    if (colour == m_background)
        return;
    m_background = colour;
    if (!m_image.isNull())
        Compose();
}

void MapPicture::SetView(const MapView& view, double scaleDenominator, double devicePixelRatio)
{
    if (view == m_view && devicePixelRatio == m_devicePixelRatio && !m_image.isNull())
        return;
    TakeView(view, scaleDenominator, devicePixelRatio);
    Refresh();
}

void MapPicture::Show(
    std::vector<MapLayer> layers, std::shared_ptr<const RasterBackdrop> backdrop, const MapView& view,
    double scaleDenominator, double devicePixelRatio)
{
    TakeLayers(std::move(layers));
    TakeBackdropSource(std::move(backdrop));
    TakeView(view, scaleDenominator, devicePixelRatio);
    Refresh();
}

void MapPicture::TakeLayers(std::vector<MapLayer> layers)
{
    const QSet<qint32> changed = ChangedLayers(m_layers, layers);
    std::erase_if(m_images, [&](const auto& entry) {
        const std::vector<qint32>& key = entry.first;
        return std::any_of(key.begin(), key.end(), [&](qint32 layerID) { return changed.contains(layerID); });
    });
    m_layers = std::move(layers);
}

void MapPicture::TakeBackdropSource(std::shared_ptr<const RasterBackdrop> backdrop)
{
    if (backdrop == m_backdrop)
        return;
    m_backdrop = std::move(backdrop);
    m_backdropImage = {};
    m_backdropDrawn = false;
}

void MapPicture::TakeView(const MapView& view, double scaleDenominator, double devicePixelRatio)
{
    m_view = view;
    m_scaleDenominator = scaleDenominator;
    m_devicePixelRatio = devicePixelRatio;
    m_images.clear();
    m_backdropDrawn = false;
}

void MapPicture::Refresh()
{
    *m_cancelled = true;
    m_cancelled = std::make_shared<std::atomic<bool>>(false);
    ++m_generation;
    m_sheets = PlanSheets(m_layers, m_view, m_scaleDenominator);
    Images kept;
    std::vector<const Sheet*> missing;
    for (const Sheet& sheet : m_sheets) {
        if (auto node = m_images.extract(sheet.Key()))
            kept.insert(std::move(node));
        else
            missing.push_back(&sheet);
    }
    m_images = std::move(kept);
    m_sinceShown.start();
    const bool backdropMissing = m_backdrop && !m_backdropDrawn;
    SetPending(missing.size() + (backdropMissing ? 1 : 0));
    for (const Sheet* sheet : missing)
        Start(*sheet);
    if (backdropMissing)
        StartBackdrop();
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
    for (const MapLayer& layer : sheet.layers)
        emit LayerDrawn(layer.layerID);
    Finish();
}

void MapPicture::StartBackdrop()
{
    m_pool.start([this, backdrop = m_backdrop, view = m_view, ratio = m_devicePixelRatio,
                  cancelled = m_cancelled, generation = m_generation] {
        QImage image;
        QString failure;
        try {
            image = backdrop->Draw(view, ratio, *cancelled);
        } catch (const std::exception& error) {
            failure = QString::fromUtf8(error.what());
        }
        QMetaObject::invokeMethod(
            this, [this, generation, image, failure] { TakeBackdrop(generation, image, failure); },
            Qt::QueuedConnection);
    });
}

void MapPicture::TakeBackdrop(quint64 generation, const QImage& image, const QString& failure)
{
    if (generation != m_generation)
        return;
    m_backdropImage = image;
    m_backdropView = m_view;
    m_backdropDrawn = true;
    if (!failure.isEmpty())
        m_backdrop.reset();
    Finish();
    if (!failure.isEmpty())
        emit BackdropFailed(failure);
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
    PlaceBackdrop(painter);
    for (const Sheet& sheet : m_sheets) {
        const auto found = m_images.find(sheet.Key());
        if (found != m_images.end())
            PlaceSheet(painter, sheet, found->second);
    }
    painter.end();
    emit Changed();
}

// Until the image for the present view is drawn, the last one is shown moved and scaled.
void MapPicture::PlaceBackdrop(QPainter& painter) const
{
    if (m_backdropImage.isNull())
        return;
    const QPointF topLeft = m_view.ToPixel(m_backdropView.ToMap({0, 0}));
    const double stretch = m_backdropView.UnitsPerPixel() / m_view.UnitsPerPixel();
    painter.drawImage(QRectF(topLeft, QSizeF(m_backdropView.Size()) * stretch), m_backdropImage);
}

void MapPicture::SetPending(size_t pending)
{
    const bool wasBusy = IsBusy();
    m_pending = pending;
    if (IsBusy() != wasBusy)
        emit BusyChanged(IsBusy());
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"
#include "mapkit/drawing/Sheets.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <map>
#include <memory>

class QPainter;

namespace Orvane {

/// The picture of a map, drawn in the background and kept up to date with the least drawing: a change of one
/// layer draws only that layer's image again, and a change of order or visibility only combines the images
/// again.
///
///     picture.SetLayers(document.Layers());
///     picture.SetView(view, scaleDenominator, devicePixelRatio());
///     connect(&picture, &MapPicture::Changed, this, [this] { update(); });
///
/// Use all members only on the thread that created the object. Nothing here raises.
class MapPicture : public QObject
{
    Q_OBJECT
public:
    explicit MapPicture(QObject* parent = nullptr);
    /// Cancels what is being drawn and waits for it.
    ~MapPicture() override;

    /// Replaces the layers, which are identified by their IDs.
    void SetLayers(std::vector<MapLayer> layers);
    /// The colour under everything; white at first.
    void SetBackground(const QColor& colour);
    /// Shows another part of the map. Drawing of the former part is cancelled.
    void SetView(const MapView& view, double scaleDenominator, double devicePixelRatio);
    /// Sets both, and draws only once.
    void
    Show(std::vector<MapLayer> layers, const MapView& view, double scaleDenominator, double devicePixelRatio);

    const QColor& Background() const { return m_background; }
    const std::vector<MapLayer>& Layers() const { return m_layers; }
    /// The last picture; null before the first one is drawn.
    const QImage& Image() const { return m_image; }
    /// The view that Image shows; while drawing is in progress, it may be an earlier view.
    const MapView& ImageView() const { return m_imageView; }
    bool IsBusy() const { return m_pending > 0; }

signals:
    /// Image has changed.
    void Changed();
    void BusyChanged(bool busy);
    /// A layer was drawn again.
    void LayerDrawn(qint32 layerID);
    /// The layer's raster cannot be drawn. It is left out until SetLayers or Show sets it again.
    void LayerFailed(qint32 layerID, const QString& reason);

private:
    using Images = std::map<std::vector<qint32>, SheetImage>; // by Sheet::Key
    struct EarlierImage {
        SheetImage image;
        MapView view;
    };

    void TakeLayers(std::vector<MapLayer> layers);
    void TakeView(const MapView& view, double scaleDenominator, double devicePixelRatio);
    void KeepRasterImages();
    void Refresh();
    void Start(const Sheet& sheet);
    void Take(quint64 generation, const Sheet& sheet, const SheetImage& image);
    void LeaveOut(qint32 layerID);
    bool ForgetLabels();
    void Finish();
    void Compose();
    void PlaceEarlier(QPainter& painter, const Sheet& sheet) const;
    void SetPending(size_t pending);

    QColor m_background = Qt::white;
    std::vector<MapLayer> m_layers;
    std::vector<Sheet> m_sheets;
    Images m_images; // of m_view
    std::map<std::vector<qint32>, EarlierImage> m_earlier; // of rasters that are being drawn, by Sheet::Key
    MapView m_view;
    double m_scaleDenominator = 1;
    double m_devicePixelRatio = 1;
    QImage m_image;
    MapView m_imageView;
    QElapsedTimer m_sinceShown;
    QThreadPool m_pool;
    std::shared_ptr<std::atomic<bool>> m_cancelled;
    quint64 m_generation = 0;
    size_t m_pending = 0;
};

} // namespace Orvane

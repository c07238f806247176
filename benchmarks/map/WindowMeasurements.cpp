// SPDX-License-Identifier: MIT
// Orvane's window with maps of many layers, against GDAL and QPainter alone.
#include "benchmarks/Measurement.h"
#include "benchmarks/map/BareMap.h"
#include "benchmarks/map/MapData.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "shell/features/HitTest.h"
#include "shell/map/MapSession.h"
#include "store/ILayerStore.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QImage>
#include <QMainWindow>

#include <memory>

namespace Orvane::Benchmarks {

namespace {

constexpr QSize WindowSize(1000, 700);
constexpr int Pointers = 100; // places that the pointer visits in one run

using Layers = std::vector<BareMap::Areas>;

QSize CanvasSize()
{
    return QSize(800, 600);
}

QImage EmptyPicture()
{
    return QImage(CanvasSize(), QImage::Format_ARGB32_Premultiplied);
}

/// Orvane's window, which can be made again.
class MapWindow
{
public:
    void Close() { m_window.reset(); }

    void Show()
    {
        m_window = std::make_unique<MainWindow>();
        m_window->resize(WindowSize);
        m_window->show();
        QCoreApplication::processEvents();
    }

    /// Returns when the map is painted.
    void Open(const QString& map)
    {
        m_window->OpenMap(map);
        WaitForPicture();
    }

    /// Gives the layer another colour, and returns when the map is painted.
    void Recolour(int number)
    {
        m_window->Document().Database().Execute(
            QStringLiteral("UPDATE Layers SET FillForeColor = (FillForeColor + 1) % 16777216"
                           " WHERE Name = ?1"),
            {QStringLiteral("Layer %1").arg(number)});
        m_window->Session().DrawAgain({LayerWithName(number)});
        WaitForPicture();
    }

    MapCanvas& Canvas() { return m_window->Canvas(); }

private:
    qint32 LayerWithName(int number) const
    {
        const QString name = QStringLiteral("Layer %1").arg(number);
        for (const MapLayer& layer : m_window->Session().Layers()) {
            if (layer.name == name)
                return layer.layerID;
        }
        qFatal("the map has not all of its layers");
    }

    void WaitForPicture()
    {
        const MapPicture& picture = m_window->Canvas().Picture();
        QCoreApplication::processEvents();
        while (picture.IsBusy() || picture.Image().isNull())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        m_window->Canvas().repaint();
    }

    std::unique_ptr<MainWindow> m_window;
};

std::shared_ptr<MapWindow> WindowWith(const QString& map)
{
    auto window = std::make_shared<MapWindow>();
    window->Show();
    window->Open(map);
    return window;
}

Work Opening(const QString& map)
{
    auto window = std::make_shared<MapWindow>();
    const auto before = [window] {
        window->Close();
        window->Show();
    };
    return {before, [window, map] { window->Open(map); }};
}

// ---- a map that is opened and drawn

Work BareOpen(const JobSize& size)
{
    return [file = MapData::File(size.layers), picture = EmptyPicture()]() mutable {
        const Layers layers = BareMap::Read(file);
        BareMap::Draw(picture, layers, MapView::Fitting(BareMap::BoundsOf(layers), picture.size()));
    };
}

Work WindowOpen(const JobSize& size)
{
    return Opening(MapData::Map(size.layers));
}

// ---- a map whose layers are all hidden: the bare loop reads the same few layers, and shows nothing

Work BareOpenHidden(const JobSize& size)
{
    MapData::HiddenMap(size.layers);
    return [file = MapData::FileOfHidden(size.layers), picture = EmptyPicture()]() mutable {
        const Layers layers = BareMap::Read(file);
        BareMap::Draw(picture, {}, MapView::Fitting(BareMap::BoundsOf(layers), picture.size()));
    };
}

Work WindowOpenHidden(const JobSize& size)
{
    return Opening(MapData::HiddenMap(size.layers));
}

// ---- one layer of many that gets another colour: the bare loop draws that layer, and nothing else

Work BareRedraw(const JobSize& size)
{
    const Layers all = BareMap::Read(MapData::File(size.layers));
    const MapView view = MapView::Fitting(BareMap::BoundsOf(all), CanvasSize());
    return [layer = Layers{all.front()}, view, picture = EmptyPicture()]() mutable {
        BareMap::Draw(picture, layer, view);
    };
}

Work WindowRedraw(const JobSize& size)
{
    auto window = WindowWith(MapData::Map(size.layers));
    return [window, middle = size.layers / 2] { window->Recolour(middle); };
}

// ---- what is under the pointer

QPointF PlaceOfPointer(int number)
{
    return {double(number * 7919 % CanvasSize().width()), double(number * 104729 % CanvasSize().height())};
}

Work BareHits(const JobSize& size)
{
    const Layers all = BareMap::Read(MapData::File(size.layers));
    const MapView view = MapView::Fitting(BareMap::BoundsOf(all), CanvasSize());
    return [all, view] {
        volatile int found = 0;
        for (int pointer = 0; pointer < Pointers; ++pointer)
            found = found + BareMap::CountAt(all, view, PlaceOfPointer(pointer));
    };
}

Work WindowHits(const JobSize& size)
{
    return [window = WindowWith(MapData::Map(size.layers))] {
        const HitTest test(window->Canvas().Layers(), window->Canvas().View());
        size_t found = 0;
        for (int pointer = 0; pointer < Pointers; ++pointer)
            found += test.At(PlaceOfPointer(pointer), [](const MapLayer& layer) { return layer.visible; })
                         .size();
        if (found == 0)
            qFatal("nothing was found under the pointer");
    };
}

// ---- the first window of the program

Work BareFirstPaint(const JobSize&)
{
    auto window = std::make_shared<std::unique_ptr<QMainWindow>>();
    return {
        [window] { window->reset(); },
        [window] {
            *window = std::make_unique<QMainWindow>();
            (*window)->resize(WindowSize);
            (*window)->show();
            QCoreApplication::processEvents();
        }};
}

Work WindowFirstPaint(const JobSize&)
{
    auto window = std::make_shared<MapWindow>();
    return {[window] { window->Close(); }, [window] { window->Show(); }};
}

std::vector<JobSize> MapSizes()
{
    return {{20, 0}, {200, 0}, {1000, 0}};
}

const Announcement Announcements[] = {
    Announcement({"Open and draw map", BareLevel, MapSizes(), BareOpen}),
    Announcement({"Open and draw map", "window", MapSizes(), WindowOpen}),
    Announcement({"Open hidden layers", BareLevel, {{100, 0}, {1000, 0}, {10000, 0}}, BareOpenHidden}),
    Announcement({"Open hidden layers", "window", {{100, 0}, {1000, 0}, {10000, 0}}, WindowOpenHidden}),
    Announcement({"Redraw one layer", BareLevel, MapSizes(), BareRedraw}),
    Announcement({"Redraw one layer", "window", MapSizes(), WindowRedraw}),
    Announcement({"Hit test, 100 places", BareLevel, MapSizes(), BareHits}),
    Announcement({"Hit test, 100 places", "window", MapSizes(), WindowHits}),
    Announcement({"First paint", BareLevel, {{0, 0}}, BareFirstPaint}),
    Announcement({"First paint", "window", {{0, 0}}, WindowFirstPaint}),
};

} // namespace

} // namespace Orvane::Benchmarks

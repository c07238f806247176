// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/canvas/MapTool.h"

#include <QApplication>
#include <QMouseEvent>
#include <QRectF>
#include <QStringList>
#include <QTest>

#include <gmock/gmock.h>
#include <initializer_list>
#include <memory>
#include <vector>

namespace Orvane::Testing {

/// Collects features with the IDs 1, 2 and so on.
class FeatureBuilder
{
public:
    FeatureBuilder& Add(FeatureKind kind, std::initializer_list<std::vector<QPointF>> parts)
    {
        m_set.BeginFeature(kind, ++m_lastID);
        for (const std::vector<QPointF>& part : parts)
            m_set.AddPart(part);
        return *this;
    }
    FeatureBuilder& Square(double west, double south, double size)
    {
        return Add(
            FeatureKind::Area,
            {{{west, south},
              {west + size, south},
              {west + size, south + size},
              {west, south + size},
              {west, south}}});
    }
    std::shared_ptr<const FeatureSet> Done() { return std::make_shared<const FeatureSet>(std::move(m_set)); }

private:
    FeatureSet m_set;
    qint64 m_lastID = 0;
};

inline MapLayer NamedLayer(
    qint32 layerID, const QString& name, std::shared_ptr<const FeatureSet> features, int priority = 128)
{
    MapLayer layer;
    layer.layerID = layerID;
    layer.name = name;
    layer.priority = priority;
    layer.look.outline = QPen(Qt::black, 1);
    layer.look.fill = QColor(Qt::lightGray);
    layer.look.symbol = Qt::black;
    layer.features = std::move(features);
    return layer;
}

/// A canvas of 200 pixels square that shows 0 to 100 map units both ways, two pixels per unit, and the mouse
/// actions of a user.
class ToolCanvasTest : public testing::Test
{
protected:
    ToolCanvasTest()
    {
        m_canvas.resize(200, 200);
        m_canvas.show();
        m_canvas.SetView(MapView({50, 50}, 0.5, {200, 200}));
    }

    void Show(std::vector<MapLayer> layers) { m_canvas.SetLayers(std::move(layers), 1); }

    void Take(MapTool& tool)
    {
        QObject::connect(
            &tool, &MapTool::StatusChanged, &m_canvas, [this](const QString& text) { m_status = text; });
        m_canvas.SetTool(&tool);
    }

    static QPoint Pixel(double x, double y) { return QPointF(2 * x, 200 - 2 * y).toPoint(); }

    void Click(double x, double y, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(&m_canvas, Qt::LeftButton, modifiers, Pixel(x, y));
    }
    // Sent even when the pointer is there already.
    void Hover(double x, double y)
    {
        const QPointF pixel = Pixel(x, y);
        QMouseEvent event(
            QEvent::MouseMove, pixel, m_canvas.mapToGlobal(pixel), Qt::NoButton, Qt::NoButton,
            Qt::NoModifier);
        QApplication::sendEvent(&m_canvas, &event);
    }
    void Drag(QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = {})
    {
        BeginDrag(from, to, modifiers);
        QTest::mouseRelease(&m_canvas, Qt::LeftButton, modifiers, Pixel(to.x(), to.y()));
    }
    void BeginDrag(QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(&m_canvas, Qt::LeftButton, modifiers, Pixel(from.x(), from.y()));
        const QPointF half = (from + to) / 2;
        QTest::mouseMove(&m_canvas, Pixel(half.x(), half.y()));
        QTest::mouseMove(&m_canvas, Pixel(to.x(), to.y()));
    }
    void Press(Qt::Key key) { QTest::keyClick(&m_canvas, key); }
    QColor ColourAt(double x, double y) { return m_canvas.grab().toImage().pixelColor(Pixel(x, y)); }

    MapCanvas m_canvas;
    QString m_status;
};

} // namespace Orvane::Testing

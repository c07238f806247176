// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>
#include <QObject>
#include <QPointF>
#include <QString>

class QKeyEvent;
class QPainter;

namespace Orvane {

class MapView;

/// Something that is painted over the map at each refresh of the window.
class MapOverlay
{
public:
    virtual ~MapOverlay() = default;
    MapOverlay(const MapOverlay&) = delete;
    MapOverlay& operator=(const MapOverlay&) = delete;

    /// painter: stands on the view's logical pixels; its state need not be restored. Must not raise.
    virtual void Paint(QPainter& painter, const MapView& view) const = 0;

protected:
    MapOverlay() = default;
};

/// What the pointer does on the map. A canvas with a tool hands it the person's gestures; what the tool
/// leaves moves the map. Positions are logical pixels of the canvas. Members may raise: the canvas guards
/// them.
///
///     canvas.SetTool(&identify);
///
/// A tool is made once and taken in hand many times.
class MapTool : public QObject, public MapOverlay
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// The pointer over the map while the tool is in hand.
    virtual QCursor Cursor() const { return Qt::ArrowCursor; }
    /// The tool was taken in hand.
    virtual void Begin() { }
    /// The tool was put away; what it had begun is given up.
    virtual void End() { }

    /// The left button went down and up in one place.
    virtual void Click(QPointF pixel, Qt::KeyboardModifiers modifiers);
    /// The second click of two in one place; Click came for the first. False leaves it to the canvas.
    virtual bool DoubleClick(QPointF pixel);
    /// The right button went down.
    virtual void RightClick(QPointF pixel);
    /// The pointer began to move with the left button down, from that pixel. False lets the map move, true
    /// has DragTo and DragEnd follow.
    virtual bool DragBegin(QPointF from, Qt::KeyboardModifiers modifiers);
    virtual void DragTo(QPointF pixel);
    virtual void DragEnd(QPointF pixel);
    /// The pointer moved with no button down.
    virtual void Hover(QPointF pixel);
    /// True when the tool had a use for the key.
    virtual bool Key(const QKeyEvent& event);

    /// Nothing.
    void Paint(QPainter& painter, const MapView& view) const override;

signals:
    /// What the tool has to say about the last gesture; empty for nothing.
    void StatusChanged(const QString& text);
};

} // namespace Orvane

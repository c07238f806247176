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

/// Something that is painted over the map each time the canvas is painted.
class MapOverlay
{
public:
    virtual ~MapOverlay() = default;
    MapOverlay(const MapOverlay&) = delete;
    MapOverlay& operator=(const MapOverlay&) = delete;

    /// painter: in logical pixels of the view; its state need not be restored. Must not raise.
    virtual void Paint(QPainter& painter, const MapView& view) const = 0;

protected:
    MapOverlay() = default;
};

/// What the pointer does on the map. The canvas passes the user's gestures to its current tool; gestures that
/// the tool does not handle move the map. Positions are in logical pixels of the canvas. Members may raise:
/// the canvas catches and shows errors.
///
///     canvas.SetTool(&identify);
///
/// A tool is created once and can be made current many times.
class MapTool : public QObject, public MapOverlay
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// The cursor over the map while the tool is current.
    virtual QCursor Cursor() const { return Qt::ArrowCursor; }
    /// The tool has become the current tool.
    virtual void Begin() { }
    /// The tool is no longer current; cancels what it has begun.
    virtual void End() { }

    /// The left button was pressed and released in one place.
    virtual void Click(QPointF pixel, Qt::KeyboardModifiers modifiers);
    /// The second of two clicks in one place; Click was called for the first. Return false to let the canvas
    /// handle it.
    virtual bool DoubleClick(QPointF pixel);
    /// The right button was pressed. Return false to let the canvas ask for its menu.
    virtual bool RightClick(QPointF pixel);
    /// The pointer began to move with the left button down, from that pixel. Return false to let the map
    /// move, true to get calls of DragTo and DragEnd.
    virtual bool DragBegin(QPointF from, Qt::KeyboardModifiers modifiers);
    virtual void DragTo(QPointF pixel);
    virtual void DragEnd(QPointF pixel);
    /// The pointer moved with no button down.
    virtual void Hover(QPointF pixel);
    /// Returns true if the tool has handled the key.
    virtual bool Key(const QKeyEvent& event);

    /// Paints nothing.
    void Paint(QPainter& painter, const MapView& view) const override;

signals:
    /// A message about the last gesture; empty for none.
    void StatusChanged(const QString& text);
};

} // namespace Orvane

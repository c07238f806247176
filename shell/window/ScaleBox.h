// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace Orvane {

class MapCanvas;

/// Shows the map's scale, and takes one that is typed or chosen from a list of usual ones. Enter zooms around
/// the map's centre and goes back to the map; Escape shows the old scale again and goes back, too. What is
/// being typed stays while the map moves.
class ScaleBox : public QComboBox
{
    Q_OBJECT
public:
    /// canvas: not owned; outlives this object.
    explicit ScaleBox(MapCanvas& canvas, QWidget* parent = nullptr);

    /// Shows the map's scale, unless the user is typing one.
    void ShowScale();

signals:
    /// The text that was entered is no scale: why, for the user. The text stays, to be corrected.
    void Refused(const QString& reason);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Enter();
    void Restore();

    MapCanvas& m_canvas;
};

} // namespace Orvane

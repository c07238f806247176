// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapView.h"

#include <QObject>

#include <vector>

namespace Orvane {

class MapCanvas;

/// The views that a canvas has shown, to go back and forward in, as in a browser: one entry for each step of
/// the user (MapCanvas::Step), the last hundred of them. A new step drops what was ahead. Views of an empty
/// canvas are not kept, and a change of the window's size is not a step.
class ViewHistory : public QObject
{
    Q_OBJECT
public:
    /// canvas: not owned; outlives this object.
    explicit ViewHistory(MapCanvas& canvas);

    /// Forgets all views: another map is shown from now on.
    void Clear();

    /// Forgets all views but the one that is shown: the others were in another coordinate system.
    void Restart();

    bool CanGoBack() const { return m_current > 0; }
    bool CanGoForward() const { return m_current + 1 < m_views.size(); }
    /// Shows the previous view; does nothing if there is none.
    void GoBack();
    /// Shows the view from which GoBack came; does nothing if there is none.
    void GoForward();

signals:
    /// What CanGoBack and CanGoForward return may have changed.
    void Changed();

private:
    void Note();
    void GoTo(size_t index);

    MapCanvas& m_canvas;
    std::vector<MapView> m_views;
    size_t m_current = 0; // index of the view shown, if there are any
    quint64 m_step = 0; // of that view
    bool m_isGoing = false;
};

} // namespace Orvane

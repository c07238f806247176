// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/ViewHistory.h"

#include <QObject>
#include <QPointer>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace Orvane {

class FeatureSelection;
class MapCanvas;
class MapSession;
enum class IconName;

/// The commands that move the view: to the chosen layers, to the selected features, to the previous view and
/// the next. One that is not possible is grey, and its tool tip and status tip say why.
class ViewActions : public QObject
{
    Q_OBJECT
public:
    /// Where the commands go.
    struct Place {
        QMenu& menu;
        QToolBar& bar;
        QAction& behind; ///< in both
    };

    /// Adds the commands there. None is owned; all outlive this object.
    ViewActions(
        QMainWindow& window, MapCanvas& canvas, const FeatureSelection& selection, const Place& place);

    /// The commands work on this map from now on; not owned, and may end before this object. Views of the
    /// map before are forgotten.
    void Use(MapSession& session);

    /// The command "Previous View"; not owned.
    QAction& Previous() const { return *m_previous; }

private:
    struct Command;

    QAction* Add(const Place& place, const Command& command);
    void Connect(const FeatureSelection& selection);
    void FollowSystem();
    void ShowWhatIsPossible();
    void ZoomToLayers();
    QString WhyNotLayers() const;
    QString WhyNotSelection() const;

    QMainWindow& m_window;
    MapCanvas& m_canvas;
    const FeatureSelection& m_selection;
    ViewHistory m_history;
    QString m_system; // of the map, that the views in the history are in
    QPointer<MapSession> m_session;
    QAction* m_layers; // all four owned by the window
    QAction* m_selected;
    QAction* m_previous;
    QAction* m_next;
};

} // namespace Orvane

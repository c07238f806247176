// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"
#include "shell/features/FeatureKey.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QPointF>

class QWidget;

namespace Orvane {

class MapSession;

/// Moves features in their sources, shows them at their new place, and adds each move to the map's history.
///
/// Only the data change, not the map file. Errors are those of SourceEditor.
class FeatureMover
{
    Q_DECLARE_TR_FUNCTIONS(FeatureMover)

public:
    /// Neither is owned; both outlive this object and the session's history. A source that takes long shows
    /// its progress over the window.
    FeatureMover(MapSession& session, QWidget& window) : m_session(session), m_window(window) { }

    /// Raises the reason when the feature cannot be moved.
    void Check(const FeatureKey& key);
    /// Moves the feature by this many map units east and north, as one step that can be undone. On an error
    /// nothing is moved.
    void Move(const FeatureKey& key, QPointF offset);

private:
    MapSession& m_session;
    QWidget& m_window;
};

/// One feature's geometry in its source, before and after a change, in well-known binary.
struct GeometryChange {
    LayerSource source;
    qint64 featureID = 0;
    QByteArray before;
    QByteArray after;
};

} // namespace Orvane

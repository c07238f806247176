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

/// Moves features in their sources, shows them where they are then, and puts each move on the map's history.
///
/// The map's file is not touched: it is the data that change. Errors are those of SourceEditor.
class FeatureMover
{
    Q_DECLARE_TR_FUNCTIONS(FeatureMover)

public:
    /// Neither is owned; both outlive this object and the session's history. A source that takes long shows
    /// its progress over the window.
    FeatureMover(MapSession& session, QWidget& window) : m_session(session), m_window(window) { }

    /// Raises why the feature cannot be moved, if so.
    void Check(const FeatureKey& key);
    /// Moves the feature by so many map units east and north, as one step that can be undone. On an error
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

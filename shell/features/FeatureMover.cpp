// SPDX-License-Identifier: MIT
#include "shell/features/FeatureMover.h"

#include "hostkit/common/HostErrors.h"
#include "hostkit/undo/UndoHistory.h"
#include "mapkit/data/SourceEditor.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/files/ReadingBound.h"
#include "shell/features/FeatureSubset.h"
#include "shell/map/MapSession.h"
#include "shell/window/RunWithProgress.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <algorithm>
#include <map>
#include <utility>

namespace Orvane {

namespace {

// Writes the geometry and reads it back, as a format may keep fewer digits than it is given.
QByteArray Written(const LayerSource& source, qint64 featureID, const QByteArray& geometry)
{
    SourceEditor editor(source);
    editor.SetGeometry(featureID, geometry);
    editor.Save();
    return SourceEditor(source).Geometry(featureID);
}

const MapLayer* LayerOf(const MapSession& session, qint32 layerID)
{
    const std::vector<MapLayer>& layers = session.Layers();
    const auto found = std::find_if(
        layers.begin(), layers.end(), [&](const MapLayer& layer) { return layer.layerID == layerID; });
    return found == layers.end() ? nullptr : &*found;
}

// What tells how the map shows its data.
struct MapData {
    std::vector<LayerSource> sources;
    QString system;
};

MapData MapDataOf(MapSession& session)
{
    return {session.Document().Sources(), session.Document().System()};
}

// A geometry as the layers of its data show it, by their choice and the system chosen for the data.
using ShownGeometry = std::map<std::pair<QString, QString>, FeatureSet>;

std::pair<QString, QString> ReadingOf(const LayerSource& source)
{
    return {source.choice.ToText(), source.system};
}

// The points of a table stay, whatever geometry its rows have too.
bool ShowsGeometryOf(const LayerSource& source, const LayerSource& other)
{
    return source.path == other.path && source.ogrLayer == other.ogrLayer && source.choice.columns.IsEmpty();
}

ShownGeometry
Shown(const MapData& map, const LayerSource& changed, const QByteArray& geometry, qint64 featureID)
{
    ShownGeometry shown;
    for (const LayerSource& source : map.sources) {
        if (ShowsGeometryOf(source, changed) && !shown.contains(ReadingOf(source)))
            shown[ReadingOf(source)] = SourceEditor(source).Shown(geometry, featureID, map.system);
    }
    return shown;
}

// Replaces the feature in every layer that shows the same data.
void ShowGeometry(MapSession& session, const GeometryChange& change, const ShownGeometry& shown)
{
    SourceContents contents;
    for (const LayerSource& source : session.Document().Sources()) {
        const auto now = shown.find(ReadingOf(source));
        if (!ShowsGeometryOf(source, change.source) || now == shown.end())
            continue;
        const MapLayer* layer = LayerOf(session, source.layerID);
        if (layer && layer->features)
            contents.features[source.layerID] = std::make_shared<const FeatureSet>(
                WithFeature(*layer->features, change.featureID, now->second));
    }
    session.TakeFeatures(contents);
}

// The geometry as it is stored. Only reading may be cancelled: what is written gets its undo step.
QByteArray Stored(const LayerSource& source, qint64 featureID, Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    progress.SetSubject(source.path);
    return SourceEditor(source).Geometry(featureID);
}

class MoveStep : public IUndoStep
{
public:
    MoveStep(MapSession& session, QWidget& window, GeometryChange change, const QString& text)
        : m_session(session), m_window(window), m_change(std::move(change)), m_text(text)
    {
    }

    QString Text() const override { return m_text; }
    void Undo() override { Swap(m_change.after, m_change.before); }
    void Redo() override { Swap(m_change.before, m_change.after); }
    qsizetype KeptBytes() const override { return m_change.before.size() + m_change.after.size(); }

private:
    void Swap(QByteArray& expected, QByteArray& wanted)
    {
        ShownGeometry shown;
        const MapData map = MapDataOf(m_session);
        RunWithProgress(
            &m_window, QCoreApplication::translate("FeatureMover", "Moving the feature"),
            [&](Progress& progress) {
                if (Stored(m_change.source, m_change.featureID, progress) != expected)
                    throw RunTimeError(int(HostError::StepOutdated), Outdated());
                wanted = Written(m_change.source, m_change.featureID, wanted);
                shown = Shown(map, m_change.source, wanted, m_change.featureID);
            });
        ShowGeometry(m_session, m_change, shown);
    }

    static QString Outdated()
    {
        return QCoreApplication::translate(
            "FeatureMover", "The feature was changed by another user or program and was not moved.");
    }

    MapSession& m_session;
    QWidget& m_window;
    GeometryChange m_change;
    QString m_text;
};

LayerSource SourceOf(MapSession& session, qint32 layerID)
{
    const std::vector<LayerSource> sources = session.Document().Sources();
    const auto found = std::find_if(
        sources.begin(), sources.end(), [&](const LayerSource& source) { return source.layerID == layerID; });
    return found == sources.end() ? LayerSource() : *found;
}

} // namespace

void FeatureMover::Check(const FeatureKey& key)
{
    const LayerSource source = SourceOf(m_session, key.layerID);
    RunOrGiveUp(&m_window, tr("Moving the feature"), [source, key](Progress& progress) {
        Stored(source, key.featureID, progress);
    });
}

void FeatureMover::Move(const FeatureKey& key, QPointF offset)
{
    GeometryChange change{SourceOf(m_session, key.layerID), key.featureID, {}, {}};
    ShownGeometry shown;
    const MapData map = MapDataOf(m_session);
    RunWithProgress(&m_window, tr("Moving the feature"), [&](Progress& progress) {
        {
            const ReadingBound untilCancelled(progress.CancelledFlag());
            SourceEditor editor(change.source);
            change.before = editor.Geometry(change.featureID);
            change.after = editor.Moved(change.before, offset, map.system);
        }
        change.after = Written(change.source, change.featureID, change.after);
        shown = Shown(map, change.source, change.after, change.featureID);
    });
    ShowGeometry(m_session, change, shown);
    const MapLayer* layer = LayerOf(m_session, key.layerID);
    const QString text = tr("Move Feature in %1").arg(layer ? layer->name : QString());
    m_session.Shell().History().Add(std::make_unique<MoveStep>(m_session, m_window, std::move(change), text));
}

} // namespace Orvane

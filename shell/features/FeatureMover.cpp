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

// Replaces the feature in every layer that shows the same data.
void ShowGeometry(MapSession& session, const GeometryChange& change, const FeatureSet& now)
{
    SourceContents contents;
    for (const LayerSource& source : session.Document().Sources()) {
        if (source.path != change.source.path || source.ogrLayer != change.source.ogrLayer)
            continue;
        const MapLayer* layer = LayerOf(session, source.layerID);
        if (layer && layer->features)
            contents.features[source.layerID]
                = std::make_shared<const FeatureSet>(WithFeature(*layer->features, change.featureID, now));
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
        FeatureSet shown;
        const QString system = m_session.Document().System();
        RunWithProgress(
            &m_window, QCoreApplication::translate("FeatureMover", "Moving the feature"),
            [&](Progress& progress) {
                if (Stored(m_change.source, m_change.featureID, progress) != expected)
                    throw RunTimeError(int(HostError::StepOutdated), Outdated());
                wanted = Written(m_change.source, m_change.featureID, wanted);
                shown = SourceEditor(m_change.source).Shown(wanted, m_change.featureID, system);
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
    FeatureSet shown;
    const QString system = m_session.Document().System();
    RunWithProgress(&m_window, tr("Moving the feature"), [&](Progress& progress) {
        {
            const ReadingBound untilCancelled(progress.CancelledFlag());
            SourceEditor editor(change.source);
            change.before = editor.Geometry(change.featureID);
            change.after = editor.Moved(change.before, offset, system);
        }
        change.after = Written(change.source, change.featureID, change.after);
        shown = SourceEditor(change.source).Shown(change.after, change.featureID, system);
    });
    ShowGeometry(m_session, change, shown);
    const MapLayer* layer = LayerOf(m_session, key.layerID);
    const QString text = tr("Move Feature in %1").arg(layer ? layer->name : QString());
    m_session.Shell().History().Add(std::make_unique<MoveStep>(m_session, m_window, std::move(change), text));
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/map/ImportPlan.h"

#include "mapkit/common/Progress.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/SystemFacts.h"
#include "mapkit/coordinates/SystemGuess.h"
#include "mapkit/data/OpenSource.h"
#include "mapkit/files/ReadingBound.h"
#include "messages/NameInText.h"
#include "shell/map/MapExtent.h"
#include "shell/map/MapSession.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <functional>

namespace Orvane {

namespace {

using Reason = SystemNote::Reason;

bool IsUnnamed(const SourceLayer& layer)
{
    return layer.system.isEmpty() && layer.chosenSystem.isEmpty();
}

void ForEachLayer(FoundData& data, const std::function<void(const FoundData::Source&, SourceLayer&)>& visit)
{
    for (FoundData::Source& source : data.sources) {
        for (SourceLayer& layer : source.layers)
            visit(source, layer);
    }
}

QString NotedName(const FoundData::Source& source, const SourceLayer& layer)
{
    const QString file = QFileInfo(source.path).fileName();
    return source.layers.size() == 1 || layer.name.isEmpty()
        ? file
        : QStringLiteral("%1 (%2)").arg(file, NameInText(layer.name));
}

void AddNote(ImportPlan& plan, Reason reason, const FoundData::Source& source, const SourceLayer& layer)
{
    std::vector<SystemNote>& notes = plan.notes;
    const QString& system = layer.chosenSystem;
    const auto same = std::find_if(notes.begin(), notes.end(), [&](const SystemNote& note) {
        return note.reason == reason && note.system == system;
    });
    SystemNote& note = same == notes.end() ? notes.emplace_back(SystemNote{reason, system, {}, {}}) : *same;
    note.names << NotedName(source, layer);
    note.paths << source.path;
}

// Layers of which it is not known in time are noted.
Box MeasuredExtent(
    OpenSource& open, const FoundData::Source& source, const SourceLayer& layer, ImportPlan& plan,
    Progress& progress)
{
    try {
        return open.At(source.path).Measure(layer.name, progress, layer.choice).extent;
    } catch (const RunTimeError&) {
        AddNote(plan, Reason::Unmeasured, source, layer);
        return {};
    }
}

void MeasureExtents(ImportPlan& plan, bool newMap, Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    OpenSource open;
    ForEachLayer(plan.data, [&](const FoundData::Source& source, SourceLayer& layer) {
        progress.StopIfCancelled();
        if (!layer.extent.IsEmpty() || !(newMap || IsUnnamed(layer)))
            return;
        progress.SetSubject(source.path);
        layer.extent = MeasuredExtent(open, source, layer, plan, progress);
    });
}

void AddPlaced(Box& extent, FoundData& data, const QString& system)
{
    ForEachLayer(data, [&](const FoundData::Source&, const SourceLayer& layer) {
        if (!IsUnnamed(layer))
            extent.Add(Transformed(layer.extent, SystemOf(layer), system));
    });
}

void Guess(ImportPlan& plan, const MapPlace& map)
{
    ForEachLayer(plan.data, [&](const FoundData::Source& source, SourceLayer& layer) {
        if (!IsUnnamed(layer))
            return;
        layer.chosenSystem = GuessSystem(layer.extent, map);
        if (layer.chosenSystem.isEmpty())
            return;
        const bool isMaps = layer.chosenSystem == map.system;
        AddNote(plan, isMaps ? Reason::Map : Reason::Degrees, source, layer);
    });
}

void GuessAll(ImportPlan& plan, const ImportTarget& target, Progress& progress)
{
    MapPlace map{target.system, {}};
    if (map.system.isEmpty()) {
        Guess(plan, map);
        map.system = SystemToShow(PlacesOf(plan.data));
    } else {
        map.data = target.data;
        map.data.Add(ExtentOfMap(target.sources, target.system, progress));
    }
    AddPlaced(map.data, plan.data, map.system);
    Guess(plan, map);
}

// Without features there is nothing to place.
bool IsUnknown(const SourceLayer& layer)
{
    return IsUnnamed(layer) && !layer.extent.IsEmpty();
}

void NoteUnknown(ImportPlan& plan)
{
    ForEachLayer(plan.data, [&](const FoundData::Source& source, SourceLayer& layer) {
        if (IsUnknown(layer))
            AddNote(plan, Reason::Unknown, source, layer);
    });
}

QString PlanText(const char* text)
{
    return QCoreApplication::translate("ImportPlan", text);
}

QString TextOf(Reason reason)
{
    switch (reason) {
    case Reason::Degrees:
        return PlanText(QT_TRANSLATE_NOOP(
            "ImportPlan",
            "No coordinate system is named by %1. The coordinates fit degrees, so it is taken as %2."));
    case Reason::Map:
        return PlanText(QT_TRANSLATE_NOOP(
            "ImportPlan",
            "No coordinate system is named by %1. The coordinates fit the map, so it is taken as %2."));
    case Reason::Chosen:
        return PlanText(QT_TRANSLATE_NOOP(
            "ImportPlan", "No coordinate system is named by %1. It is taken as the chosen one, %2."));
    case Reason::Unmeasured:
        return PlanText(QT_TRANSLATE_NOOP(
            "ImportPlan", "Where the data of %1 lie is not known: they could not be read to the end."));
    case Reason::Unknown:
        break;
    }
    return PlanText(QT_TRANSLATE_NOOP(
        "ImportPlan",
        "No coordinate system is named by %1, and none was found that fits. The coordinates are taken as "
        "those of the map."));
}

QString Joined(const QStringList& names, int most)
{
    const qsizetype more = most > 0 ? names.size() - most : 0;
    if (more <= 0)
        return names.join(QLatin1String(", "));
    return PlanText(QT_TRANSLATE_NOOP("ImportPlan", "%1 and %2 more"))
        .arg(names.mid(0, most).join(QLatin1String(", ")), QLocale().toString(more));
}

} // namespace

bool ImportPlan::IsPlaced() const
{
    return std::none_of(notes.begin(), notes.end(), [](const SystemNote& note) {
        return note.reason == Reason::Unknown || note.reason == Reason::Unmeasured;
    });
}

QStringList ImportPlan::Unknown() const
{
    const auto unknown = std::find_if(
        notes.begin(), notes.end(), [](const SystemNote& note) { return note.reason == Reason::Unknown; });
    return unknown == notes.end() ? QStringList() : unknown->names;
}

void ImportPlan::Choose(const QString& system)
{
    ForEachLayer(data, [&](const FoundData::Source&, SourceLayer& layer) {
        if (IsUnknown(layer))
            layer.chosenSystem = system;
    });
    for (SystemNote& note : notes) {
        if (note.reason == Reason::Unknown)
            note = {Reason::Chosen, system, note.names, note.paths};
    }
}

QStringList ImportPlan::NoteTexts(int mostNames) const
{
    QStringList texts;
    for (const SystemNote& note : notes) {
        const QString text = TextOf(note.reason);
        const QString names = Joined(note.names, mostNames);
        texts << (note.system.isEmpty() ? text.arg(names) : text.arg(names, SystemTitle(note.system)));
    }
    return texts;
}

ImportPlan PlanImport(const FoundData& data, const ImportTarget& target, Progress& progress)
{
    ImportPlan plan{data, {}};
    MeasureExtents(plan, target.system.isEmpty(), progress);
    bool hasUnnamed = false;
    ForEachLayer(plan.data, [&](const FoundData::Source&, const SourceLayer& layer) {
        hasUnnamed |= IsUnnamed(layer);
    });
    if (hasUnnamed && target.forUnnamed.isEmpty())
        GuessAll(plan, target, progress);
    NoteUnknown(plan);
    if (!target.forUnnamed.isEmpty())
        plan.Choose(target.forUnnamed);
    return plan;
}

ImportTarget TargetOf(const MapDocument& document)
{
    return {document.System(), document.Sources(), {}};
}

ImportTarget TargetOf(MapSession& session)
{
    ImportTarget target{session.Document().System(), {}, {}};
    for (const MapLayer& layer : session.Layers())
        target.data.Add(layer.Bounds());
    return target;
}

} // namespace Orvane

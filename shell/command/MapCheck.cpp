// SPDX-License-Identifier: MIT
#include "shell/command/MapCheck.h"

#include "mapkit/coordinates/SystemFacts.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/RasterSource.h"
#include "mapkit/data/ServerTables.h"
#include "mapkit/document/EarlierBackdrop.h"
#include "mapkit/document/SourceTable.h"
#include "shell/command/DataSentences.h"
#include "shell/command/TemporaryMap.h"
#include "shell/command/ValueCheck.h"
#include "shell/servers/ServerAccess.h"
#include "store/StorePlace.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "store/sqlite/repair/DanglingRows.h"
#include "store/sqlite/repair/FileDamage.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <tuple>

namespace Orvane {

namespace {

using Kind = MapProblem::Kind;
using Problems = std::vector<MapProblem>;

QString Translate(const char* text)
{
    return QCoreApplication::translate("MapCheck", text);
}

// The table of the scheme values does not declare its reference to the schemes.
const std::vector<UndeclaredReference> Undeclared
    = {{"LayerSchemeValues", "SchemeID", "LayerSchemes", "SchemeID"}};

void AddDamage(Problems& problems, SqliteLayerDatabase& database)
{
    const QString text = Translate(QT_TRANSLATE_NOOP("MapCheck", "The map file is damaged: %1."));
    for (const FileDamage& damage : FindDamage(database))
        problems.push_back({Kind::Damage, text.arg(damage.message), damage.isRepairable});
}

void AddDanglingRows(Problems& problems, SqliteLayerDatabase& database)
{
    for (const DanglingRows& rows : FindDanglingRows(database, Undeclared)) {
        const QString text = Translate(
            QT_TRANSLATE_NOOP("MapCheck", "Rows of \"%1\" that refer to missing rows of \"%2\": %3."));
        problems.push_back(
            {Kind::DanglingRows, text.arg(rows.table, rows.parent, QLocale().toString(rows.count)), true});
    }
}

void AddUnreadable(Problems& problems, const QString& path, const QString& reason)
{
    problems.push_back({Kind::UnreadableData, WithPath(reason, path), false});
}

// The layers of the map that one layer of a file is shown in: their columns.
using ColumnsByLayer = std::map<QString, QStringList>;
using ColumnsByPath = std::map<QString, ColumnsByLayer>;
// Path, and name in an archive.
using RasterNames = std::set<std::pair<QString, QString>>;

// Why the layer cannot be read; empty when it can.
QString WhyUnreadable(const DataSource& source, const QString& name, const QString& layer)
{
    return source.Has(layer)
        ? QString()
        : Translate(QT_TRANSLATE_NOOP("MapCheck", "\"%1\" has no layer named \"%2\".")).arg(name, layer);
}

bool HasField(const DataSource& source, const QString& layer, const QString& column)
{
    const std::vector<SourceField> fields = source.Fields(layer);
    return std::any_of(fields.begin(), fields.end(), [&](const SourceField& field) {
        return field.name.compare(column, Qt::CaseInsensitive) == 0;
    });
}

void CheckLayers(Problems& problems, const QString& path, const ColumnsByLayer& layers)
{
    const DataSource source(path);
    const QString name = QFileInfo(path).fileName();
    for (const auto& [layer, columns] : layers) {
        const QString reason = WhyUnreadable(source, name, layer);
        if (!reason.isEmpty()) {
            AddUnreadable(problems, path, reason);
            continue;
        }
        for (const QString& column : columns) {
            const QString text = Translate(QT_TRANSLATE_NOOP(
                "MapCheck", "The table \"%1\" of \"%2\" lacks the column \"%3\" with coordinates."));
            if (!HasField(source, layer, column))
                AddUnreadable(problems, path, text.arg(layer, name, column));
        }
    }
}

void AddUnreadable(Problems& problems, const QString& path, const ColumnsByLayer& layers)
{
    try {
        CheckLayers(problems, path, layers);
    } catch (const RunTimeError& error) {
        AddUnreadable(problems, path, error.Description());
    }
}

// Each once, without empty ones.
void AddNames(QStringList& names, const CoordinateColumns& columns)
{
    names << columns.x << columns.y << columns.wkt;
    names.removeAll(QString());
    names.removeDuplicates();
}

void AddMissingFile(Problems& problems, const QString& path)
{
    const QString text = Translate(QT_TRANSLATE_NOOP("MapCheck", "The data file \"%1\" is missing."));
    problems.push_back({Kind::MissingData, text.arg(path), false});
}

void AddRaster(Problems& problems, const QString& path, const QString& member)
{
    try {
        const RasterSource raster(path, member);
    } catch (const RunTimeError& error) {
        AddUnreadable(problems, path, error.Description());
    }
}

// Removes what is in files that are not there, and names each file once.
void AddMissingFiles(Problems& problems, ColumnsByPath& layers, RasterNames& rasters)
{
    std::set<QString> missing;
    const auto isMissing = [&](const auto& entry) {
        if (QFileInfo::exists(entry.first))
            return false;
        if (missing.insert(entry.first).second)
            AddMissingFile(problems, entry.first);
        return true;
    };
    std::erase_if(layers, isMissing);
    std::erase_if(rasters, isMissing);
}

// backdrop: the picture under a map of an earlier version; empty for none.
void AddMissingData(Problems& problems, const std::vector<LayerSource>& sources, const QString& backdrop)
{
    ColumnsByPath layers;
    RasterNames rasters;
    if (!backdrop.isEmpty())
        rasters.insert({backdrop, QString()});
    for (const LayerSource& source : sources) {
        if (IsServerTable(source.path))
            continue; // no file
        if (source.kind == DataKind::Raster)
            rasters.insert({source.path, source.ogrLayer});
        else
            AddNames(layers[source.path][source.ogrLayer], source.choice.columns);
    }
    AddMissingFiles(problems, layers, rasters);
    for (const auto& [path, found] : layers)
        AddUnreadable(problems, path, found);
    for (const auto& [path, member] : rasters)
        AddRaster(problems, path, member);
}

// "roads.shp", or "town.gpkg (roads)".
QString NameOfLayer(const LayerSource& source)
{
    const QFileInfo file(source.path);
    const bool isAlone = source.ogrLayer.isEmpty() || source.ogrLayer == file.completeBaseName();
    return isAlone ? file.fileName() : QStringLiteral("%1 (%2)").arg(file.fileName(), source.ogrLayer);
}

void AddUnknownSystems(Problems& problems, const std::vector<LayerSource>& sources)
{
    const QString text = Translate(QT_TRANSLATE_NOOP(
        "MapCheck", "The coordinate system that was chosen for \"%1\" is not known: \"%2\"."));
    std::set<std::tuple<QString, QString, QString>> told; // parts of a layer have the same system
    for (const LayerSource& source : sources) {
        if (source.system.isEmpty() || FactsOf(source.system).isKnown)
            continue;
        if (told.insert({source.path, source.ogrLayer, source.system}).second)
            AddUnreadable(problems, source.path, text.arg(NameOfLayer(source), source.system));
    }
}

void AddBadValues(Problems& problems, SqliteLayerDatabase& database)
{
    const Problems values = FindValueProblems(database);
    problems.insert(problems.end(), values.begin(), values.end());
}

// Runs work on the file. Returns false if it took longer than the limit.
bool IsFinished(SqliteLayerDatabase& database, CheckLimit limit, const std::function<void()>& work)
{
    if (limit)
        return database.RunWithin(*limit, work);
    work();
    return true;
}

// text: with a place for the number of seconds.
MapProblem Unfinished(const char* text, CheckLimit limit)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(*limit).count();
    return {Kind::Unfinished, Translate(text).arg(QLocale().toString(qint64(seconds))), false};
}

Problems
ProblemsIn(SqliteLayerDatabase& database, const QString& path, const SourcePaths& paths, CheckLimit limit)
{
    Problems problems;
    const bool finished = IsFinished(database, limit, [&] {
        AddDamage(problems, database);
        AddBadValues(problems, database);
        AddDanglingRows(problems, database);
    });
    if (!finished) {
        problems.push_back(Unfinished(
            QT_TRANSLATE_NOOP(
                "MapCheck",
                "The map file was not checked to its end within %1 seconds. It may be very large, or made to "
                "keep programs busy. --time-limit sets another limit."),
            limit));
    }
    const std::vector<LayerSource> sources = SourceTable(database, paths).All();
    AddMissingData(problems, sources, EarlierBackdrop::Find(database, path));
    AddUnknownSystems(problems, sources);
    return problems;
}

// What is wrong with the values and the data, and with references that the tables do not declare.
Problems ProblemsOnServer(const QString& place, CheckLimit limit)
{
    const TemporaryMap copy(place);
    StoreOptions options;
    options.shownPath = StorePlace::NameOf(place);
    const auto database = SqliteLayerDatabase::Open(copy.Path(), OpenMode::ReadOnly, options);
    Problems problems
        = ProblemsIn(*database, place, SourcePaths::InFolder(AccessHere(place).dataFolder), limit);
    for (MapProblem& problem : problems)
        problem.repairable = false;
    return problems;
}

bool HasRepairable(const Problems& problems, Kind kind)
{
    return std::any_of(problems.begin(), problems.end(), [kind](const MapProblem& problem) {
        return problem.kind == kind && problem.repairable;
    });
}

QStringList RepairIn(SqliteLayerDatabase& database, const Problems& problems)
{
    QStringList replaced;
    Transaction transaction(database);
    if (HasRepairable(problems, Kind::Damage))
        RepairDamage(database);
    if (HasRepairable(problems, Kind::BadValue))
        replaced = RepairValues(database);
    if (HasRepairable(problems, Kind::DanglingRows))
        RemoveDanglingRows(database, Undeclared);
    transaction.Commit();
    return replaced;
}

// Returns the sentences about the values that were replaced; nothing if it took too long, and then nothing
// was changed.
std::optional<QStringList> Repair(const QString& path, const Problems& problems, CheckLimit limit)
{
    const auto database = SqliteLayerDatabase::Open(path);
    QStringList replaced;
    const bool finished = IsFinished(*database, limit, [&] { replaced = RepairIn(*database, problems); });
    return finished ? std::optional(replaced) : std::nullopt;
}

} // namespace

std::vector<MapProblem> CheckMap(const QString& map, CheckLimit limit)
{
    const QString place = StorePlace::Canonical(map);
    if (!StorePlace::IsFile(place))
        return ProblemsOnServer(place, limit);
    const auto database = SqliteLayerDatabase::Open(place, OpenMode::ReadOnly);
    return ProblemsIn(*database, place, SourcePaths(place), limit);
}

std::vector<MapProblem> RepairMap(const QString& path, QStringList* replaced, CheckLimit limit)
{
    const QString absolute = StorePlace::Canonical(path);
    Problems problems = CheckMap(absolute, limit);
    const bool repairable = std::any_of(
        problems.begin(), problems.end(), [](const MapProblem& problem) { return problem.repairable; });
    if (!repairable)
        return problems;
    const std::optional<QStringList> done = Repair(absolute, problems, limit);
    if (!done) {
        problems.push_back(Unfinished(
            QT_TRANSLATE_NOOP(
                "MapCheck", "Nothing was repaired because the repair was not finished within %1 seconds."),
            limit));
        return problems;
    }
    if (replaced)
        *replaced = *done;
    return CheckMap(absolute, limit);
}

} // namespace Orvane

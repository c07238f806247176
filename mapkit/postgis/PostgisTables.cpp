// SPDX-License-Identifier: MIT
#include "mapkit/postgis/PostgisTables.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/common/MemoryBound.h"
#include "mapkit/common/Progress.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/SystemReference.h"
#include "mapkit/data/GeometryKinds.h"
#include "mapkit/data/GeometryReader.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/postgis/PostgisCatalogue.h"
#include "store/IServerLogin.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QCoreApplication>

#include <algorithm>
#include <ogr_geometry.h>
#include <utility>

namespace Orvane {

namespace {

using TableRow = ServerQueries::Row;

constexpr int RowsToKnowKinds = 1000;
constexpr size_t FeaturesBetweenLooks = 64;

// What the user cancelled ends as other reading does.
template <typename Act> auto Cancellable(const Progress& progress, Act&& act)
{
    try {
        return act();
    } catch (const RunTimeError& error) {
        if (IsCancellation(error))
            progress.StopIfCancelled();
        throw;
    }
}

[[noreturn]] void FailTable(const QString& table, const QString& reason)
{
    throw RunTimeError(
        SourceUnreadable,
        QCoreApplication::translate("DataSource", "\"%1\" cannot be read: %2.").arg(table, reason));
}

void RequireMemory(double bytes, const QString& table)
{
    if (bytes > MemoryBound::MostBytes())
        FailTable(
            table, QCoreApplication::translate("DataSource", "it is too large for this computer's memory"));
}

// The map comes from others: a condition in it is not handed to the server.
void RequireNoFilter(const LayerSource& source)
{
    if (!source.filter.isEmpty())
        FailTable(
            source.ogrLayer,
            QCoreApplication::translate("DataSource", "conditions are not supported for tables on a server"));
}

// nullptr for NULL, and for what GDAL does not understand.
OGRGeometryUniquePtr GeometryIn(const std::optional<QByteArray>& value)
{
    if (!value || !value->startsWith("\\x"))
        return nullptr;
    const QByteArray binary = QByteArray::fromHex(value->mid(2));
    OGRGeometry* geometry = nullptr;
    OGRGeometryFactory::createFromWkb(binary.constData(), nullptr, &geometry, size_t(binary.size()));
    return OGRGeometryUniquePtr(geometry);
}

qint64 IDIn(const std::optional<QByteArray>& value)
{
    return value ? value->toLongLong() : NoFeatureID;
}

// Of "BOX(1 2,3 4)".
Box BoxIn(const QByteArray& text)
{
    const qsizetype start = text.indexOf('(') + 1;
    QByteArray numbers = text.mid(start, text.indexOf(')') - start);
    const QByteArrayList parts = numbers.replace(',', ' ').split(' ');
    if (parts.size() != 4)
        return {};
    return {parts[0].toDouble(), parts[1].toDouble(), parts[2].toDouble(), parts[3].toDouble()};
}

FieldValue ValueIn(const QByteArray& text, bool isNumber)
{
    FieldValue value;
    value.text = QString::fromUtf8(text).trimmed();
    if (isNumber)
        value.number = text.toDouble();
    return value;
}

QByteArray FeaturesQuery(const PostgisLayer& layer)
{
    return "SELECT " + layer.key + ", " + layer.geometry + " FROM " + layer.table + " WHERE " + layer.column
        + " IS NOT NULL";
}

} // namespace

PostgisTables::PostgisTables(const QString& server, std::shared_ptr<IServerLogin> login)
    : m_server(server), m_login(std::move(login))
{
}

// Without a progress, a server that does not answer in time is an error.
ServerMaps::Access PostgisTables::AccessFor(const Progress* progress) const
{
    ServerMaps::Access access;
    access.options.login = m_login.get();
    if (progress)
        access.watcher = [progress](double) { return !progress->IsCancelled(); };
    return access;
}

QStringList PostgisTables::Names(Progress& progress) const
{
    return Cancellable(progress, [&] {
        ServerQueries queries(m_server, AccessFor(&progress));
        QStringList names;
        for (const PostgisLayer& layer : PostgisCatalogue::Layers(queries))
            names << layer.name;
        return names;
    });
}

SourceLayer PostgisTables::Describe(const QString& name, Progress& progress) const
{
    return Cancellable(progress, [&] {
        ServerQueries queries(m_server, AccessFor(&progress));
        const PostgisLayer layer = PostgisCatalogue::Find(queries, name);
        SourceLayer found;
        found.name = name;
        found.system = PostgisCatalogue::SystemOf(queries, layer);
        const GdalErrors quiet;
        KindCollector kinds;
        queries.Read(
            FeaturesQuery(layer) + " LIMIT " + QByteArray::number(RowsToKnowKinds), {},
            [&](const TableRow& row) {
                if (const OGRGeometryUniquePtr geometry = GeometryIn(row[1]))
                    kinds.Add(*geometry);
            });
        found.kinds = kinds.Kinds();
        if (!found.kinds.empty())
            found.kind = found.kinds.back();
        queries.Read(
            "SELECT " + layer.postgis + ".ST_Extent(" + layer.column + ")::text FROM " + layer.table, {},
            [&](const TableRow& row) { found.extent = BoxIn(row[0].value_or(QByteArray())); });
        return found;
    });
}

SourceDetails PostgisTables::Details(const QString& name) const
{
    ServerQueries queries(m_server, AccessFor());
    const PostgisLayer layer = PostgisCatalogue::Find(queries, name);
    SourceDetails details;
    details.driver = QStringLiteral("PostGIS");
    details.geometry = layer.type;
    details.system = PostgisCatalogue::SystemOf(queries, layer);
    return details;
}

FeatureSet PostgisTables::Read(const LayerSource& source, const QString& mapSystem, Progress& progress) const
{
    RequireNoFilter(source);
    return Cancellable(progress, [&] {
        ServerQueries queries(m_server, AccessFor(&progress));
        const PostgisLayer layer = PostgisCatalogue::Find(queries, source.ogrLayer);
        const QString named = PostgisCatalogue::SystemOf(queries, layer);
        const GdalErrors quiet;
        const OGRSpatialReference own = ReferenceOf(source.system.isEmpty() ? named : source.system);
        FeatureSet features;
        features.SetSourceSystem(own.IsEmpty() ? QString() : SystemText(&own));
        GeometryReader reader(
            features, TransformationTo(mapSystem, &own), RulesFor(own, mapSystem, source.choice));
        size_t count = 0;
        queries.Read(FeaturesQuery(layer), {}, [&](const TableRow& row) {
            if (const OGRGeometryUniquePtr geometry = GeometryIn(row[1]))
                reader.Add(*geometry, IDIn(row[0]));
            if (++count % FeaturesBetweenLooks != 0)
                return;
            progress.StopIfCancelled();
            RequireMemory(features.Bytes(), source.ogrLayer);
        });
        return features;
    });
}

std::vector<SourceField> PostgisTables::Fields(const QString& name) const
{
    ServerQueries queries(m_server, AccessFor());
    return PostgisCatalogue::Fields(queries, PostgisCatalogue::Find(queries, name));
}

std::unordered_map<qint64, FieldValue>
PostgisTables::ReadField(const LayerSource& source, const QString& field, Progress& progress) const
{
    return Cancellable(progress, [&] {
        ServerQueries queries(m_server, AccessFor(&progress));
        const PostgisLayer layer = PostgisCatalogue::Find(queries, source.ogrLayer);
        const std::vector<SourceField> fields = PostgisCatalogue::Fields(queries, layer);
        const auto known = std::find_if(
            fields.begin(), fields.end(), [&](const SourceField& one) { return one.name == field; });
        if (known == fields.end())
            FailTable(
                source.ogrLayer,
                QCoreApplication::translate("DataSource", "it has no attribute named %1").arg(field));
        if (!layer.HasKey())
            FailTable(
                source.ogrLayer,
                QCoreApplication::translate("DataSource", "its primary key is not one whole number"));
        const QByteArray column = ServerQueries::Quoted(field);
        std::unordered_map<qint64, FieldValue> values;
        double bytes = 0;
        queries.Read(
            "SELECT " + layer.key + ", " + column + " FROM " + layer.table + " WHERE " + column
                + " IS NOT NULL",
            {}, [&](const TableRow& row) {
                const auto place
                    = values.insert_or_assign(IDIn(row[0]), ValueIn(*row[1], known->isNumber)).first;
                bytes += place->second.Bytes();
                RequireMemory(bytes, source.ogrLayer);
                progress.StopIfCancelled();
            });
        return values;
    });
}

std::vector<FeatureAttribute> PostgisTables::Attributes(const QString& name, qint64 featureID) const
{
    ServerQueries queries(m_server, AccessFor());
    const PostgisLayer layer = PostgisCatalogue::Find(queries, name);
    const std::vector<SourceField> fields = PostgisCatalogue::Fields(queries, layer);
    std::vector<FeatureAttribute> attributes;
    if (!layer.HasKey() || fields.empty())
        return attributes;
    QByteArrayList columns;
    for (const SourceField& field : fields)
        columns << ServerQueries::Quoted(field.name);
    queries.Read(
        "SELECT " + columns.join(", ") + " FROM " + layer.table + " WHERE " + layer.key + " = $1",
        {QByteArray::number(featureID)}, [&](const TableRow& row) {
            for (size_t i = 0; i < fields.size(); ++i)
                attributes.push_back(
                    {fields[i].name, QString::fromUtf8(row[i].value_or(QByteArray())), !row[i]});
        });
    return attributes;
}

} // namespace Orvane

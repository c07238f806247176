// SPDX-License-Identifier: MIT
#include "mapkit/attributes/TableSource.h"

#include "mapkit/attributes/FieldCells.h"
#include "mapkit/attributes/TableOrder.h"
#include "mapkit/attributes/WordMatch.h"
#include "mapkit/common/GdalErrors.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/GeometryKinds.h"
#include "mapkit/data/ReadingFailure.h"
#include "mapkit/data/ServerTables.h"
#include "mapkit/files/GdalSetup.h"
#include "mapkit/files/OpenedData.h"
#include "mapkit/files/ReadingBound.h"
#include "mapkit/tables/RowGeometry.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <cpl_conv.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

constexpr int AllColumns = -1;
constexpr int NoColumn = -2;
constexpr size_t FirstIDs = 256; // enough for the first screen
constexpr size_t ManyIDs = 65536;
constexpr GIntBig FeaturesBetweenReports = 64;

QString Quoted(const char* name)
{
    QString quoted = QString::fromUtf8(name);
    quoted.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + quoted + QLatin1Char('"');
}

// The memory that sorting may use, in bytes.
double MostBytesToSort()
{
    const auto all = double(CPLGetUsablePhysicalRAM());
    return all > 0 ? all / 4 : 4e9;
}

// A pass through all features from the first one; a database is not left locked where it ends.
class WholePass
{
public:
    explicit WholePass(OGRLayer& layer) : m_layer(layer) { m_layer.ResetReading(); }
    ~WholePass() { m_layer.ResetReading(); }
    WholePass(const WholePass&) = delete;
    WholePass& operator=(const WholePass&) = delete;

private:
    OGRLayer& m_layer;
};

// Closes the result of a query.
class ResultLayer
{
public:
    ResultLayer(GDALDataset& dataset, const QString& sql)
        : m_dataset(dataset), m_layer(dataset.ExecuteSQL(sql.toUtf8().constData(), nullptr, nullptr))
    {
    }
    ~ResultLayer() { m_dataset.ReleaseResultSet(m_layer); }
    ResultLayer(const ResultLayer&) = delete;
    ResultLayer& operator=(const ResultLayer&) = delete;

    OGRLayer* Get() const { return m_layer; }

private:
    GDALDataset& m_dataset;
    OGRLayer* m_layer;
};

} // namespace

TableSource::TableSource(const LayerSource& source)
    : m_path(source.path), m_filter(source.filter), m_choice(source.choice)
{
    const QString noFile = WhyNoFile(source);
    const QString whyNot = noFile.isEmpty() ? WhyNotOpened(m_path) : noFile;
    if (!whyNot.isEmpty())
        throw RunTimeError(SourceUnreadable, whyNot);
    const GdalErrors errors;
    const ReadingBound bound;
    m_data = std::make_unique<OpenedData>(m_path);
    if (m_data->IsEmpty())
        FailReading(m_path, errors.First());
    m_layer = m_data->Find(source.ogrLayer);
    if (!m_layer)
        FailReading(
            m_path,
            QCoreApplication::translate("DataSource", "it has no layer named %1").arg(source.ogrLayer));
    const QByteArray condition = m_filter.toUtf8();
    if (!m_filter.isEmpty() && m_layer->SetAttributeFilter(condition.constData()) != OGRERR_NONE)
        FailReading(m_path, errors.First());
    if (!m_choice.kinds.empty())
        m_geometries = std::make_unique<RowGeometry>(*m_layer->GetLayerDefn(), m_choice.columns);
    ReadColumns();
    ReadOnly(AllColumns);
    RequireReadingInTime(m_path);
}

TableSource::~TableSource()
{
    const GdalErrors quiet;
    m_data.reset();
}

void TableSource::ReadColumns()
{
    const OGRFeatureDefn& definition = *m_layer->GetLayerDefn();
    m_columns.reserve(size_t(definition.GetFieldCount()));
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        const OGRFieldDefn& field = *definition.GetFieldDefn(i);
        m_columns.push_back({QString::fromUtf8(field.GetNameRef()), CellKindOf(field)});
    }
}

qint64 TableSource::KnownCount() const
{
    const GdalErrors quiet;
    const ReadingBound bound;
    const bool isKnown = !m_geometries && m_layer->TestCapability(OLCFastFeatureCount);
    return isKnown ? qint64(m_layer->GetFeatureCount(FALSE)) : -1;
}

// Drivers are several times as fast without what is not needed; a filter may need anything, and a kind of
// geometry the geometry or the column that holds it.
void TableSource::ReadOnly(int column)
{
    m_isWithinPass = false;
    if (!m_filter.isEmpty() || m_geometries)
        return;
    const OGRFeatureDefn& definition = *m_layer->GetLayerDefn();
    std::vector<const char*> ignored = {"OGR_GEOMETRY", "OGR_STYLE"};
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        if (column != AllColumns && i != column)
            ignored.push_back(definition.GetFieldDefn(i)->GetNameRef());
    }
    ignored.push_back(nullptr);
    m_layer->SetIgnoredFields(ignored.data());
}

bool TableSource::IsRow(OGRFeature& feature)
{
    if (!m_geometries)
        return true;
    const OGRGeometry* geometry = m_geometries->Of(feature);
    return geometry && HasAnyOf(*geometry, m_choice);
}

void TableSource::ForEach(Progress& progress, const Visit& visit)
{
    const GdalErrors errors;
    ReadingBound bound(ReadingBound::LongestWait);
    const double expected = double(std::max<GIntBig>(1, m_layer->GetFeatureCount(FALSE)));
    const WholePass pass(*m_layer);
    GIntBig count = 0;
    while (const OGRFeatureUniquePtr feature{m_layer->GetNextFeature()}) {
        if (IsRow(*feature))
            visit(*feature);
        if (++count % FeaturesBetweenReports == 0) {
            progress.StopIfCancelled();
            if (bound.IsOver())
                FailReading(m_path, {});
            bound.Renew();
            progress.Report(std::min(1.0, double(count) / expected));
        }
    }
    RequireReadingInTime(m_path);
    if (!errors.First().isEmpty())
        FailReading(m_path, errors.First());
}

void TableSource::ReadIDs(Progress& progress, const TakeIDs& take)
{
    ReadOnly(NoColumn);
    std::vector<qint64> ids;
    size_t most = FirstIDs;
    ForEach(progress, [&](const OGRFeature& feature) {
        ids.push_back(feature.GetFID());
        if (ids.size() == most) {
            take(std::exchange(ids, {}));
            most = ManyIDs;
        }
    });
    take(std::move(ids));
}

TableRow TableSource::RowOf(OGRFeature& feature) const
{
    TableRow row;
    row.reserve(m_columns.size());
    for (size_t i = 0; i < m_columns.size(); ++i)
        row.push_back(CellOf(feature, int(i), m_columns[i].kind));
    return row;
}

TableSource::RowsByID TableSource::Rows(const std::vector<qint64>& ids, Progress& progress)
{
    const GdalErrors quiet; // a driver may count a feature that is gone as an error
    ReadingBound bound(ReadingBound::LongestWait);
    RowsByID rows;
    if (m_layer->TestCapability(OLCRandomRead))
        FillOneByOne(rows, ids, bound, progress);
    else
        FillInPasses(rows, ids, bound, progress);
    RequireReadingInTime(m_path);
    return rows;
}

void TableSource::FillOneByOne(
    RowsByID& rows, const std::vector<qint64>& ids, ReadingBound& bound, Progress& progress)
{
    for (const qint64 id : ids) {
        progress.StopIfCancelled();
        if (const OGRFeatureUniquePtr feature{m_layer->GetFeature(id)}) {
            rows.insert_or_assign(id, RowOf(*feature));
            bound.Renew();
        }
    }
}

void TableSource::FillInPasses(
    RowsByID& rows, const std::vector<qint64>& ids, ReadingBound& bound, Progress& progress)
{
    QSet<qint64> wanted(ids.begin(), ids.end());
    bool isLastPass = !m_isWithinPass;
    while (!wanted.isEmpty()) {
        progress.StopIfCancelled();
        if (!std::exchange(m_isWithinPass, true))
            m_layer->ResetReading();
        const OGRFeatureUniquePtr feature{m_layer->GetNextFeature()};
        if (feature) {
            if (wanted.remove(feature->GetFID()))
                rows.insert_or_assign(feature->GetFID(), RowOf(*feature));
            bound.Renew();
            continue;
        }
        m_isWithinPass = false;
        if (std::exchange(isLastPass, true))
            return;
    }
}

bool TableSource::SortsItself(int column) const
{
    GDALDataset* dataset = m_data->DatasetOf(*m_layer);
    const QByteArray driver = dataset ? dataset->GetDriverName() : "";
    const bool isDatabase = driver == "GPKG" || driver == "SQLite";
    return isDatabase && !m_geometries && m_columns[size_t(column)].kind != CellKind::Text
        && *m_layer->GetFIDColumn();
}

std::vector<qint64>
TableSource::Sorted(int column, Qt::SortOrder direction, const QLocale& locale, Progress& progress)
{
    if (SortsItself(column))
        return SortedBySql(column, direction, progress);
    ReadOnly(column);
    TableOrder order;
    const double mostBytes = MostBytesToSort();
    ForEach(progress, [&](OGRFeature& feature) {
        order.Add(feature.GetFID(), CellOf(feature, column, m_columns[size_t(column)].kind));
        if (order.Bytes() > mostBytes)
            FailReading(
                m_path,
                QCoreApplication::translate("DataSource", "it is too large for this computer's memory"));
    });
    return order.Sorted(direction, locale, progress);
}

std::vector<qint64> TableSource::SortedBySql(int column, Qt::SortOrder direction, Progress& progress)
{
    const GdalErrors errors;
    ReadingBound bound(ReadingBound::LongestWait);
    const QString id = Quoted(m_layer->GetFIDColumn());
    const QString value = Quoted(m_layer->GetLayerDefn()->GetFieldDefn(column)->GetNameRef());
    // The cast keeps GDAL from taking the ID out of the result.
    QString sql = QStringLiteral("SELECT CAST(%1 AS INTEGER) AS sorted_row FROM %2")
                      .arg(id, Quoted(m_layer->GetName()));
    if (!m_filter.isEmpty())
        sql += QStringLiteral(" WHERE (") + m_filter + QLatin1Char(')');
    sql += QStringLiteral(" ORDER BY %1 IS NULL, %1 %2, %3")
               .arg(value, QLatin1String(direction == Qt::AscendingOrder ? "ASC" : "DESC"), id);
    const ResultLayer result(*m_data->DatasetOf(*m_layer), sql);
    std::vector<qint64> ids;
    while (result.Get()) {
        const OGRFeatureUniquePtr feature{result.Get()->GetNextFeature()};
        if (!feature)
            break;
        ids.push_back(feature->GetFieldAsInteger64(0));
        if (GIntBig(ids.size()) % FeaturesBetweenReports == 0) {
            progress.StopIfCancelled();
            bound.Renew();
        }
    }
    RequireReadingInTime(m_path);
    if (!errors.First().isEmpty())
        FailReading(m_path, errors.First());
    return ids;
}

std::vector<qint64> TableSource::Find(const TableFind& find, Progress& progress)
{
    ReadOnly(find.column);
    const WordMatch match(find, m_columns);
    std::vector<qint64> ids;
    ForEach(progress, [&](OGRFeature& feature) {
        if (match.Matches(feature))
            ids.push_back(feature.GetFID());
    });
    return ids;
}

} // namespace Orvane

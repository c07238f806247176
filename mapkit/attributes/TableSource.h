// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/attributes/TableCell.h"
#include "mapkit/data/SourceReader.h"

#include <QLocale>
#include <QStringList>

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

class OGRFeature;
class OGRLayer;

namespace Orvane {

class OpenedData;
class Progress;
class ReadingBound;
class RowGeometry;

/// Which rows to look for.
struct TableFind {
    QString words; ///< a row is found if it contains each of them, in any case
    int column = -1; ///< the column that is looked into; -1 for all
    QLocale locale; ///< a number is also found as it is written there
};

/// The rows of a layer's table, read a few at a time through GDAL's cursor. A row is named by its feature ID.
///
///     TableSource table(source);
///     table.ReadIDs(progress, [&](std::vector<qint64> ids) { ... });
///     rows = table.Rows({7, 8, 9}, progress);
///
/// An object may be used by only one thread at a time. Errors are RunTimeError with SourceUnreadable and a
/// sentence that names the file; members that take a progress raise Cancelled.
class TableSource
{
public:
    using TakeIDs = std::function<void(std::vector<qint64> ids)>;
    using RowsByID = std::unordered_map<qint64, TableRow>;

    /// Only the features of the source's filter are rows, and of those of its kinds of geometry, if it has
    /// some.
    explicit TableSource(const LayerSource& source);
    ~TableSource();
    TableSource(const TableSource&) = delete;
    TableSource& operator=(const TableSource&) = delete;

    const std::vector<TableColumn>& Columns() const { return m_columns; }
    /// The number of rows, if the source knows it without reading them; else -1.
    qint64 KnownCount() const;

    /// Gives the IDs of all rows in the source's order, a few first and then many at once.
    void ReadIDs(Progress& progress, const TakeIDs& take);
    /// Reads these rows; those that no longer exist are left out. Where a format cannot read a single
    /// feature, it is read from the last position onwards until all are found.
    RowsByID Rows(const std::vector<qint64>& ids, Progress& progress);
    /// The IDs of all rows, sorted by a column as TableOrder does. A database sorts numbers and dates itself.
    std::vector<qint64>
    Sorted(int column, Qt::SortOrder direction, const QLocale& locale, Progress& progress);
    /// The IDs of the rows that are found, in the source's order.
    std::vector<qint64> Find(const TableFind& find, Progress& progress);

private:
    using Visit = std::function<void(OGRFeature& feature)>;

    void ReadColumns();
    void ReadOnly(int column); // -1: all, -2: none
    bool IsRow(OGRFeature& feature);
    void ForEach(Progress& progress, const Visit& visit);
    void
    FillOneByOne(RowsByID& rows, const std::vector<qint64>& ids, ReadingBound& bound, Progress& progress);
    void
    FillInPasses(RowsByID& rows, const std::vector<qint64>& ids, ReadingBound& bound, Progress& progress);
    bool SortsItself(int column) const;
    std::vector<qint64> SortedBySql(int column, Qt::SortOrder direction, Progress& progress);
    TableRow RowOf(OGRFeature& feature) const;

    QString m_path;
    QString m_filter;
    GeometryChoice m_choice;
    std::unique_ptr<OpenedData> m_data;
    OGRLayer* m_layer = nullptr; // owned by the data
    std::vector<TableColumn> m_columns;
    std::unique_ptr<RowGeometry> m_geometries; // nullptr if all kinds are rows
    bool m_isWithinPass = false; // a pass through all features was begun and not ended
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/attributes/TableReader.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QLocale>

#include <deque>
#include <optional>
#include <set>
#include <vector>

class QTimer;

namespace Orvane {

/// The rows of an attribute table, whose IDs are all known and whose values are read as they come into sight.
/// A row whose values are not there yet shows dots.
///
/// Which rows there are, and in which order: SetOrder, SetFound and SetOnly; they work together. When the
/// rows change, the model is reset. IDs count as the source's feature IDs everywhere.
class AttributeModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    /// The role of a value as text, complete and empty for null; an invalid QVariant until it is read.
    static constexpr int ValueTextRole = Qt::UserRole;

    /// reader: not owned; outlives this object.
    explicit AttributeModel(TableReader& reader, QObject* parent = nullptr);

    const std::vector<TableColumn>& Columns() const { return m_columns; }
    /// The number of rows in the source, as far as it is known.
    qint64 CountOfAll() const;
    /// The IDs of the rows, from the top.
    const std::vector<qint64>& IDs() const { return m_rows; }
    /// The rows that show these IDs, from the top; those that are not shown are left out.
    std::vector<int> RowsOf(const std::set<qint64>& ids) const;

    /// The rows have this order; nothing for the source's order.
    void SetOrder(std::optional<std::vector<qint64>> ids);
    /// Only these are rows; nothing for all.
    void SetFound(std::optional<std::vector<qint64>> ids);
    /// Only these are rows; nothing for all.
    void SetOnly(std::optional<std::set<qint64>> ids);
    /// Whether SetFound or SetOnly leave rows out.
    bool IsFiltered() const { return m_found || m_only; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Columns have the names of attributes, rows the IDs of features.
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /// Rows that were in sight have their values now.
    void RowsShown();

private:
    void TakeColumns(const std::vector<TableColumn>& columns, qint64 knownCount);
    void TakeIDs(const std::vector<qint64>& ids);
    void TakeAllIDs();
    void TakeRows(const std::vector<qint64>& asked, const TableSource::RowsByID& rows);
    void Append(const std::vector<qint64>& ids);
    void Rebuild();
    std::vector<qint64> RowsToShow() const;
    void Want(int row) const;
    void AskForWanted();
    QVariant ValueData(const QVariant& value, int role) const;
    QVariant ShownText(const QVariant& value) const;

    TableReader& m_reader;
    QLocale m_locale;
    std::vector<TableColumn> m_columns;
    qint64 m_knownCount = -1;
    std::vector<qint64> m_all; // in the source's order
    std::vector<qint64> m_next; // the same while the source is read again
    bool m_readsAgain = false;
    std::optional<std::vector<qint64>> m_order;
    std::optional<std::vector<qint64>> m_found; // sorted by ID
    std::optional<std::set<qint64>> m_only;
    std::vector<qint64> m_rows;

    QCache<qint64, TableRow> m_values; // by ID
    mutable std::deque<int> m_wantedPages; // the one wanted last is first
    bool m_isAsking = false;
    QTimer* m_askSoon; // owned by this object
};

} // namespace Orvane

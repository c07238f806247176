// SPDX-License-Identifier: MIT
#pragma once

#include "store/opening/ServerMaps.h"

#include <QAbstractTableModel>

#include <vector>

namespace Orvane {

/// The maps on a server as a table.
class ServerMapModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Name, Owner, Changed, OpenBy, Rights, Version, ColumnCount };

    /// By which rows are sorted: a text, a number or a time.
    static constexpr int SortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    /// Shows these maps instead of those before.
    void SetMaps(std::vector<ListedMap> maps);

    /// The map in a row.
    const ListedMap& At(int row) const { return m_maps[size_t(row)]; }
    /// The row of the map of that name; -1 if it is not listed.
    int RowOf(const QString& name) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<ListedMap> m_maps;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/KnownSystems.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

namespace Orvane {

/// Known coordinate systems as a table for searching; the recent ones come first.
class SystemListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Name, Code, Area, ColumnCount };

    /// systems: not owned; outlives this object. recent: codes; those that are not known are left out.
    SystemListModel(
        const std::vector<KnownSystem>& systems, const QStringList& recent, QObject* parent = nullptr);

    /// Lists only the systems that contain each of these words in name, code or area, without case and
    /// accents. An empty text lists all.
    void Search(const QString& text);

    /// The system in a row.
    const KnownSystem& At(int row) const { return *m_rows[size_t(row)]; }
    /// The row of the system with that code; -1 if it is not listed.
    int RowOf(const QString& code) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<const KnownSystem*> m_all; // recent ones first
    std::vector<const KnownSystem*> m_rows; // those that are listed
};

} // namespace Orvane

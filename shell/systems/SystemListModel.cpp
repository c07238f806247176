// SPDX-License-Identifier: MIT
#include "shell/systems/SystemListModel.h"

#include <algorithm>
#include <iterator>

namespace Orvane {

namespace {

bool HasWords(const KnownSystem& system, const QStringList& words)
{
    return std::all_of(
        words.begin(), words.end(), [&](const QString& word) { return system.searchText.contains(word); });
}

QString SystemInColumn(const KnownSystem& system, int column)
{
    switch (column) {
    case SystemListModel::Name:
        return system.name;
    case SystemListModel::Code:
        return system.code;
    default:
        return system.areaName;
    }
}

} // namespace

SystemListModel::SystemListModel(
    const std::vector<KnownSystem>& systems, const QStringList& recent, QObject* parent)
    : QAbstractTableModel(parent)
{
    m_all.reserve(systems.size());
    for (const KnownSystem& system : systems)
        m_all.push_back(&system);
    const auto place = [&](const KnownSystem* system) {
        const auto found = recent.indexOf(system->code);
        return found < 0 ? recent.size() : found;
    };
    if (!recent.isEmpty())
        std::stable_sort(m_all.begin(), m_all.end(), [&](const KnownSystem* a, const KnownSystem* b) {
            return place(a) < place(b);
        });
    m_rows = m_all;
}

void SystemListModel::Search(const QString& text)
{
    const QStringList words = SearchForm(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    beginResetModel();
    m_rows.clear();
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(m_rows), [&](const KnownSystem* system) {
        return HasWords(*system, words);
    });
    endResetModel();
}

int SystemListModel::RowOf(const QString& code) const
{
    const auto found = std::find_if(
        m_rows.begin(), m_rows.end(), [&](const KnownSystem* system) { return system->code == code; });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

int SystemListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int SystemListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant SystemListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return SystemInColumn(At(index.row()), index.column());
    return {};
}

QVariant SystemListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return tr("Coordinate system");
    case Code:
        return tr("Code");
    default:
        return tr("Area of use");
    }
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/servers/ServerMapModel.h"

#include "messages/NameInText.h"

#include <QLocale>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

QString NameCell(const ListedMap& map)
{
    return NameInText(map.title.isEmpty() || map.title == map.name ? map.name : map.title);
}

QString ChangedCell(const ListedMap& map)
{
    if (!map.changed.isValid())
        return ServerMapModel::tr("not known");
    return QLocale().toString(map.changed.toLocalTime(), QLocale::ShortFormat);
}

QString RightsCell(const ListedMap& map)
{
    if (map.isOwn)
        return ServerMapModel::tr("Owner");
    return map.mayEdit ? ServerMapModel::tr("Edit") : ServerMapModel::tr("Read");
}

QString MapCell(const ListedMap& map, int column)
{
    switch (column) {
    case ServerMapModel::Name:
        return NameCell(map);
    case ServerMapModel::Owner:
        return NameInText(map.owner);
    case ServerMapModel::Changed:
        return ChangedCell(map);
    case ServerMapModel::OpenBy:
        return NameInText(map.users.join(QLatin1String(", ")));
    case ServerMapModel::Rights:
        return RightsCell(map);
    default:
        return QString::number(map.version);
    }
}

QVariant MapSortKey(const ListedMap& map, int column)
{
    if (column == ServerMapModel::Changed)
        return map.changed;
    if (column == ServerMapModel::Version)
        return map.version;
    return MapCell(map, column);
}

} // namespace

void ServerMapModel::SetMaps(std::vector<ListedMap> maps)
{
    beginResetModel();
    m_maps = std::move(maps);
    endResetModel();
}

int ServerMapModel::RowOf(const QString& name) const
{
    const auto found
        = std::find_if(m_maps.begin(), m_maps.end(), [&](const ListedMap& map) { return map.name == name; });
    return found == m_maps.end() ? -1 : int(found - m_maps.begin());
}

int ServerMapModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_maps.size());
}

int ServerMapModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant ServerMapModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const ListedMap& map = At(index.row());
    if (role == Qt::DisplayRole)
        return MapCell(map, index.column());
    if (role == Qt::ToolTipRole) // a name may look like markup
        return MapCell(map, index.column()).toHtmlEscaped();
    return role == SortRole ? MapSortKey(map, index.column()) : QVariant();
}

QVariant ServerMapModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return tr("Map");
    case Owner:
        return tr("Owner");
    case Changed:
        return tr("Last change");
    case OpenBy:
        return tr("Open by");
    case Rights:
        return tr("You may");
    default:
        return tr("Version");
    }
}

} // namespace Orvane

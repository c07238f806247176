// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemesModel.h"

#include "messages/NameInText.h"

#include <QFont>
#include <QLocale>

#include <algorithm>
#include <exception>

namespace Orvane {

SchemesModel::SchemesModel(Count count, QObject* parent)
    : QAbstractTableModel(parent), m_count(std::move(count))
{
}

void SchemesModel::Show(const QStringList& names, const QString& current)
{
    beginResetModel();
    m_current = current;
    m_schemes.clear();
    m_schemes.reserve(std::size_t(names.size()));
    for (const QString& name : names)
        m_schemes.push_back({name, std::nullopt, {}});
    endResetModel();
}

int SchemesModel::RowOf(const QString& name) const
{
    const auto found = std::find_if(
        m_schemes.begin(), m_schemes.end(), [&](const Scheme& scheme) { return scheme.name == name; });
    return found == m_schemes.end() ? -1 : int(found - m_schemes.begin());
}

bool SchemesModel::CountNext()
{
    const auto next = std::find_if(m_schemes.begin(), m_schemes.end(), [](const Scheme& scheme) {
        return !scheme.differing && scheme.error.isEmpty();
    });
    if (next == m_schemes.end())
        return false;
    try {
        next->differing = m_count(next->name);
    } catch (const std::exception& error) {
        next->error = QString::fromUtf8(error.what());
    }
    const QModelIndex changed = index(int(next - m_schemes.begin()), Differing);
    emit dataChanged(changed, changed);
    return true;
}

int SchemesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_schemes.size());
}

int SchemesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SchemesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Scheme& scheme = m_schemes[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return Text(scheme, index.column());
    case Qt::AccessibleTextRole:
        return SpokenText(scheme, index.column());
    case Qt::ToolTipRole:
        return index.column() == Differing ? scheme.error : QVariant();
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (index.column() == Differing ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

QVariant SchemesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Name:
        return tr("Scheme");
    case Differing:
        return tr("Layers that differ");
    case Current:
        return tr("Current");
    default:
        return {};
    }
}

QString SchemesModel::Text(const Scheme& scheme, int column) const
{
    if (column == Name)
        return NameInText(scheme.name);
    if (column == Current)
        return scheme.name == m_current ? tr("yes") : QString();
    if (!scheme.error.isEmpty())
        return QStringLiteral("?");
    return scheme.differing ? QLocale().toString(*scheme.differing) : QStringLiteral("...");
}

// A reader of the screen moves from cell to cell, and an empty one or dots say nothing.
QString SchemesModel::SpokenText(const Scheme& scheme, int column) const
{
    if (column == Current && scheme.name != m_current)
        return tr("no");
    if (column == Differing && !scheme.error.isEmpty())
        return scheme.error;
    if (column == Differing && !scheme.differing)
        return tr("not counted yet");
    return Text(scheme, column);
}

} // namespace Orvane

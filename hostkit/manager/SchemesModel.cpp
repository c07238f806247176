// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemesModel.h"

#include "hostkit/manager/SchemeValueTexts.h"
#include "hostkit/schemes/SchemeTables.h"
#include "messages/NameInText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMimeData>

#include <algorithm>
#include <exception>
#include <numeric>

namespace Orvane {

namespace {

const QString DraggedNames = QStringLiteral("application/x-orvane-scheme-names");

QString TimeText(const QDateTime& time)
{
    return time.isValid() ? QLocale().toString(time.toLocalTime(), QLocale::ShortFormat) : QString();
}

// A scheme that only the host knows has no ID.
bool AreSame(const SchemeDetails& a, const SchemeDetails& b)
{
    return a.id == b.id && (a.id != SchemeTables::NoScheme || a.name == b.name);
}

} // namespace

SchemesModel::SchemesModel(Count count, QObject* parent)
    : QAbstractTableModel(parent), m_count(std::move(count))
{
}

void SchemesModel::Show(const std::vector<SchemeDetails>& schemes, Counts counts)
{
    beginResetModel();
    const std::vector<Scheme> old = std::exchange(m_schemes, {});
    m_schemes.reserve(schemes.size());
    for (const SchemeDetails& details : schemes) {
        const auto known = std::find_if(old.begin(), old.end(), [&](const Scheme& scheme) {
            return counts == Counts::Keep && AreSame(scheme.details, details);
        });
        m_schemes.push_back(
            known == old.end() ? Scheme{details, std::nullopt, {}}
                               : Scheme{details, known->differing, known->error});
    }
    Arrange();
    endResetModel();
}

QString SchemesModel::LongText(int column)
{
    if (column == Saved)
        return TimeText(QDateTime(QDate(2000, 12, 28), QTime(22, 58)));
    const QString whole = SchemeValueTexts::Parts(WholeScheme);
    const QString two = SchemeValueTexts::Parts(SchemePart::Appearance | SchemePart::Scales);
    return whole.size() > two.size() ? whole : two;
}

QStringList SchemesModel::Names() const
{
    QStringList names;
    for (const Scheme& scheme : m_schemes)
        names << scheme.details.name;
    return names;
}

std::vector<SchemeDetails> SchemesModel::DetailsOf(const QStringList& names) const
{
    std::vector<SchemeDetails> details;
    details.reserve(std::size_t(names.size()));
    for (const QString& name : names)
        details.push_back(DetailsAt(RowOf(name)));
    return details;
}

QStringList SchemesModel::NamesOf(const std::vector<SchemeDetails>& schemes) const
{
    QStringList names;
    for (const Scheme& scheme : m_schemes) {
        const bool isWanted = std::any_of(schemes.begin(), schemes.end(), [&](const SchemeDetails& details) {
            return AreSame(details, scheme.details);
        });
        if (isWanted)
            names << scheme.details.name;
    }
    return names;
}

int SchemesModel::RowOf(const QString& name) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [&](std::size_t position) {
        return m_schemes[position].details.name == name;
    });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

QString SchemesModel::CurrentName() const
{
    const auto found = std::find_if(
        m_schemes.begin(), m_schemes.end(), [](const Scheme& scheme) { return scheme.details.isCurrent; });
    return found == m_schemes.end() ? QString() : found->details.name;
}

void SchemesModel::SortBy(std::optional<Column> column, Qt::SortOrder order)
{
    beginResetModel();
    m_sorted = column;
    m_order = order;
    Arrange();
    endResetModel();
}

void SchemesModel::Arrange()
{
    m_rows.resize(m_schemes.size());
    std::iota(m_rows.begin(), m_rows.end(), std::size_t(0));
    if (!m_sorted)
        return;
    std::stable_sort(m_rows.begin(), m_rows.end(), [this](std::size_t a, std::size_t b) {
        return m_order == Qt::AscendingOrder ? IsBefore(m_schemes[a], m_schemes[b])
                                             : IsBefore(m_schemes[b], m_schemes[a]);
    });
}

bool SchemesModel::IsBefore(const Scheme& a, const Scheme& b) const
{
    if (m_sorted == Saved)
        return a.details.saved < b.details.saved; // an invalid one is before all others
    if (m_sorted == Holds)
        return NumberOf(a.details.holds) < NumberOf(b.details.holds);
    return m_naturalOrder(a.details.name, b.details.name);
}

bool SchemesModel::CountNext()
{
    const auto next = std::find_if(m_rows.begin(), m_rows.end(), [this](std::size_t position) {
        return !m_schemes[position].differing && m_schemes[position].error.isEmpty();
    });
    if (next == m_rows.end())
        return false;
    Scheme& scheme = m_schemes[*next];
    try {
        scheme.differing = m_count(scheme.details.name);
    } catch (const std::exception& error) {
        scheme.error = QString::fromUtf8(error.what());
    }
    const QModelIndex changed = index(int(next - m_rows.begin()), Differing);
    emit dataChanged(changed, changed);
    return true;
}

int SchemesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int SchemesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SchemesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Scheme& scheme = At(index.row());
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
    case Holds:
        return tr("Holds");
    case Saved:
        return tr("Last saved");
    case AtOpening:
        return tr("At opening");
    default:
        return {};
    }
}

QString SchemesModel::Text(const Scheme& scheme, int column)
{
    switch (column) {
    case Name:
        return NameInText(scheme.details.name);
    case Current:
        return scheme.details.isCurrent ? tr("yes") : QString();
    case Holds:
        return SchemeValueTexts::Parts(scheme.details.holds);
    case Saved:
        return TimeText(scheme.details.saved);
    case AtOpening:
        return scheme.details.isAtOpening ? tr("yes") : QString();
    default:
        break;
    }
    if (!scheme.error.isEmpty())
        return QStringLiteral("?");
    return scheme.differing ? QLocale().toString(*scheme.differing) : QStringLiteral("...");
}

// A screen reader moves from cell to cell, and an empty one or dots say nothing.
QString SchemesModel::SpokenText(const Scheme& scheme, int column)
{
    QString text = Text(scheme, column);
    if (text.isEmpty() && (column == Current || column == AtOpening))
        return tr("no");
    if (text.isEmpty() && column == Saved)
        return tr("not known");
    if (column == Differing && !scheme.error.isEmpty())
        return scheme.error;
    if (column == Differing && !scheme.differing)
        return tr("not counted yet");
    return text;
}

Qt::ItemFlags SchemesModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    if (!IsInUsersOrder())
        return usual;
    return usual | (index.isValid() ? Qt::ItemIsDragEnabled : Qt::ItemIsDropEnabled);
}

QStringList SchemesModel::mimeTypes() const
{
    return {DraggedNames};
}

// Another table, of this program or of another one, has other schemes.
QByteArray SchemesModel::Origin() const
{
    return QByteArray::number(QCoreApplication::applicationPid()) + ' ' + QByteArray::number(quintptr(this))
        + '\n';
}

QMimeData* SchemesModel::mimeData(const QModelIndexList& indexes) const
{
    QStringList names;
    for (const QModelIndex& index : indexes) {
        if (index.column() == Name)
            names << NameAt(index.row());
    }
    auto* data = new QMimeData; // owned by the caller
    data->setData(DraggedNames, Origin() + names.join(QLatin1Char('\0')).toUtf8());
    return data;
}

bool SchemesModel::canDropMimeData(const QMimeData* data, Qt::DropAction, int, int, const QModelIndex&) const
{
    return IsInUsersOrder() && data->data(DraggedNames).startsWith(Origin());
}

bool SchemesModel::dropMimeData(
    const QMimeData* data, Qt::DropAction action, int row, int column, const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const QByteArray names = data->data(DraggedNames).mid(Origin().size());
    emit Dropped(QString::fromUtf8(names).split(QLatin1Char('\0')), row < 0 ? rowCount() : row);
    return false; // the view must not remove the rows
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/table/AttributeModel.h"

#include "mapkit/common/Guard.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

constexpr int RowsOfPage = 128;
constexpr size_t MostWantedPages = 6; // more than a screen shows
constexpr int MostRowsKept = 8192;
constexpr int MostCharacters = 300; // of a cell; its tool tip shows more
constexpr int MostCharactersOfTip = 3000;

// Those that need the value.
constexpr int ValueRoles[]
    = {Qt::DisplayRole, Qt::ToolTipRole, Qt::ForegroundRole, Qt::FontRole, AttributeModel::ValueTextRole};

// A tool tip takes a text that looks like markup for markup.
QString CellToolTip(const QString& text)
{
    const QString start = text.left(MostCharactersOfTip);
    return Qt::mightBeRichText(start) ? Qt::convertFromPlainText(start) : start;
}

} // namespace

AttributeModel::AttributeModel(TableReader& reader, QObject* parent)
    : QAbstractTableModel(parent), m_reader(reader), m_values(MostRowsKept), m_askSoon(new QTimer(this))
{
    m_askSoon->setSingleShot(true);
    connect(m_askSoon, &QTimer::timeout, this, [this] { Guard(nullptr, [this] { AskForWanted(); }); });
    connect(&reader, &TableReader::Opened, this, &AttributeModel::TakeColumns);
    connect(&reader, &TableReader::IDsRead, this, &AttributeModel::TakeIDs);
    connect(&reader, &TableReader::IDsComplete, this, &AttributeModel::TakeAllIDs);
    connect(
        &reader, &TableReader::RowsRead, this,
        [this](const std::vector<qint64>& asked, const std::shared_ptr<const TableSource::RowsByID>& rows) {
            TakeRows(asked, *rows);
        });
}

qint64 AttributeModel::CountOfAll() const
{
    return std::max(m_knownCount, qint64(m_all.size()));
}

std::vector<int> AttributeModel::RowsOf(const std::set<qint64>& ids) const
{
    std::vector<int> rows;
    if (ids.empty())
        return rows;
    for (size_t row = 0; row < m_rows.size(); ++row) {
        if (ids.contains(m_rows[row]))
            rows.push_back(int(row));
    }
    return rows;
}

void AttributeModel::SetOrder(std::optional<std::vector<qint64>> ids)
{
    if (!m_order && !ids)
        return;
    m_order = std::move(ids);
    Rebuild();
}

void AttributeModel::SetFound(std::optional<std::vector<qint64>> ids)
{
    if (!m_found && !ids)
        return;
    m_found = std::move(ids);
    if (m_found)
        std::sort(m_found->begin(), m_found->end());
    Rebuild();
}

void AttributeModel::SetOnly(std::optional<std::set<qint64>> ids)
{
    if (m_only == ids)
        return;
    m_only = std::move(ids);
    Rebuild();
}

int AttributeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int AttributeModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant AttributeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole) {
        const bool isNumber = m_columns[size_t(index.column())].IsNumber();
        return int((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    if (!std::count(std::begin(ValueRoles), std::end(ValueRoles), role))
        return {};
    const TableRow* row = m_values.object(m_rows[size_t(index.row())]);
    if (!row) {
        Want(index.row());
        return role == Qt::DisplayRole ? QVariant(QStringLiteral("...")) : QVariant();
    }
    if (row->size() <= size_t(index.column())) // the feature is gone
        return {};
    return ValueData((*row)[size_t(index.column())], role);
}

QVariant AttributeModel::ValueData(const QVariant& value, int role) const
{
    if (role == Qt::DisplayRole)
        return ShownText(value);
    if (role == ValueTextRole)
        return CellText(value, m_locale);
    if (role == Qt::ToolTipRole)
        return value.isValid() ? CellToolTip(CellText(value, m_locale)) : QVariant();
    if (value.isValid())
        return {};
    if (role == Qt::ForegroundRole)
        return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    QFont italic;
    italic.setItalic(true);
    return italic;
}

QVariant AttributeModel::ShownText(const QVariant& value) const
{
    if (!value.isValid())
        return QStringLiteral("NULL");
    QString text = CellText(value, m_locale).left(MostCharacters);
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

QVariant AttributeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isColumn = orientation == Qt::Horizontal;
    if (isColumn && (role == Qt::DisplayRole || role == Qt::ToolTipRole))
        return m_columns[size_t(section)].name;
    if (!isColumn && role == Qt::DisplayRole)
        return m_rows[size_t(section)];
    if (!isColumn && role == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

void AttributeModel::TakeColumns(const std::vector<TableColumn>& columns, qint64 knownCount)
{
    m_knownCount = knownCount;
    m_next.clear();
    m_readsAgain = columns == m_columns && !m_all.empty();
    m_values.clear();
    m_isAsking = false;
    m_wantedPages.clear();
    if (m_readsAgain) // the rows stay until the new ones are known
        return;
    beginResetModel();
    m_columns = columns;
    m_all.clear();
    m_rows.clear();
    m_order.reset();
    m_found.reset();
    endResetModel();
}

void AttributeModel::TakeIDs(const std::vector<qint64>& ids)
{
    if (m_readsAgain)
        m_next.insert(m_next.end(), ids.begin(), ids.end());
    else
        Append(ids);
}

void AttributeModel::Append(const std::vector<qint64>& ids)
{
    m_all.insert(m_all.end(), ids.begin(), ids.end());
    if (ids.empty() || m_order || IsFiltered())
        return;
    beginInsertRows({}, int(m_rows.size()), int(m_rows.size() + ids.size()) - 1);
    m_rows.insert(m_rows.end(), ids.begin(), ids.end());
    endInsertRows();
}

void AttributeModel::TakeAllIDs()
{
    m_knownCount = -1;
    if (!std::exchange(m_readsAgain, false))
        return;
    m_all = std::exchange(m_next, {});
    Rebuild();
}

// An ID that was not found gets a row without attributes, so that it is not asked for again.
void AttributeModel::TakeRows(const std::vector<qint64>& asked, const TableSource::RowsByID& rows)
{
    m_isAsking = false;
    for (const qint64 id : asked) {
        const auto row = rows.find(id);
        m_values.insert(id, new TableRow(row == rows.end() ? TableRow() : row->second));
    }
    if (!m_rows.empty() && !m_columns.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit RowsShown();
    AskForWanted();
}

void AttributeModel::Rebuild()
{
    std::vector<qint64> rows = RowsToShow();
    beginResetModel();
    m_rows = std::move(rows);
    m_wantedPages.clear();
    endResetModel();
}

std::vector<qint64> AttributeModel::RowsToShow() const
{
    std::vector<qint64> rows = m_order ? *m_order : m_all;
    std::erase_if(rows, [this](qint64 id) {
        return (m_found && !std::binary_search(m_found->begin(), m_found->end(), id))
            || (m_only && !m_only->contains(id));
    });
    return rows;
}

// Only notes it: the view asks for each cell while it paints.
void AttributeModel::Want(int row) const
{
    const int page = row / RowsOfPage;
    if (!m_wantedPages.empty() && m_wantedPages.front() == page)
        return;
    m_wantedPages.erase(std::remove(m_wantedPages.begin(), m_wantedPages.end(), page), m_wantedPages.end());
    m_wantedPages.push_front(page);
    if (m_wantedPages.size() > MostWantedPages)
        m_wantedPages.pop_back();
    m_askSoon->start();
}

void AttributeModel::AskForWanted()
{
    if (m_isAsking)
        return;
    std::vector<qint64> ids;
    for (const int page : std::exchange(m_wantedPages, {})) {
        const size_t end = std::min(m_rows.size(), size_t(page + 1) * RowsOfPage);
        for (size_t row = size_t(page) * RowsOfPage; row < end; ++row) {
            if (!m_values.contains(m_rows[row]))
                ids.push_back(m_rows[row]);
        }
    }
    if (ids.empty())
        return;
    m_isAsking = true;
    m_reader.ReadRows(std::move(ids));
}

} // namespace Orvane

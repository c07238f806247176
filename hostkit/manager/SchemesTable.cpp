// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemesTable.h"

#include "hostkit/manager/SchemesModel.h"

#include <QActionGroup>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>

namespace Orvane {

namespace {

constexpr int SchemeNameWidth = 30; // average characters

const std::optional<SchemesModel::Column> UsersOrder = std::nullopt;

} // namespace

SchemesTable::SchemesTable(SchemesModel& model, QWidget* parent)
    : QTableView(parent), m_model(model), m_orders(new QActionGroup(this))
{
    setObjectName(QStringLiteral("tblSchemes"));
    setAccessibleName(tr("Layer schemes"));
    setModel(&model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setShowGrid(false);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDragDropOverwriteMode(false);
    verticalHeader()->hide();
    SetWidths();
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
        if (SchemesModel::IsSortable(column))
            SortBy(SchemesModel::Column(column));
    });
}

void SchemesTable::SetWidths()
{
    QHeaderView& header = *horizontalHeader();
    header.setHighlightSections(false);
    header.setSectionsClickable(true);
    header.resizeSections(QHeaderView::ResizeToContents);
    header.setStretchLastSection(true);
    const int character = fontMetrics().averageCharWidth();
    header.resizeSection(SchemesModel::Name, SchemeNameWidth * character);
    setMinimumWidth(header.sectionPosition(SchemesModel::Holds) + 2 * frameWidth());
    for (const int column : {SchemesModel::Holds, SchemesModel::Saved}) {
        const int needed = fontMetrics().horizontalAdvance(SchemesModel::LongText(column)) + 3 * character;
        header.resizeSection(column, qMax(needed, header.sectionSize(column)));
    }
}

QStringList SchemesTable::ChosenNames() const
{
    QStringList names;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (selectionModel()->isRowSelected(row, {}))
            names << m_model.NameAt(row);
    }
    return names;
}

void SchemesTable::Choose(const QStringList& names)
{
    QItemSelectionModel& selection = *selectionModel();
    for (const QString& name : names) {
        const QModelIndex row = m_model.index(m_model.RowOf(name), SchemesModel::Name);
        if (!row.isValid())
            continue;
        if (!selection.currentIndex().isValid() || names.size() == 1)
            selection.setCurrentIndex(row, QItemSelectionModel::NoUpdate);
        selection.select(row, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

QSize SchemesTable::sizeHint() const
{
    const int width
        = horizontalHeader()->length() + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    return {width, QTableView::sizeHint().height()};
}

QByteArray SchemesTable::Columns() const
{
    return horizontalHeader()->saveState();
}

void SchemesTable::RestoreColumns(const QByteArray& state)
{
    horizontalHeader()->restoreState(state);
    horizontalHeader()->setSortIndicatorShown(false); // the state has it too
}

void SchemesTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        QMetaObject::invokeMethod(this, &SchemesTable::OpenMenu, Qt::QueuedConnection); // after the event
    else
        QTableView::keyPressEvent(event);
}

void SchemesTable::OpenMenu()
{
    const QPoint place = visualRect(currentIndex()).bottomLeft();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    menu->popup(viewport()->mapToGlobal(place));
}

void SchemesTable::AddSorting()
{
    auto* menu = new QMenu(tr("Sort &Table"), this);
    AddOrder(*menu, tr("In Your Own Order"), UsersOrder);
    for (int column = 0; column < SchemesModel::ColumnCount; ++column) {
        if (SchemesModel::IsSortable(column))
            AddOrder(
                *menu, m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                SchemesModel::Column(column));
    }
    m_orders->actions().constFirst()->setChecked(true);
    addAction(menu->menuAction());
}

void SchemesTable::AddOrder(QMenu& menu, const QString& text, std::optional<SchemesModel::Column> column)
{
    QAction* action = menu.addAction(text);
    action->setCheckable(true);
    m_orders->addAction(action);
    connect(action, &QAction::triggered, this, [this, column] { SortBy(column); });
    connect(this, &SchemesTable::Sorted, action, [this, column, action] {
        action->setChecked(m_model.SortedBy() == column);
    });
}

// Up, down, and back to the user's order.
void SchemesTable::SortBy(std::optional<SchemesModel::Column> column)
{
    if (column != m_model.SortedBy())
        SortBy(column, Qt::AscendingOrder);
    else if (m_model.Order() == Qt::AscendingOrder)
        SortBy(column, Qt::DescendingOrder);
    else
        SortBy(UsersOrder, Qt::AscendingOrder);
}

void SchemesTable::SortBy(std::optional<SchemesModel::Column> column, Qt::SortOrder order)
{
    const QStringList chosen = ChosenNames();
    m_model.SortBy(column, order);
    Choose(chosen);
    horizontalHeader()->setSortIndicator(column.value_or(SchemesModel::Name), order);
    horizontalHeader()->setSortIndicatorShown(column.has_value());
    emit Sorted();
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/table/AttributeTable.h"

#include "mapkit/attributes/TableText.h"
#include "mapkit/common/Guard.h"
#include "mapkit/common/Progress.h"
#include "shell/table/ColumnWidths.h"
#include "shell/window/RunWithProgress.h"
#include "ui_AttributeTable.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScreen>
#include <QSettings>
#include <QShortcut>

#include <chrono>

namespace Orvane {

namespace {

constexpr auto SizeKey = "AttributeTable/Size";
constexpr std::chrono::milliseconds FindDelay{250};
constexpr std::chrono::milliseconds BusyInterval{150};
// Characters of a mean width.
constexpr int NarrowestFind = 16;
constexpr QSize FirstSize{140, 30}; // characters and lines

QSize SizeOfWindow(const QWidget& window)
{
    const QFontMetrics metrics = window.fontMetrics();
    const QSize first(
        FirstSize.width() * metrics.averageCharWidth(), FirstSize.height() * metrics.lineSpacing());
    const QSize size = QSettings().value(QLatin1String(SizeKey), first).toSize();
    return size.boundedTo(window.screen()->availableSize());
}

bool HasSameRows(const LayerSource& one, const LayerSource& other)
{
    return one.path == other.path && one.ogrLayer == other.ogrLayer && one.filter == other.filter
        && one.choice == other.choice;
}

QString TaskText(TableReader::Task task)
{
    switch (task) {
    case TableReader::Task::Opening:
        return AttributeTable::tr("Reading the rows...");
    case TableReader::Task::Sorting:
        return AttributeTable::tr("Sorting...");
    case TableReader::Task::Finding:
        return AttributeTable::tr("Searching...");
    case TableReader::Task::None:
        break;
    }
    return {};
}

} // namespace

AttributeTable::AttributeTable(const TableLayer& layer, FeatureSelection& selection, QWidget* parent)
    : QWidget(parent, Qt::Window), m_ui(std::make_unique<Ui::AttributeTable>()), m_layer(layer),
      m_reader(layer.source), m_model(m_reader)
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    SetUpView();
    SetUpFailure();
    m_selection = std::make_unique<TableSelection>(*m_ui->tblRows, m_model, selection, layer.source.layerID);
    ConnectActions();
    ConnectFind();
    ConnectReader();
    m_busy.setInterval(BusyInterval);
    connect(&m_busy, &QTimer::timeout, this, [this] { Guard(this, [this] { ShowBusy(); }); });
    m_ui->busy->hide();
    m_ui->edtFind->setMinimumWidth(NarrowestFind * fontMetrics().averageCharWidth());
    m_ui->tblRows->setFocus();
    resize(SizeOfWindow(*this));
    Follow(layer);
    m_reader.Open();
}

AttributeTable::~AttributeTable() = default;

void AttributeTable::SetUpView()
{
    QTableView& view = *m_ui->tblRows;
    view.setModel(&m_model);
    view.setAccessibleName(tr("Attributes"));
    QHeaderView& columns = *view.horizontalHeader();
    columns.setSortIndicatorShown(true);
    columns.setSectionsMovable(true);
    columns.setHighlightSections(false);
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() * 3 / 2);
    view.addActions({m_ui->actCopy, m_ui->actCopyValue, m_ui->actZoom, m_ui->actOnlySelected});
    view.setContextMenuPolicy(Qt::ActionsContextMenu);
    m_ui->actCopy->setShortcutContext(Qt::WidgetShortcut); // the field copies its own text
    m_ui->actCopyValue->setShortcutContext(Qt::WidgetShortcut);
    connect(&columns, &QHeaderView::sectionClicked, this, [this](int column) {
        Guard(this, [&] { SortBy(column); });
    });
    ShowSorting();
}

void AttributeTable::SetUpFailure()
{
    QLabel& failure = *m_ui->lblFailure;
    failure.setAutoFillBackground(true);
    failure.setBackgroundRole(QPalette::ToolTipBase);
    failure.setForegroundRole(QPalette::ToolTipText);
    failure.setMargin(fontMetrics().height() / 4);
    failure.hide();
}

void AttributeTable::ConnectActions()
{
    addActions({m_ui->actFind, m_ui->actNext, m_ui->actPrevious, m_ui->actClose});
    m_ui->btnOnlySelected->setDefaultAction(m_ui->actOnlySelected);
    m_ui->btnZoom->setDefaultAction(m_ui->actZoom);
    const auto run = [this](QAction* action, const std::function<void()>& act) {
        connect(action, &QAction::triggered, this, [this, act] { Guard(this, act); });
    };
    run(m_ui->actOnlySelected, [this] { ShowOnlySelected(); });
    run(m_ui->actZoom, [this] { emit ZoomWanted(m_selection->IDs()); });
    run(m_ui->actCopy, [this] { CopyRows(); });
    run(m_ui->actCopyValue, [this] { CopyValue(); });
    run(m_ui->actNext, [this] { m_selection->Step(1); });
    run(m_ui->actPrevious, [this] { m_selection->Step(-1); });
    run(m_ui->actClose, [this] { close(); });
    run(m_ui->actFind, [this] {
        m_ui->edtFind->setFocus();
        m_ui->edtFind->selectAll();
    });
    connect(m_ui->btnCancel, &QPushButton::clicked, this, [this] { Guard(this, [this] { Cancel(); }); });
    connect(m_selection.get(), &TableSelection::Changed, this, [this](bool onMap) {
        Guard(this, [&] { OnSelectionChanged(onMap); });
    });
}

void AttributeTable::ConnectFind()
{
    m_findSoon.setSingleShot(true);
    m_findSoon.setInterval(FindDelay);
    const auto find = [this] { Guard(this, [this] { FindNow(); }); };
    connect(&m_findSoon, &QTimer::timeout, this, find);
    connect(m_ui->edtFind, &QLineEdit::textChanged, &m_findSoon, qOverload<>(&QTimer::start));
    connect(m_ui->cmbFindIn, qOverload<int>(&QComboBox::activated), this, find);
    connect(m_ui->edtFind, &QLineEdit::returnPressed, this, [this] {
        Guard(this, [this] {
            if (m_findSoon.isActive())
                FindNow();
            else
                m_selection->Step(1);
        });
    });
    auto* clear = new QShortcut(Qt::Key_Escape, m_ui->edtFind);
    clear->setContext(Qt::WidgetShortcut);
    connect(clear, &QShortcut::activated, m_ui->edtFind, &QLineEdit::clear);
}

void AttributeTable::ConnectReader()
{
    const auto guarded = [this](void (AttributeTable::*act)()) {
        return [this, act] { Guard(this, [this, act] { (this->*act)(); }); };
    };
    connect(&m_reader, &TableReader::Opened, this, guarded(&AttributeTable::TakeColumns));
    connect(&m_reader, &TableReader::IDsRead, this, guarded(&AttributeTable::ShowCount));
    connect(&m_reader, &TableReader::IDsComplete, this, guarded(&AttributeTable::TakeIDs));
    connect(&m_reader, &TableReader::TaskChanged, this, guarded(&AttributeTable::BeginBusy));
    connect(&m_model, &AttributeModel::RowsShown, this, guarded(&AttributeTable::FitColumns));
    connect(&m_reader, &TableReader::Sorted, this, [this](const std::vector<qint64>& ids) {
        Guard(this, [&] {
            m_shown = m_wanted;
            m_model.SetOrder(ids);
        });
    });
    connect(&m_reader, &TableReader::Found, this, [this](const std::vector<qint64>& ids) {
        Guard(this, [&] { ShowFound(ids); });
    });
    connect(&m_reader, &TableReader::Failed, this, [this](TableReader::Task task, const QString& reason) {
        Guard(this, [&] { TakeFailure(task, reason); });
    });
}

void AttributeTable::Follow(const TableLayer& layer)
{
    const bool isOther = !HasSameRows(layer.source, m_layer.source);
    m_layer = layer;
    setWindowTitle(tr("Attributes of %1").arg(layer.name));
    m_selection->SetReachesMap(layer.isSelectable);
    if (isOther)
        m_reader.Open(layer.source);
    ShowCount();
}

void AttributeTable::ReadAgain()
{
    m_reader.Open();
}

void AttributeTable::ShowMessage(const QString& text)
{
    m_reader.Cancel();
    m_ui->lblMessage->setText(text);
    m_ui->pages->setCurrentWidget(m_ui->pageMessage);
}

void AttributeTable::closeEvent(QCloseEvent* event)
{
    QSettings().setValue(QLatin1String(SizeKey), size());
    QWidget::closeEvent(event);
}

void AttributeTable::TakeColumns()
{
    if (m_model.Columns().empty())
        return ShowMessage(tr("The features of this layer have no attributes."));
    m_ui->pages->setCurrentWidget(m_ui->pageRows);
    m_ui->lblFailure->hide();
    ShowCount();
    QComboBox& columns = *m_ui->cmbFindIn;
    QStringList names = {tr("All attributes")};
    for (const TableColumn& column : m_model.Columns())
        names << column.name;
    QStringList shown;
    for (int i = 0; i < columns.count(); ++i)
        shown << columns.itemText(i);
    if (shown == names) // read again
        return;
    m_fitsColumns = true;
    columns.clear();
    columns.addItems(names);
    m_wanted = m_shown = {};
    ShowSorting();
}

// What was asked for before the rows were read again counts for the new ones.
void AttributeTable::TakeIDs()
{
    ShowCount();
    if (m_wanted.column >= 0)
        Sort();
    if (!m_ui->edtFind->text().trimmed().isEmpty())
        FindNow();
}

// The third click on a column leads back to the source's order.
void AttributeTable::SortBy(int column)
{
    if (m_wanted.column != column)
        m_wanted = {column, Qt::AscendingOrder};
    else if (m_wanted.direction == Qt::AscendingOrder)
        m_wanted.direction = Qt::DescendingOrder;
    else
        m_wanted = {};
    ShowSorting();
    Sort();
}

void AttributeTable::Sort()
{
    m_ui->lblFailure->hide();
    if (m_wanted.column >= 0)
        return m_reader.Sort(m_wanted.column, m_wanted.direction, QLocale());
    m_reader.CancelSort();
    m_shown = m_wanted;
    m_model.SetOrder(std::nullopt);
}

void AttributeTable::ShowSorting()
{
    m_ui->tblRows->horizontalHeader()->setSortIndicator(m_wanted.column, m_wanted.direction);
}

void AttributeTable::FindNow()
{
    m_findSoon.stop();
    m_ui->lblFailure->hide();
    const QString words = m_ui->edtFind->text().trimmed();
    if (!words.isEmpty())
        return m_reader.Find({words, m_ui->cmbFindIn->currentIndex() - 1, QLocale()});
    m_reader.CancelFind();
    m_model.SetFound(std::nullopt);
    ShowCount();
}

void AttributeTable::ShowFound(const std::vector<qint64>& ids)
{
    m_model.SetFound(ids);
    ShowCount();
}

// A sort or a search that fails takes no rows away.
void AttributeTable::TakeFailure(TableReader::Task task, const QString& reason)
{
    if (task != TableReader::Task::Sorting && task != TableReader::Task::Finding)
        return ShowMessage(reason);
    if (task == TableReader::Task::Sorting) {
        m_wanted = m_shown;
        ShowSorting();
    }
    m_ui->lblFailure->setText(tr("The rows stay as they were. %1").arg(reason));
    m_ui->lblFailure->show();
}

void AttributeTable::OnSelectionChanged(bool onMap)
{
    if (onMap && m_ui->actOnlySelected->isChecked())
        ShowOnlySelected();
    ShowCount();
}

// What is chosen among these rows afterwards leaves them shown.
void AttributeTable::ShowOnlySelected()
{
    if (m_ui->actOnlySelected->isChecked())
        m_model.SetOnly(m_selection->IDs());
    else
        m_model.SetOnly(std::nullopt);
    ShowCount();
}

void AttributeTable::CopyRows()
{
    const std::vector<qint64> ids = m_selection->IDsInOrder();
    if (ids.empty())
        return;
    const QString text
        = ReadOrGiveUp(this, tr("Copying the rows"), [source = m_layer.source, ids](Progress& progress) {
              return TableText(source, ids, QLocale(), progress);
          });
    QGuiApplication::clipboard()->setText(text);
}

void AttributeTable::CopyValue()
{
    const QModelIndex current = m_ui->tblRows->currentIndex();
    if (current.isValid())
        QGuiApplication::clipboard()->setText(current.data(AttributeModel::ValueTextRole).toString());
}

// The rows stay as they are shown now.
void AttributeTable::Cancel()
{
    m_reader.Cancel();
    m_wanted = m_shown;
    ShowSorting();
}

void AttributeTable::ShowCount()
{
    const QLocale locale;
    const QString all = locale.toString(m_model.CountOfAll());
    QStringList texts;
    texts
        << (m_model.IsFiltered() ? tr("Rows: %1 of %2").arg(locale.toString(m_model.rowCount()), all)
                                 : tr("Rows: %1").arg(all));
    const auto selected = qlonglong(m_selection->IDs().size());
    if (selected > 0)
        texts << tr("Selected: %1").arg(locale.toString(selected));
    if (!m_layer.isSelectable)
        texts << tr("The layer is not selectable on the map.");
    m_ui->lblCount->setText(texts.join(QStringLiteral("    ")));
    m_ui->actZoom->setEnabled(selected > 0);
    m_ui->actCopy->setEnabled(selected > 0);
    m_ui->actOnlySelected->setEnabled(selected > 0 || m_ui->actOnlySelected->isChecked());
}

// What takes only a moment shows no progress: it is shown when the timer has run once.
void AttributeTable::BeginBusy()
{
    if (m_reader.Current() == TableReader::Task::None) {
        m_busy.stop();
        m_ui->busy->hide();
    } else if (!m_busy.isActive()) {
        m_busy.start();
    }
}

void AttributeTable::ShowBusy()
{
    m_ui->lblBusy->setText(TaskText(m_reader.Current()));
    m_ui->pgbBusy->setValue(int(m_reader.Done() * m_ui->pgbBusy->maximum()));
    m_ui->busy->show();
}

void AttributeTable::FitColumns()
{
    if (std::exchange(m_fitsColumns, false))
        FitToFirstRows(*m_ui->tblRows);
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "hostkit/manager/ComparePage.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/manager/DifferencesModel.h"
#include "hostkit/manager/TakeOver.h"
#include "hostkit/undo/SchemeSteps.h"
#include "hostkit/windows/LongWork.h"
#include "hostkit/windows/UserQuestions.h"
#include "messages/NameInText.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QAction>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

constexpr int TableWidth = 92; // average characters
constexpr int ListWidth = 12;

// The name of a layer for the table, which must not raise.
QString ListedName(IStyleEditorClient& client, qint32 layerID)
{
    try {
        return client.LayerDisplayName(layerID);
    } catch (const std::exception&) {
        return QString::number(layerID);
    }
}

} // namespace

ComparePage::ComparePage(const ManagerHost& host, QWidget* parent)
    : QWidget(parent), m_host(host), m_texts(host.client),
      m_model(new DifferencesModel(
          m_texts, [this](qint32 layerID) { return ListedName(m_host.client, layerID); }, this)),
      m_from(new QComboBox(this)), m_to(new QComboBox(this)), m_part(new QComboBox(this)),
      m_filter(new QLineEdit(this)), m_table(new QTableView(this)), m_count(new QLabel(this)),
      m_takeOver(new QPushButton(tr("&Take Over"), this)),
      m_takeOverInMenu(new QAction(m_takeOver->text(), this))
{
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(MakeChoices());
    MakeTable();
    rows->addWidget(m_table, 1);
    rows->addWidget(MakeFoot());
    Wire();
    GuardCommand(parent, [this] {
        FillLists();
        Propose({m_host.client.GetCurrentScheme()});
    });
    ShowCount();
}

void ComparePage::Propose(const QStringList& schemes)
{
    if (schemes.isEmpty() || schemes.size() > 2)
        return;
    m_from->setCurrentIndex(0);
    if (schemes.size() == 2)
        Choose(*m_from, schemes.constFirst());
    Choose(*m_to, schemes.constLast());
}

void ComparePage::AddToMenu(const QList<QAction*>& actions)
{
    m_table->addActions(actions);
}

QByteArray ComparePage::Columns() const
{
    return m_table->horizontalHeader()->saveState();
}

void ComparePage::RestoreColumns(const QByteArray& state)
{
    m_table->horizontalHeader()->restoreState(state);
}

void ComparePage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    CompareSoon();
}

QWidget* ComparePage::MakeChoices()
{
    auto* choices = new QWidget(this);
    auto* grid = new QGridLayout(choices);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    MakeList(*m_from, *grid, tr("&From:"), 0);
    m_from->setObjectName(QStringLiteral("cmbFrom"));
    MakeList(*m_to, *grid, tr("T&o:"), 1);
    m_to->setObjectName(QStringLiteral("cmbTo"));
    MakeList(*m_part, *grid, tr("Sho&w:"), 2);
    m_part->setObjectName(QStringLiteral("cmbPart"));
    FillParts();
    auto* caption = new QLabel(tr("Fi&lter:"), this);
    caption->setBuddy(m_filter);
    grid->addWidget(caption, 3, 0);
    grid->addWidget(m_filter, 3, 1);
    m_filter->setObjectName(QStringLiteral("txtFilter"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setPlaceholderText(tr("Words of layers and properties"));
    return choices;
}

void ComparePage::MakeList(QComboBox& list, QGridLayout& grid, const QString& caption, int row)
{
    list.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list.setMinimumContentsLength(ListWidth);
    auto* label = new QLabel(caption, this);
    label->setBuddy(&list);
    grid.addWidget(label, row, 0);
    grid.addWidget(&list, row, 1);
}

void ComparePage::FillParts()
{
    m_part->addItem(SchemeValueTexts::Parts(WholeScheme), NumberOf(WholeScheme));
    for (const SchemePart part : AllSchemeParts)
        m_part->addItem(SchemeValueTexts::Part(part), NumberOf(part));
    connect(m_part, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] {
        m_model->SetParts(PartsOfNumber(m_part->currentData().toInt()));
        ShowCount();
    });
}

void ComparePage::MakeTable()
{
    m_table->setObjectName(QStringLiteral("tblDifferences"));
    m_table->setAccessibleName(tr("Differences"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->setShowGrid(false);
    m_table->verticalHeader()->hide();
    m_table->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_table->addAction(m_takeOverInMenu);
    const int width = TableWidth * fontMetrics().averageCharWidth();
    m_table->setMinimumWidth(width);
    QHeaderView& header = *m_table->horizontalHeader();
    header.setHighlightSections(false);
    const int room = width - style()->pixelMetric(QStyle::PM_ScrollBarExtent) - 2 * m_table->frameWidth();
    header.setDefaultSectionSize(room / DifferencesModel::ColumnCount);
    header.setStretchLastSection(true);
}

QWidget* ComparePage::MakeFoot()
{
    auto* foot = new QWidget(this);
    auto* row = new QHBoxLayout(foot);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_count, 1);
    row->addWidget(m_takeOver);
    m_count->setObjectName(QStringLiteral("lblDifferences"));
    m_takeOver->setObjectName(QStringLiteral("cmdTakeOver"));
    m_takeOver->setAutoDefault(false);
    m_takeOver->setToolTip(tr("Give the layers of the map the chosen values of the column \"To\"."));
    return foot;
}

void ComparePage::Wire()
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, [this] { GuardCommand(this, [this] { Compare(); }); });
    for (QComboBox* list : {m_from, m_to})
        connect(list, qOverload<int>(&QComboBox::currentIndexChanged), this, &ComparePage::CompareSoon);
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString& words) {
        m_model->SetFilter(words);
        ShowCount();
    });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ComparePage::ShowCount);
    connect(m_takeOverInMenu, &QAction::triggered, m_takeOver, &QPushButton::click);
    connect(m_takeOver, &QPushButton::clicked, this, [this] {
        GuardCommand(this, [this] { TakeOverChosen(); });
    });
    connect(&m_host.notifications, &HostNotifications::SchemesChanged, this, [this] {
        GuardCommand(this, [this] { FillLists(); });
    });
    connect(&m_host.notifications, &HostNotifications::LayersChanged, this, &ComparePage::CompareSoon);
}

// Keeps what is chosen as long as it exists, also under another name.
void ComparePage::FillLists()
{
    const std::vector<SchemeDetails> before = std::exchange(m_known, m_host.schemes.All());
    const QStringList names = m_host.client.GetSchemeNames();
    for (QComboBox* list : {m_from, m_to}) {
        const QString chosen = NameNow(list->currentData().toString(), before);
        list->clear();
        if (list == m_from)
            list->addItem(tr("The map as it is"));
        for (const QString& name : names)
            list->addItem(NameInText(name), name);
        Choose(*list, chosen);
    }
    CompareSoon();
}

QString ComparePage::NameNow(const QString& name, const std::vector<SchemeDetails>& before) const
{
    const auto was = std::find_if(
        before.begin(), before.end(), [&](const SchemeDetails& scheme) { return scheme.name == name; });
    const auto now = std::find_if(m_known.begin(), m_known.end(), [&](const SchemeDetails& scheme) {
        return was != before.end() && scheme.id == was->id;
    });
    return now == m_known.end() ? name : now->name;
}

void ComparePage::CompareSoon()
{
    if (isVisible())
        m_soon.start(0);
}

void ComparePage::Compare()
{
    m_model->Show({});
    m_compared = WholeScheme;
    ShowCount(); // also if the user cancels
    {
        const LongWork work(m_host.map, tr("Comparing Schemes"), this);
        const QString to = m_to->currentData().toString();
        m_model->Show(SchemeComparison::Compare(m_host.map, From(), to));
        m_compared = SchemeComparison::CommonParts(m_host.map, From(), to);
    }
    ShowCount();
}

void ComparePage::ShowCount()
{
    const auto number = [](qint64 count) { return QLocale().toString(count); };
    const int shown = m_model->rowCount();
    const QString count = qint64(m_model->Count()) == shown
        ? tr("Differences: %1").arg(number(shown))
        : tr("Differences: %1 of %2").arg(number(shown), number(qint64(m_model->Count())));
    m_count->setText(
        m_compared == WholeScheme ? count : QStringLiteral("%1 (%2)").arg(count, ComparedText()));
    m_takeOver->setEnabled(HasChosenValue());
    m_takeOverInMenu->setEnabled(m_takeOver->isEnabled());
}

// Partial schemes are compared only in what both sides hold.
QString ComparePage::ComparedText() const
{
    return m_compared ? tr("compared: %1").arg(SchemeValueTexts::Parts(m_compared))
                      : tr("the two schemes hold nothing in common");
}

bool ComparePage::HasChosenValue() const
{
    const QItemSelection ranges = m_table->selectionModel()->selection();
    return std::any_of(ranges.begin(), ranges.end(), [this](const QItemSelectionRange& range) {
        int row = range.top();
        while (row <= range.bottom() && m_model->At(row).kind != SchemeDifference::Kind::Value)
            ++row;
        return row <= range.bottom();
    });
}

void ComparePage::TakeOverChosen()
{
    std::vector<SchemeDifference> chosen;
    const QItemSelection ranges = m_table->selectionModel()->selection();
    std::vector<int> rows;
    for (const QItemSelectionRange& range : ranges) {
        rows.reserve(rows.size() + std::size_t(range.height()));
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end()); // the lines of a layer must follow each other
    chosen.reserve(rows.size());
    for (const int row : rows)
        chosen.push_back(m_model->At(row));
    const LongWork work(m_host.map, tr("Taking Over Values"), this);
    TakeOver(m_host.map, m_host.client, chosen);
}

void ComparePage::Choose(QComboBox& list, const QString& scheme)
{
    if (const int index = list.findData(scheme); index >= 0)
        list.setCurrentIndex(index);
}

std::optional<QString> ComparePage::From() const
{
    const QVariant scheme = m_from->currentData();
    return scheme.isValid() ? std::optional(scheme.toString()) : std::nullopt;
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/systems/SystemChooser.h"

#include "mapkit/common/Guard.h"
#include "mapkit/coordinates/SystemFacts.h"
#include "messages/NameInText.h"
#include "shell/systems/RecentSystems.h"
#include "shell/systems/SystemListModel.h"
#include "ui_SystemChooser.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>

#include <algorithm>
#include <array>

namespace Orvane {

namespace {

constexpr std::array ListKeys{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
constexpr int NameLetters = 34; // times the width of an "x", as the next one
constexpr int CodeLetters = 14;

bool IsListKey(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return std::find(ListKeys.begin(), ListKeys.end(), key) != ListKeys.end();
}

QString FactsText(const SystemFacts& facts)
{
    if (!facts.isKnown)
        return SystemChooser::tr("This is not a known coordinate system.");
    const QString area = facts.areaName.isEmpty() ? SystemChooser::tr("not stated") : facts.areaName;
    return SystemChooser::tr("%1\nUnit: %2\nArea of use: %3").arg(facts.name, facts.unit, area);
}

} // namespace

const std::vector<KnownSystem>& SystemCatalogue::Systems()
{
    if (!m_systems)
        m_systems = ReadKnownSystems();
    return *m_systems;
}

SystemChooser::SystemChooser(SystemCatalogue& catalogue, const SystemQuestion& question, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::SystemChooser>()),
      m_model(new SystemListModel(catalogue.Systems(), RecentSystems::All(), this))
{
    m_ui->setupUi(this);
    Fill(question);
    Connect();
    ShowFacts();
    m_ui->edtSearch->setFocus();
}

SystemChooser::~SystemChooser() = default;

QString SystemChooser::Ask(SystemCatalogue& catalogue, const SystemQuestion& question, QWidget* parent)
{
    SystemChooser dialog(catalogue, question, parent);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    QString system = dialog.System();
    RecentSystems::Add(system);
    return system;
}

QString SystemChooser::System() const
{
    return m_ui->edtSystem->text().trimmed();
}

void SystemChooser::Fill(const SystemQuestion& question)
{
    setWindowTitle(question.title);
    m_ui->lblQuestion->setText(question.text);
    m_ui->lblQuestion->setVisible(!question.text.isEmpty());
    m_ui->lstSystems->setModel(m_model);
    const int letter = fontMetrics().horizontalAdvance(QLatin1Char('x'));
    m_ui->lstSystems->setColumnWidth(SystemListModel::Name, NameLetters * letter);
    m_ui->lstSystems->setColumnWidth(SystemListModel::Code, CodeLetters * letter);
    for (const SystemQuestion::Layer& layer : question.layers)
        m_ui->cmbLayer->addItem(NameInText(layer.name), layer.system);
    m_ui->cmbLayer->setCurrentIndex(-1);
    m_ui->cmbLayer->setVisible(!question.layers.empty());
    m_ui->lblLayer->setVisible(!question.layers.empty());
    m_ui->edtSystem->setText(question.system);
    m_ui->lstSystems->setCurrentIndex(m_model->index(m_model->RowOf(question.system), 0));
}

void SystemChooser::Connect()
{
    m_ui->edtSearch->installEventFilter(this);
    connect(m_ui->edtSearch, &QLineEdit::textChanged, this, [this](const QString& text) {
        Guard(this, [&] { Search(text); });
    });
    connect(
        m_ui->lstSystems->selectionModel(), &QItemSelectionModel::currentChanged, this,
        [this](const QModelIndex& index) { Guard(this, [&] { TakeRow(index); }); });
    connect(m_ui->lstSystems, &QTreeView::doubleClicked, this, &SystemChooser::accept);
    connect(m_ui->cmbLayer, &QComboBox::activated, this, [this](int index) {
        m_ui->edtSystem->setText(m_ui->cmbLayer->itemData(index).toString());
    });
    connect(m_ui->edtSystem, &QLineEdit::textChanged, this, [this] { Guard(this, [this] { ShowFacts(); }); });
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

// The keys that go through the list work while the user types what to search for.
bool SystemChooser::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_ui->edtSearch || !IsListKey(*event))
        return QDialog::eventFilter(watched, event);
    QCoreApplication::sendEvent(m_ui->lstSystems, event);
    return true;
}

void SystemChooser::Search(const QString& text)
{
    m_model->Search(text);
    if (text.trimmed().isEmpty())
        return;
    m_ui->lstSystems->setCurrentIndex(m_model->index(0, 0));
    if (m_model->rowCount() == 0)
        m_ui->edtSystem->clear();
}

void SystemChooser::TakeRow(const QModelIndex& index)
{
    if (index.isValid())
        m_ui->edtSystem->setText(m_model->At(index.row()).code);
}

void SystemChooser::ShowFacts()
{
    const SystemFacts facts = FactsOf(System());
    m_ui->lblFacts->setText(System().isEmpty() ? QString() : FactsText(facts));
    m_ui->buttons->button(QDialogButtonBox::Ok)->setEnabled(facts.isKnown);
}

} // namespace Orvane

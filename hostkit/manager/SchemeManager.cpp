// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemeManager.h"

#include "hostkit/common/SettingsStore.h"
#include "hostkit/manager/ComparePage.h"
#include "hostkit/manager/SchemesPage.h"
#include "hostkit/windows/UserQuestions.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace Orvane {

namespace {

const QString PlaceKey = QStringLiteral("SchemeManager::Place");
const QString ColumnsKey = QStringLiteral("SchemeManager::SchemeColumns");
const QString CompareColumnsKey = QStringLiteral("SchemeManager::CompareColumns");

constexpr int MoreLines = 8; // than a table shows at least

QString AsText(const QByteArray& state)
{
    return QString::fromLatin1(state.toBase64());
}

QByteArray FromText(const QString& text)
{
    return QByteArray::fromBase64(text.toLatin1());
}

} // namespace

SchemeManager::SchemeManager(const ManagerHost& host, QWidget* parent)
    : QDialog(parent), m_host(host), m_schemes(new SchemesPage(host, this)),
      m_compare(new ComparePage(host, this))
{
    setObjectName(QStringLiteral("dlgSchemeManager"));
    setWindowTitle(tr("Manage Schemes"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false); // Enter belongs to the filter field
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(MakePages(), 1);
    rows->addWidget(buttons);
    addActions(m_schemes->HistoryActions());
    m_compare->AddToMenu(m_schemes->HistoryActions());
    resize(sizeHint() + QSize(0, MoreLines * fontMetrics().height()));
    Restore();
}

QTabWidget* SchemeManager::MakePages()
{
    auto* pages = new QTabWidget(this);
    pages->setObjectName(QStringLiteral("tabPages"));
    pages->addTab(m_schemes, tr("&Schemes"));
    pages->addTab(m_compare, tr("Com&pare"));
    connect(pages, &QTabWidget::currentChanged, this, [this, pages] {
        if (pages->currentWidget() == m_compare)
            m_compare->Propose(m_schemes->ChosenNames());
    });
    return pages;
}

void SchemeManager::done(int result)
{
    GuardCommand(this, [this] { Remember(); });
    QDialog::done(result);
}

void SchemeManager::Restore()
{
    GuardCommand(parentWidget(), [this] {
        restoreGeometry(FromText(m_host.settings.Read(PlaceKey)));
        m_schemes->RestoreColumns(FromText(m_host.settings.Read(ColumnsKey)));
        m_compare->RestoreColumns(FromText(m_host.settings.Read(CompareColumnsKey)));
    });
}

void SchemeManager::Remember()
{
    m_host.settings.Write(PlaceKey, AsText(saveGeometry()));
    m_host.settings.Write(ColumnsKey, AsText(m_schemes->Columns()));
    m_host.settings.Write(CompareColumnsKey, AsText(m_compare->Columns()));
}

} // namespace Orvane

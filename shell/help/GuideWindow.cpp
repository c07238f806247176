// SPDX-License-Identifier: MIT
#include "shell/help/GuideWindow.h"

#include "mapkit/common/Guard.h"
#include "shell/help/GuideBrowser.h"
#include "shell/help/GuideFind.h"
#include "shell/help/GuidePlaces.h"
#include "shell/window/Icons.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSplitter>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <functional>

namespace Orvane {

namespace {

constexpr int ContentsWidth = 240; // pixels
constexpr int RowMargin = 4; // pixels
constexpr int SectionRole = Qt::UserRole;

QString SectionOfItem(const QTreeWidgetItem& item)
{
    return item.data(0, SectionRole).toString();
}

} // namespace

QString GuideWindow::FirstPage()
{
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* folder : {"guide", "../share/orvane/guide"}) {
        const QString page = program.absoluteFilePath(QLatin1String(folder) + QStringLiteral("/README.md"));
        if (QFile::exists(page))
            return QDir::cleanPath(page);
    }
    return {};
}

GuideWindow::GuideWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), m_browser(new GuideBrowser(this)), m_contents(new QTreeWidget(this)),
      m_firstPage(FirstPage())
{
    if (m_firstPage.isEmpty())
        throw RunTimeError(GuideUnreadable, tr("The guide is not installed."));
    setObjectName(QStringLiteral("GuideWindow"));
    setWindowTitle(tr("Orvane Guide"));
    setWindowIcon(ProgramIcon());
    setAttribute(Qt::WA_QuitOnClose, false);
    m_contents->setObjectName(QStringLiteral("tvContents"));
    m_contents->setAccessibleName(tr("Contents"));
    m_contents->header()->hide();
    auto* splitter = new QSplitter(this);
    splitter->addWidget(m_contents);
    splitter->addWidget(m_browser);
    splitter->setSizes({ContentsWidth, sizeHint().width() - ContentsWidth});
    splitter->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(RowMargin, RowMargin, RowMargin, 0);
    AddSteps(*row);
    layout->addLayout(row);
    layout->addWidget(splitter, 1);
    connect(m_browser, &GuideBrowser::PageChanged, this, &GuideWindow::FillContents);
    connect(m_browser, &GuideBrowser::Visited, this, &GuideWindow::ShowPlace);
    connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item && SectionOfItem(*item) != m_browser->History().Section()) // else it follows the page
            Guard(this, [&] { VisitItem(*item); });
    });
    connect(m_contents, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* item) {
        Guard(this, [&] { VisitItem(*item); });
    });
    m_browser->ShowPage(m_firstPage);
    m_browser->setFocus();
}

void GuideWindow::AddSteps(QHBoxLayout& row)
{
    m_back = AddStep(row, "actBack", tr("Back"), QKeySequence(Qt::ALT | Qt::Key_Left));
    m_forward = AddStep(row, "actForward", tr("Forward"), QKeySequence(Qt::ALT | Qt::Key_Right));
    QAction* begin = AddStep(row, "actBeginning", tr("Beginning"), QKeySequence(Qt::ALT | Qt::Key_Home));
    m_back->setEnabled(false);
    m_forward->setEnabled(false);
    const auto onClick = [this](QAction* action, const std::function<void()>& act) {
        connect(action, &QAction::triggered, this, [this, act] { Guard(this, act); });
    };
    onClick(m_back, [this] { m_browser->Step(-1); });
    onClick(m_forward, [this] { m_browser->Step(1); });
    onClick(begin, [this] { ShowSection({}); });
    row.addStretch(1);
    row.addWidget(new GuideFind(*m_browser, this));
}

QAction*
GuideWindow::AddStep(QHBoxLayout& row, const char* name, const QString& text, const QKeySequence& key)
{
    auto* action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    addAction(action);
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    row.addWidget(button);
    return action;
}

void GuideWindow::ShowSection(const QString& section)
{
    m_browser->Visit(m_firstPage, section);
}

void GuideWindow::VisitItem(const QTreeWidgetItem& item)
{
    m_browser->Visit(m_browser->document()->baseUrl().toLocalFile(), SectionOfItem(item));
}

// The contents follow, whatever led to the place.
void GuideWindow::ShowPlace()
{
    const GuideHistory& history = m_browser->History();
    m_back->setEnabled(history.Has(-1));
    m_forward->setEnabled(history.Has(1));
    m_contents->setCurrentItem(ItemOf(history.Section()));
}

// Nothing for the beginning, which is before all sections.
QTreeWidgetItem* GuideWindow::ItemOf(const QString& section) const
{
    for (QTreeWidgetItemIterator item(m_contents); *item; ++item) {
        if (SectionOfItem(**item) == section)
            return *item;
    }
    return nullptr;
}

void GuideWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void GuideWindow::FillContents()
{
    m_contents->clear();
    QTreeWidgetItem* section = nullptr;
    for (const GuideBrowser::Heading& heading : m_browser->Headings()) {
        const bool isBelow = heading.level > 2 && section;
        auto* item = isBelow ? new QTreeWidgetItem(section) : new QTreeWidgetItem(m_contents);
        item->setText(0, heading.text);
        item->setToolTip(0, heading.text);
        item->setData(0, SectionRole, GuidePlaces::SectionOf(heading.text));
        section = isBelow ? section : item;
    }
    m_contents->expandAll();
}

} // namespace Orvane

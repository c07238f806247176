// SPDX-License-Identifier: MIT
#include "shell/help/GuideWindow.h"

#include "shell/help/GuideBrowser.h"
#include "shell/help/GuidePlaces.h"
#include "shell/window/Icons.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSplitter>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace Orvane {

namespace {

constexpr int ContentsWidth = 240; // pixels
constexpr int SectionRole = Qt::UserRole;

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
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter);
    connect(m_browser, &GuideBrowser::PageChanged, this, &GuideWindow::FillContents);
    connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item)
            m_browser->ShowSection(item->data(0, SectionRole).toString());
    });
    m_browser->ShowPage(m_firstPage);
    m_browser->setFocus();
}

void GuideWindow::ShowSection(const QString& section)
{
    if (m_browser->document()->baseUrl().toLocalFile() != m_firstPage)
        m_browser->ShowPage(m_firstPage);
    QTreeWidgetItem* item = ItemOf(section);
    m_contents->setCurrentItem(item);
    m_browser->ShowSection(item ? section : QString()); // also if it was the current one
}

// Nothing for the beginning, which is before all sections.
QTreeWidgetItem* GuideWindow::ItemOf(const QString& section) const
{
    for (QTreeWidgetItemIterator item(m_contents); *item; ++item) {
        if ((*item)->data(0, SectionRole).toString() == section)
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

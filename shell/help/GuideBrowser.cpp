// SPDX-License-Identifier: MIT
#include "shell/help/GuideBrowser.h"

#include "mapkit/common/Guard.h"
#include "shell/help/GuidePlaces.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QFile>
#include <QImage>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>

namespace Orvane {

namespace {

constexpr int PageWidth = 640; // pixels, of pictures
constexpr double HeadingGap = 16; // pixels, above a heading
constexpr double CellPadding = 4; // pixels

QTextBlock BlockOfSection(const QTextDocument& document, const QString& section)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0 && GuidePlaces::SectionOf(block.text()) == section)
            return block;
    }
    return {};
}

} // namespace

GuideBrowser::GuideBrowser(QWidget* parent) : QTextBrowser(parent)
{
    setObjectName(QStringLiteral("txtGuide"));
    setOpenLinks(false);
    document()->setDocumentMargin(CellPadding * 4);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        Guard(window(), [&] { Follow(link); });
    });
}

void GuideBrowser::ShowPage(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(
            GuideUnreadable, tr("The guide \"%1\" cannot be read: %2").arg(path, file.errorString()));
    document()->setBaseUrl(QUrl::fromLocalFile(path));
    setMarkdown(QString::fromUtf8(file.readAll()));
    ShapeHeadings();
    ShapeTables();
    emit PageChanged();
}

void GuideBrowser::ShowSection(const QString& section)
{
    const QTextBlock block = BlockOfSection(*document(), section);
    setTextCursor(QTextCursor(block.isValid() ? block : document()->begin())); // where finding begins
    const double top = block.isValid() ? document()->documentLayout()->blockBoundingRect(block).top() : 0;
    verticalScrollBar()->setValue(int(top));
}

void GuideBrowser::Open(const QString& page)
{
    if (page != document()->baseUrl().toLocalFile())
        ShowPage(page);
}

void GuideBrowser::Visit(const QString& page, const QString& section)
{
    m_history.Leave(verticalScrollBar()->value());
    Open(page);
    ShowSection(section);
    m_history.Visit(page, section);
    emit Visited();
}

void GuideBrowser::Step(int steps)
{
    if (!m_history.Has(steps))
        return;
    m_history.Leave(verticalScrollBar()->value());
    Open(m_history.At(steps).page);
    m_history.Go(steps);
    ShowSection(m_history.At(0).section); // lays a new page out
    verticalScrollBar()->setValue(m_history.At(0).top);
    emit Visited();
}

void GuideBrowser::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::BackButton || event->button() == Qt::ForwardButton)
        Guard(window(), [&] { Step(event->button() == Qt::BackButton ? -1 : 1); });
    else
        QTextBrowser::mousePressEvent(event);
}

std::vector<GuideBrowser::Heading> GuideBrowser::Headings() const
{
    std::vector<Heading> headings;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() > 0)
            headings.push_back({block.text(), block.blockFormat().headingLevel()});
    }
    return headings;
}

QVariant GuideBrowser::loadResource(int type, const QUrl& name)
{
    if (type != QTextDocument::ImageResource)
        return QTextBrowser::loadResource(type, name);
    const QImage image(name.toLocalFile());
    return image.width() > PageWidth ? image.scaledToWidth(PageWidth, Qt::SmoothTransformation) : image;
}

void GuideBrowser::Follow(const QUrl& link)
{
    const QUrl target = document()->baseUrl().resolved(link);
    if (!target.isLocalFile()) {
        QDesktopServices::openUrl(target);
        return;
    }
    Visit(target.toLocalFile(), target.fragment());
}

void GuideBrowser::ShapeHeadings()
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        if (format.headingLevel() == 0)
            continue;
        format.setTopMargin(HeadingGap);
        QTextCursor(block).setBlockFormat(format);
    }
}

void GuideBrowser::ShapeTables()
{
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorder(1);
        format.setBorderCollapse(true);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(palette().mid());
        format.setCellPadding(CellPadding);
        table->setFormat(format);
    }
}

} // namespace Orvane

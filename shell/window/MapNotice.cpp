// SPDX-License-Identifier: MIT
#include "shell/window/MapNotice.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

namespace Orvane {

MapNotice::MapNotice(QWidget& map) : QFrame(&map), m_map(map), m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("framNotice"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setFrameShape(QFrame::StyledPanel);
    setCursor(Qt::ArrowCursor);
    m_text->setObjectName(QStringLiteral("lblNotice"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* close = new QToolButton(this);
    close->setObjectName(QStringLiteral("cmdCloseNotice"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setAutoRaise(true);
    close->setToolTip(tr("Close"));
    close->setAccessibleName(tr("Close"));
    auto* row = new QHBoxLayout(this);
    row->addWidget(m_text, 1);
    row->addWidget(close, 0, Qt::AlignTop);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    map.installEventFilter(this);
    hide();
}

void MapNotice::Show(const QStringList& lines)
{
    m_text->setText(lines.join(QLatin1Char('\n')));
    setVisible(!lines.isEmpty());
    Place();
}

bool MapNotice::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        Place();
    return QFrame::eventFilter(watched, event);
}

void MapNotice::Place()
{
    if (isHidden())
        return;
    const int width = m_map.width();
    setGeometry(0, 0, width, heightForWidth(width));
    raise();
}

} // namespace Orvane

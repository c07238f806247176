// SPDX-License-Identifier: MIT
#include "shell/tools/StatusText.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace Orvane {

namespace {

constexpr int FewestCharacters = 8;

} // namespace

StatusText::StatusText(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void StatusText::SetText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize StatusText::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text), fontMetrics().height()};
}

QSize StatusText::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * FewestCharacters, fontMetrics().height()};
}

void StatusText::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QString shown = fontMetrics().elidedText(m_text, Qt::ElideRight, width());
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine, shown);
}

bool StatusText::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const bool cut = fontMetrics().horizontalAdvance(m_text) > width();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), cut ? m_text : QString(), this);
    return true;
}

} // namespace Orvane

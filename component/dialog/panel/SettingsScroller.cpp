// SPDX-License-Identifier: MIT
#include "component/dialog/panel/SettingsScroller.h"

#include <QStyle>

namespace Orvane {

SettingsScroller::SettingsScroller(QWidget* parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
}

void SettingsScroller::SetFewestRows(int rows)
{
    m_fewestRows = rows;
    updateGeometry();
}

QSize SettingsScroller::sizeHint() const
{
    const QSize contents = widget() ? widget()->sizeHint() : QSize();
    return {contents.width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent), contents.height()};
}

QSize SettingsScroller::minimumSizeHint() const
{
    return {sizeHint().width(), m_fewestRows * fontMetrics().lineSpacing()};
}

} // namespace Orvane

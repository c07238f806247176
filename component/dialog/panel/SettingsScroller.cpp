// SPDX-License-Identifier: MIT
#include "component/dialog/panel/SettingsScroller.h"

#include <QStyle>

namespace Orvane {

namespace {

constexpr int fewestRows = 8;

} // namespace

SettingsScroller::SettingsScroller(QWidget* parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
}

QSize SettingsScroller::sizeHint() const
{
    const QSize contents = widget() ? widget()->sizeHint() : QSize();
    return {contents.width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent), contents.height()};
}

QSize SettingsScroller::minimumSizeHint() const
{
    return {sizeHint().width(), fewestRows * fontMetrics().lineSpacing()};
}

} // namespace Orvane

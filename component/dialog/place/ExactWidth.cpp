// SPDX-License-Identifier: MIT
#include "component/dialog/place/ExactWidth.h"

#include <QResizeEvent>
#include <QWidget>

#include <cmath>
#include <utility>

namespace Orvane {

int RoundedPixels(const QWidget& window)
{
    const double ratio = window.devicePixelRatioF();
    return ratio == std::floor(ratio) ? 0 : 1;
}

ExactWidth::ExactWidth(QWidget& window) : m_window(window)
{
    window.installEventFilter(this);
}

void ExactWidth::Resize(int width)
{
    m_wanted = RoundedPixels(m_window) > 0 ? width : -1;
    m_window.resize(width, m_window.height());
}

// Qt reports the wanted width first, and then what the window system made of it.
bool ExactWidth::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::Resize || m_wanted < 0)
        return false;
    const int width = static_cast<QResizeEvent*>(event)->size().width();
    if (width == m_wanted)
        return false;
    const int wanted = std::exchange(m_wanted, -1);
    if (width == wanted - 1)
        m_window.resize(wanted + 1, m_window.height());
    return false;
}

} // namespace Orvane

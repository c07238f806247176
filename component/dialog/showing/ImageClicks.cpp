// SPDX-License-Identifier: MIT
#include "component/dialog/showing/ImageClicks.h"

#include "component/common/EventGuard.h"
#include "component/dialog/trees/NodeImages.h"
#include "component/dialog/trees/NodeIndexes.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTreeView>

#include <utility>

namespace Orvane {

ImageClicks::ImageClicks(
    QTreeView& view, std::function<bool(const NodeReference&)> keepsChoice, QObject* parent)
    : QObject(parent), m_view(view), m_keepsChoice(std::move(keepsChoice))
{
    view.viewport()->installEventFilter(this);
}

bool ImageClicks::eventFilter(QObject* watched, QEvent* event)
{
    bool isTaken = false;
    GuardEvent(&m_view, [&] {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            isTaken = Press(*static_cast<QMouseEvent*>(event));
            break;
        case QEvent::MouseMove:
            isTaken = Move(*static_cast<QMouseEvent*>(event));
            break;
        case QEvent::MouseButtonRelease:
            isTaken = Release(*static_cast<QMouseEvent*>(event));
            break;
        default:
            break;
        }
    });
    return isTaken || QObject::eventFilter(watched, event);
}

// The whole height of the row, which is easier to hit.
QModelIndex ImageClicks::ImageAt(const QPoint& place) const
{
    const QModelIndex index = m_view.indexAt(place);
    if (!index.isValid())
        return {};
    const QStyle& style = *m_view.style();
    const int icon = m_view.iconSize().isValid()
        ? m_view.iconSize().height()
        : style.pixelMetric(QStyle::PM_SmallIconSize, nullptr, &m_view);
    const int side = NodeImages::SideOf(icon, m_view.fontMetrics());
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &m_view) + 1;
    const QRect row = m_view.visualRect(index);
    const QRect image(row.left(), row.top(), side + 2 * margin, row.height());
    return QStyle::visualRect(m_view.layoutDirection(), row, image).contains(place) ? index : QModelIndex();
}

bool ImageClicks::Press(const QMouseEvent& event)
{
    m_pressed.reset();
    m_isKept = false;
    const bool isPlain = event.button() == Qt::LeftButton && event.modifiers() == Qt::NoModifier;
    const QModelIndex index = m_allowed && isPlain ? ImageAt(event.pos()) : QModelIndex();
    if (!index.isValid())
        return false;
    const NodeReference node = NodeIndexes::NodeAt(index);
    const bool isSecond = event.type() == QEvent::MouseButtonDblClick; // not for the view: it counts once
    m_isKept = isSecond || m_keepsChoice(node);
    m_place = event.pos();
    if (!isSecond)
        m_pressed = node;
    return m_isKept;
}

bool ImageClicks::Move(const QMouseEvent& event)
{
    if ((event.pos() - m_place).manhattanLength() >= QApplication::startDragDistance())
        m_pressed.reset();
    m_isKept = m_isKept && (event.buttons() & Qt::LeftButton);
    return m_isKept;
}

bool ImageClicks::Release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return m_isKept;
    const std::optional<NodeReference> pressed = std::exchange(m_pressed, std::nullopt);
    const QModelIndex index = pressed ? ImageAt(event.pos()) : QModelIndex();
    if (index.isValid() && IsSameNode(NodeIndexes::NodeAt(index), *pressed))
        emit Clicked(NodeIndexes::NodeAt(index));
    return std::exchange(m_isKept, false);
}

} // namespace Orvane

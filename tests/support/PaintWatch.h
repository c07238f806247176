// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

namespace Orvane::Testing {

/// How often a shown widget was painted since this object was made, and which part of it.
class PaintWatch : public QObject
{
public:
    /// widget: not owned; outlives this object. What waits to be painted is painted first, and does not
    /// count.
    explicit PaintWatch(QWidget& widget) : m_widget(widget)
    {
        PaintNow();
        m_widget.installEventFilter(this);
    }

    int Count()
    {
        PaintNow();
        return m_count;
    }

    QRegion Region()
    {
        PaintNow();
        return m_region;
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++m_count;
            m_region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

private:
    // Otherwise it waits for a timer of the screen.
    void PaintNow()
    {
        QCoreApplication::sendPostedEvents(); // of the layout
        QEvent request(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(m_widget.window(), &request);
    }

    QWidget& m_widget;
    int m_count = 0;
    QRegion m_region;
};

} // namespace Orvane::Testing

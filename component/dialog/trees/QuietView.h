// SPDX-License-Identifier: MIT
#pragma once

#include <QItemSelection>
#include <QTreeView>

namespace Orvane {

/// While it exists, a view does not scroll to its current node, which would also expand the node's group. Nor
/// does it look up the place of each range if many are selected, or were, which takes quadratic time for
/// thousands: then it is painted as a whole.
class QuietView
{
public:
    /// view: not owned; outlives this object. ranges: what is going to be selected.
    QuietView(QTreeView& view, const QItemSelection& ranges)
        : m_view(view), m_scrolls(view.hasAutoScroll()),
          m_waits(AreMany(ranges) || AreMany(view.selectionModel()->selection())),
          m_updates(!view.testAttribute(Qt::WA_ForceUpdatesDisabled))
    {
        m_view.setAutoScroll(false);
        if (m_waits)
            m_view.setUpdatesEnabled(false);
    }

    ~QuietView()
    {
        if (m_waits)
            m_view.setUpdatesEnabled(m_updates);
        m_view.setAutoScroll(m_scrolls);
    }

    Q_DISABLE_COPY_MOVE(QuietView)

private:
    static bool AreMany(const QItemSelection& ranges) { return ranges.size() > 32; }

    QTreeView& m_view;
    bool m_scrolls;
    bool m_waits; ///< with painting
    bool m_updates; ///< of the view itself, not of the widgets that it is in
};

} // namespace Orvane

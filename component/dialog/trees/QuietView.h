// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

namespace Orvane {

/// While it exists, a view neither scrolls to its current node, which would also expand the node's group, nor
/// looks up the place of each range that is selected, which takes quadratic time for thousands of ranges.
class QuietView
{
public:
    /// view: not owned; outlives this object.
    explicit QuietView(QTreeView& view)
        : m_view(view), m_scrolls(view.hasAutoScroll()),
          m_updates(!view.testAttribute(Qt::WA_ForceUpdatesDisabled))
    {
        m_view.setAutoScroll(false);
        m_view.setUpdatesEnabled(false);
    }

    ~QuietView()
    {
        m_view.setUpdatesEnabled(m_updates);
        m_view.setAutoScroll(m_scrolls);
    }

    Q_DISABLE_COPY_MOVE(QuietView)

private:
    QTreeView& m_view;
    bool m_scrolls;
    bool m_updates; ///< of the view itself, not of the widgets that it is in
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"

#include <QModelIndex>
#include <QObject>
#include <QPoint>

#include <functional>
#include <optional>

class QMouseEvent;
class QTreeView;

namespace Orvane {

/// Clicks on the small image of a node in one tree. A double click counts as one, a drag as none. The view
/// chooses the node too, as for a click beside the image, unless the choice is to be kept.
class ImageClicks : public QObject
{
    Q_OBJECT

public:
    /// view: not owned; outlives this object. keepsChoice: called at a press on the image of a node; if it
    /// returns true, the view does not notice the click.
    ImageClicks(QTreeView& view, std::function<bool(const NodeReference&)> keepsChoice, QObject* parent);

    /// Without it, nothing is done here. At first false.
    void SetAllowed(bool allowed) { m_allowed = allowed; }

signals:
    void Clicked(const Orvane::NodeReference& node);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QModelIndex ImageAt(const QPoint& place) const;
    bool Press(const QMouseEvent& event);
    bool Move(const QMouseEvent& event);
    bool Release(const QMouseEvent& event);

    QTreeView& m_view;
    std::function<bool(const NodeReference&)> m_keepsChoice;
    std::optional<NodeReference> m_pressed; ///< a release there is a click
    QPoint m_place; ///< of the press
    bool m_isKept = false; ///< the view did not get the press
    bool m_allowed = false;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/NodeKey.h"

#include <QString>
#include <QVariant>

namespace Orvane {

/// What a node answers for one of LayerTreeModel's own roles; invalid for any other.
QVariant NodeData(const NodeReference& node, int role);

/// The word for a quick mode, translated: "Normal", "Backdrop", "Hidden", and "various" for any other.
QString QuickModeText(qint16 quickMode);

/// The node's whole text and its quick mode: what a narrow tree cuts off and what the image says.
QString NodeToolTip(const QString& text, qint16 quickMode);

} // namespace Orvane

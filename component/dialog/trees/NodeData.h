// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"

#include <QString>
#include <QVariant>

namespace Orvane {

/// The node's value for one of LayerTreeModel's own roles; invalid for any other role.
QVariant NodeData(const NodeReference& node, int role);

/// The word for a quick mode, translated: "Normal", "Backdrop", "Hidden", and "various" for any other.
QString QuickModeText(qint16 quickMode);

/// The node's full text, which a narrow tree cuts off, its quick mode, which the image shows, and what the
/// marks in a layer's name mean. faulty: a last line says that a value of the node cannot be read.
QString NodeToolTip(const QString& text, const NodeReference& node, bool faulty = false);

} // namespace Orvane

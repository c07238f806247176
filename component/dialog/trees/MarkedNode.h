// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/FindWords.h"

#include <vector>

class QPainter;
class QStyleOptionViewItem;

namespace Orvane {

/// Paints a node of a list as its style does, with these pieces of its text in bold. Bold letters have the
/// colour of the text, so that they can be read in every palette and on a selected row. node: initialised by
/// the delegate.
void PaintMarkedNode(
    QPainter& painter, const QStyleOptionViewItem& node, const std::vector<FindWords::Piece>& pieces);

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

namespace Orvane {

/// The number stored beside a line item: the style, or for the solid style 0 the thickness times 20, so that
/// one number tells all lines apart. Raises 6 (overflow) where the product leaves 16 bits.
qint32 LineStyleItemData(qint16 style, qint16 thickness);

/// A line selection as the layer properties OutlineStyle and LineThickness; both Null for "various".
struct SelectedLine {
    Value style;
    Value thickness;
};

/// Reads a selection back. variousIndex: where "[various]" stands, -1 when the list has none; a list without
/// selection then counts as various. From 20 on, positive or negative, the data is a thickness, a double.
SelectedLine ReadSelectedLine(int selectedIndex, int variousIndex, qint32 itemData);

} // namespace Orvane

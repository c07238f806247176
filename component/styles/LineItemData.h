// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

namespace Orvane {

/// The number stored with a line item: the style, or for the solid style 0 the thickness times 20, so that
/// one number identifies each line. Raises 6 (overflow) if the product exceeds 16 bits.
qint32 LineStyleItemData(qint16 style, qint16 thickness);

/// A line selection as the layer properties OutlineStyle and LineThickness; both Null for "various".
struct SelectedLine {
    Value style;
    Value thickness;
};

/// Reads a selection back. variousIndex: the index of "[various]", -1 if the list has none; a list without a
/// selection then counts as various. Data of 20 or more, or of -20 or less, is a thickness, a double.
SelectedLine ReadSelectedLine(int selectedIndex, int variousIndex, qint32 itemData);

} // namespace Orvane

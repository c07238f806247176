// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/attributes/TableCell.h"

class OGRFeature;
class OGRFieldDefn;

namespace Orvane {

/// What the values of one of GDAL's fields are as cells of a table.
CellKind CellKindOf(const OGRFieldDefn& field);

/// The value of a feature's field as in TableRow. index: of the field. kind: that of the field.
QVariant CellOf(OGRFeature& feature, int index, CellKind kind);

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/attributes/TableCell.h"

#include <QVariant>

class OGRFeature;
class OGRFieldDefn;

namespace Orvane {

/// What the cells of a column hold that has this definition.
CellKind KindOfCells(const OGRFieldDefn& field);

/// The feature's value in a column of that kind; invalid for null. A moment that is none is its text.
QVariant CellOf(OGRFeature& feature, int index, CellKind kind);

} // namespace Orvane

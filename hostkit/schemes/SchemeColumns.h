// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The columns of Layers that a layer scheme keeps, as fragments of SQL. LayerSchemeValues has columns of the
/// same names.
namespace SchemeColumns {

inline constexpr int Count = 17;

/// "Visible, Selectable, ..."
QString List();
/// "LayerSchemeValues.Visible, LayerSchemeValues.Selectable, ..."
QString SavedList();
/// "Visible = LayerSchemeValues.Visible, Selectable = ..."
QString Assignments();
/// A condition that is true for a layer whose values differ from the scheme. NULL counts as a value, and both
/// stored forms of "no maximum scale" count as equal.
QString Difference();
/// "?<first>, ?<first + 1>, ...", one for each column.
QString Parameters(int first);
/// The columns of LayerSchemeValues with their types.
QString Definitions();
/// The name of a column, 0 to Count - 1.
const char* Name(int column);
/// True for a column of 32-bit integers, false for one of doubles.
bool IsWhole(int column);

} // namespace SchemeColumns

} // namespace Orvane

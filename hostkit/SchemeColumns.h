// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The columns of Layers that a layer scheme keeps, as pieces of SQL texts. LayerSchemeValues has columns of
/// the same names.
namespace SchemeColumns {

inline constexpr int Count = 17;

/// "Visible, Selectable, ..."
QString List();
/// "LayerSchemeValues.Visible, LayerSchemeValues.Selectable, ..."
QString SavedList();
/// "Visible = LayerSchemeValues.Visible, Selectable = ..."
QString Assignments();
/// True for a layer whose values are not those of the scheme; nulls are values, and both stored forms of "no
/// maximum scale" are one.
QString Difference();
/// "?<first>, ?<first + 1>, ...", one for each column.
QString Parameters(int first);
/// The columns of LayerSchemeValues with their types.
QString Definitions();
/// The name of a column, 0 to Count - 1.
const char* Name(int column);
/// True for a column of whole numbers of 32 bits, false for one of doubles.
bool IsWhole(int column);

} // namespace SchemeColumns

} // namespace Orvane

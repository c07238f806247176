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
/// "Visible = LayerSchemeValues.Visible, Selectable = ..."
QString Assignments();
/// True for a layer whose values are not those of the scheme; nulls are values.
QString Difference();
/// "?<first>, ?<first + 1>, ...", one for each column.
QString Parameters(int first);
/// The columns of LayerSchemeValues with their types.
QString Definitions();
/// The name of a column, 0 to Count - 1.
const char* Name(int column);

} // namespace SchemeColumns

} // namespace Orvane

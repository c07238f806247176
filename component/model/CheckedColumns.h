// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IRecordset.h>
#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <string_view>

namespace Orvane {

/// Checked reads of the current row's columns. A value of the wrong type raises 13 (type mismatch) with the
/// column's name; a value that does not fit raises 6 (overflow). What Field raises is passed on unchanged.

/// The number as it is stored; Null for Null.
Value NumberColumn(const IRecordset& row, std::string_view columnName);

/// True for a number other than 0, false for 0, Null for Null.
Value FlagColumn(const IRecordset& row, std::string_view columnName);

/// The number as a 32-bit integer; Null for Null.
Value Int32Column(const IRecordset& row, std::string_view columnName);

/// As Int32Column, for columns that are never Null: Null raises 13.
qint32 IntegerColumn(const IRecordset& row, std::string_view columnName);

/// As FlagColumn, with false for Null.
bool FlagIsSet(const IRecordset& row, std::string_view columnName);

/// The quick mode (1, 2 or 4) that the row's OverrideMode stands for.
qint16 QuickModeColumn(const IRecordset& row);

} // namespace Orvane

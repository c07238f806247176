// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IRecordset.h>
#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <string_view>

namespace Orvane {

/// Checked reads and writes of the current row's columns. A value of the wrong type raises 13 (type
/// mismatch), a value that does not fit 6 (overflow), both as a ColumnError. What Field and SetField raise is
/// passed on unchanged.

/// The number as it is stored; Null for Null. The second form is for a value that was read already.
Value NumberColumn(const IRecordset& row, std::string_view columnName);
Value NumberColumn(const IRecordset& row, std::string_view columnName, const Value& value);

/// True for a number other than 0, false for 0, Null for Null.
Value FlagColumn(const IRecordset& row, std::string_view columnName);
Value FlagColumn(const IRecordset& row, std::string_view columnName, const Value& value);

/// The number as a 32-bit integer; Null for Null.
Value Int32Column(const IRecordset& row, std::string_view columnName);
Value Int32Column(const IRecordset& row, std::string_view columnName, const Value& value);

/// As Int32Column, for columns that are never Null: Null raises 13.
qint32 IntegerColumn(const IRecordset& row, std::string_view columnName);

/// As FlagColumn, with false for Null.
bool FlagIsSet(const IRecordset& row, std::string_view columnName);

/// Raises a ColumnError that names the row, for a value that is read from the column or written to it.
[[noreturn]] void RaiseColumnError(
    const IRecordset& row, std::string_view columnName, const Value& value, const RunTimeError& cause);

/// The value after a conversion such as ToInt32; what that raises is raised as a ColumnError.
template <typename Conversion>
auto ConvertedFor(
    const IRecordset& row, std::string_view columnName, const Value& value, Conversion conversion)
{
    try {
        return conversion(value);
    } catch (const RunTimeError& error) {
        RaiseColumnError(row, columnName, value, error);
    }
}

/// The quick mode (1, 2 or 4) that the row's OverrideMode stands for.
qint16 QuickModeColumn(const IRecordset& row);
qint16 QuickModeColumn(const IRecordset& row, const Value& overrideMode);

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <vector>

namespace Orvane {

class IRecordset;
struct ListedLayer;

/// How the fields of a ListedLayer are kept in columns.
namespace ListedFields {

/// A column and what it is to hold.
struct ColumnValue {
    const char* column;
    Value value;
};

/// The layer in the current row. A value that is Null, or of the wrong type or size, gives the field's
/// default; the ID is then 0.
ListedLayer Read(const IRecordset& row);

/// All columns, without the ID.
std::vector<ColumnValue> Columns(const ListedLayer& layer);

/// The columns in which the two layers differ, with the values of the second.
std::vector<ColumnValue> Differences(const ListedLayer& stored, const ListedLayer& wanted);

} // namespace ListedFields

} // namespace Orvane

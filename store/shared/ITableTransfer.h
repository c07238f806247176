// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreTable.h"

#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <functional>
#include <vector>

namespace Orvane {

/// The values of a row, in the order of the columns of a StoreTable.
using StoreRow = std::vector<Value>;
/// Takes one row.
using RowVisitor = std::function<void(const StoreRow& row)>;

/// What a kind of layer store offers for copying whole tables: many rows in little time and memory. The
/// tables are those that its Tables() has told, with all their columns or only some of them. Everything is
/// called in a transaction, and raises the errors of the store.
class ITableTransfer
{
public:
    virtual ~ITableTransfer() = default;

    /// How many rows each table has, in the order of the tables.
    virtual std::vector<qint64> CountRows(const std::vector<StoreTable>& tables) = 0;
    /// Calls the visitor with each row, in the order of the key, and keeps none. What no Value can hold, such
    /// as a blob, is Empty. Meanwhile only AskWatcher of the store may be called.
    virtual void ReadRows(const StoreTable& table, const std::function<void(const StoreRow& row)>& visitor)
        = 0;
    /// How many rows have a value in the column that the rows of the table that it refers to lack.
    virtual qint64 CountDangling(const StoreTable& table, const StoreColumn& column) = 0;

    /// Removes all rows, and those that refer to them.
    virtual void RemoveRows(const StoreTable& table) = 0;
    /// Adds the rows that source gives to its argument, one after another; none of them is kept. Their values
    /// have the types of their columns. Rows that they refer to must be there, except rows of the same table.
    /// Meanwhile nothing else may be called here. If this raises, the transaction is rolled back.
    virtual void AddRows(const StoreTable& table, const std::function<void(const RowVisitor& add)>& source)
        = 0;
    /// How many bytes a text may have where rows are looked up by it, or where it is unique. A longer one may
    /// be refused by AddRows.
    virtual qsizetype LongestIndexedText() const = 0;
    /// To be called once, after rows were added to these tables: keys that are numbered automatically go on
    /// after the highest one, and queries find their way through the new rows.
    virtual void FinishRows(const std::vector<StoreTable>& tables) = 0;
};

} // namespace Orvane

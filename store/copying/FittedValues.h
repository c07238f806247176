// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreTable.h"

#include <OrvaneShellLib/Value.h>

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace Orvane {

/// The value as a column of that type holds it, NULL as NULL. A flag is true for each number but 0; a column
/// of texts takes numbers as texts. Nothing if the type cannot hold it: a text in place of a number, a number
/// that is not whole or not of 32 bits, a text with a zero character, and Empty.
std::optional<Value> FittedValue(const Value& value, StoreType type);

/// The values of one table that its columns in another store cannot hold.
class UnfitValues
{
public:
    /// Notes the value of a column, in this row of the table.
    void Add(const StoreTable& table, const std::vector<Value>& row, size_t column);
    bool IsEmpty() const { return m_count == 0; }
    /// The first of them, each with its table, row, column and value, and how many others there are.
    QString Text() const;

private:
    QStringList m_listed;
    qint64 m_count = 0;
};

} // namespace Orvane

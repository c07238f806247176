// SPDX-License-Identifier: MIT
#include "component/model/CheckedColumns.h"

#include "component/model/LayerQueries.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

[[noreturn]] void RaiseWithColumn(const RunTimeError& error, std::string_view columnName)
{
    const auto column = QString::fromLatin1(columnName.data(), qsizetype(columnName.size()));
    throw RunTimeError(
        error.Number(), QStringLiteral("%1 (%2)").arg(error.Description(), column), error.Source());
}

template <typename Conversion>
auto Converted(const Value& value, std::string_view columnName, Conversion conversion)
{
    try {
        return conversion(value);
    } catch (const RunTimeError& error) {
        RaiseWithColumn(error, columnName);
    }
}

} // namespace

Value NumberColumn(const IRecordset& row, std::string_view columnName)
{
    Value value = row.Field(columnName);
    if (!value.IsNull() && !value.IsNumber())
        Converted(value, columnName, ToDouble);
    return value;
}

Value FlagColumn(const IRecordset& row, std::string_view columnName)
{
    Value value = row.Field(columnName);
    if (value.IsNull() || value.IsBoolean())
        return value;
    return Converted(value, columnName, ToBoolean);
}

Value Int32Column(const IRecordset& row, std::string_view columnName)
{
    Value value = row.Field(columnName);
    if (value.IsNull())
        return value;
    return Converted(value, columnName, ToInt32);
}

qint32 IntegerColumn(const IRecordset& row, std::string_view columnName)
{
    return Converted(row.Field(columnName), columnName, ToInt32);
}

bool FlagIsSet(const IRecordset& row, std::string_view columnName)
{
    const Value flag = FlagColumn(row, columnName);
    return !flag.IsNull() && *flag.Get<bool>();
}

qint16 QuickModeColumn(const IRecordset& row)
{
    return Converted(row.Field("OverrideMode"), "OverrideMode", QuickModeFromOverrideMode);
}

} // namespace Orvane

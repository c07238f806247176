// SPDX-License-Identifier: MIT
#include "component/model/CheckedColumns.h"

#include "component/model/ColumnError.h"

#include <OrvaneShellLib/QuickModes.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

// A row of a query may have no such column, and that it has none must not hide the error.
QString TextIn(const IRecordset& row, std::string_view columnName)
{
    try {
        return ToText(row.Field(columnName));
    } catch (const RunTimeError&) {
        return {};
    }
}

QString NameOf(const IRecordset& row)
{
    QString name = TextIn(row, "Name");
    if (!name.isEmpty())
        return name;
    QString layerID = TextIn(row, "LayerID");
    return layerID.isEmpty() ? layerID : QStringLiteral("LayerID ") + layerID;
}

} // namespace

void RaiseColumnError(
    const IRecordset& row, std::string_view columnName, const Value& value, const RunTimeError& cause)
{
    const auto column = QString::fromLatin1(columnName.data(), qsizetype(columnName.size()));
    throw ColumnError(cause, NameOf(row), column, value);
}

Value NumberColumn(const IRecordset& row, std::string_view columnName)
{
    return NumberColumn(row, columnName, row.Field(columnName));
}

Value NumberColumn(const IRecordset& row, std::string_view columnName, const Value& value)
{
    if (!value.IsNull() && !value.IsNumber())
        ConvertedFor(row, columnName, value, ToDouble);
    return value;
}

Value FlagColumn(const IRecordset& row, std::string_view columnName)
{
    return FlagColumn(row, columnName, row.Field(columnName));
}

Value FlagColumn(const IRecordset& row, std::string_view columnName, const Value& value)
{
    if (value.IsNull() || value.IsBoolean())
        return value;
    return ConvertedFor(row, columnName, value, ToBoolean);
}

Value Int32Column(const IRecordset& row, std::string_view columnName)
{
    return Int32Column(row, columnName, row.Field(columnName));
}

Value Int32Column(const IRecordset& row, std::string_view columnName, const Value& value)
{
    if (value.IsNull())
        return value;
    return ConvertedFor(row, columnName, value, ToInt32);
}

qint32 IntegerColumn(const IRecordset& row, std::string_view columnName)
{
    return ConvertedFor(row, columnName, row.Field(columnName), ToInt32);
}

bool FlagIsSet(const IRecordset& row, std::string_view columnName)
{
    const Value flag = FlagColumn(row, columnName);
    return !flag.IsNull() && *flag.Get<bool>();
}

qint16 QuickModeColumn(const IRecordset& row)
{
    return QuickModeColumn(row, row.Field("OverrideMode"));
}

qint16 QuickModeColumn(const IRecordset& row, const Value& overrideMode)
{
    return ConvertedFor(row, "OverrideMode", overrideMode, QuickModeFromOverrideMode);
}

} // namespace Orvane

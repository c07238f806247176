// SPDX-License-Identifier: MIT
#include "hostkit/common/LayerRow.h"

#include "store/ILayerStore.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QStringList>

#include <limits>
#include <optional>
#include <vector>

namespace Orvane {

namespace {

constexpr double HighestCode = std::numeric_limits<qint16>::max();

qint32 NextLayerID(ILayerStore& store)
{
    const auto highest
        = store.OpenQuery(QStringLiteral("SELECT COALESCE(MAX(LayerID), 0) AS Highest FROM Layers"
                                         " WHERE LayerID <= 2147483647"));
    return ToInt32(ToDouble(highest->Field("Highest")) + 1);
}

// The codes nearly always have no gap, and counting them is ten times as fast as reading each one.
std::optional<double> HighestWithoutGap(ILayerStore& store)
{
    const auto codes = store.OpenQuery(
        QStringLiteral("SELECT COUNT(DISTINCT CAST(Code AS INTEGER)) AS Number, MAX(Code) AS Highest"
                       " FROM Layers WHERE Code BETWEEN 0 AND 32767 AND Code = CAST(Code AS INTEGER)"));
    const double number = ToDouble(codes->Field("Number"));
    const double highest = number == 0 ? -1 : ToDouble(codes->Field("Highest"));
    return number == highest + 1 ? std::optional(highest) : std::nullopt;
}

qint32 FirstGap(ILayerStore& store)
{
    const auto taken = store.OpenQuery(
        QStringLiteral("SELECT DISTINCT Code FROM Layers WHERE Code BETWEEN 0 AND 32767 ORDER BY Code"));
    qint32 code = 0;
    for (; !taken->AtEOF() && ToDouble(taken->Field("Code")) <= code; taken->MoveNext()) {
        if (ToDouble(taken->Field("Code")) == code)
            ++code;
    }
    return code;
}

} // namespace

LayerRow::LayerRow()
{
    for (std::size_t column = 0; column < LayerColumns.size(); ++column)
        m_values.at(column) = DefaultValue(LayerColumns.at(column));
}

LayerRow::LayerRow(const IRecordset& row)
{
    for (std::size_t column = 0; column < LayerColumns.size(); ++column)
        m_values.at(column) = row.Field(LayerColumns.at(column).name);
}

void LayerRow::Set(std::string_view column, const Value& value)
{
    const std::size_t position = FindLayerColumn(column);
    if (position == LayerColumns.size())
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Layers has no such column."));
    m_values.at(position) = value;
}

qint32 LayerRow::StoreNew(ILayerStore& store)
{
    const qint32 layerID = NextLayerID(store);
    StoreAs(layerID, store);
    return layerID;
}

void LayerRow::StoreAs(qint32 layerID, ILayerStore& store)
{
    Set("LayerID", layerID);
    QStringList names;
    QStringList parameters;
    for (const LayerColumn& column : LayerColumns) {
        names << QLatin1String(column.name);
        parameters << u'?' + QString::number(names.size());
    }
    store.Execute(
        QStringLiteral("INSERT INTO Layers (%1) VALUES (%2)")
            .arg(names.join(QLatin1String(", ")), parameters.join(QLatin1String(", "))),
        std::vector<Value>(m_values.begin(), m_values.end()));
}

qint16 LayerRow::LowestFreeCode(ILayerStore& store)
{
    const std::optional<double> highest = HighestWithoutGap(store);
    const double code = highest ? *highest + 1 : FirstGap(store);
    return code <= HighestCode ? qint16(code) : NoCode;
}

} // namespace Orvane

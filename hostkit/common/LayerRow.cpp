// SPDX-License-Identifier: MIT
#include "hostkit/common/LayerRow.h"

#include "hostkit/common/NextNumbers.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QStringList>

#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

namespace {

constexpr qint32 HighestCode = std::numeric_limits<qint16>::max();

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

std::unique_ptr<IRecordset> TakenCodes(ILayerStore& store)
{
    return store.OpenQuery(
        QStringLiteral("SELECT DISTINCT Code FROM Layers WHERE Code BETWEEN 0 AND 32767 ORDER BY Code"));
}

bool IsTaken(qint32 code, IRecordset& taken)
{
    while (!taken.AtEOF() && ToDouble(taken.Field("Code")) < code)
        taken.MoveNext();
    return !taken.AtEOF() && ToDouble(taken.Field("Code")) == code;
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
    return StoreWithNextNumbers(
        [&] { return FreeIDs(store, 1).front(); },
        [&](qint32 layerID) {
            StoreAs(layerID, store);
            return layerID;
        });
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
    store.Send(
        QStringLiteral("INSERT INTO Layers (%1) VALUES (%2)")
            .arg(names.join(QLatin1String(", ")), parameters.join(QLatin1String(", "))),
        std::vector<Value>(m_values.begin(), m_values.end()));
}

std::vector<qint32> LayerRow::FreeIDs(ILayerStore& store, qsizetype count)
{
    if (count == 0)
        return {};
    const auto row = store.OpenQuery(QStringLiteral("SELECT COALESCE(MAX(LayerID), 0) AS Highest FROM Layers"
                                                    " WHERE LayerID <= 2147483647"));
    const double highest = ToDouble(row->Field("Highest"));
    const qint32 last = ToInt32(highest + double(count)); // raises if there are not as many
    std::vector<qint32> layerIDs;
    layerIDs.reserve(size_t(count));
    for (qint32 left = qint32(count); left > 0; --left)
        layerIDs.push_back(last - (left - 1));
    return layerIDs;
}

qint16 LayerRow::LowestFreeCode(ILayerStore& store)
{
    return FreeCodes(store, 1).front();
}

std::vector<qint16> LayerRow::FreeCodes(ILayerStore& store, qsizetype count)
{
    const std::optional<double> highest = HighestWithoutGap(store);
    const std::unique_ptr<IRecordset> taken = highest ? nullptr : TakenCodes(store);
    std::vector<qint16> codes;
    codes.reserve(size_t(count));
    for (auto code = qint32(highest.value_or(-1) + 1); code <= HighestCode; ++code) {
        if (qsizetype(codes.size()) == count)
            break;
        if (!taken || !IsTaken(code, *taken))
            codes.push_back(qint16(code));
    }
    codes.resize(size_t(count), NoCode);
    return codes;
}

} // namespace Orvane

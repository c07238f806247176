// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/LayerColumns.h>
#include <orvane/OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <array>
#include <string_view>
#include <vector>

namespace Orvane {

class ILayerStore;
class IRecordset;

/// A row for the table Layers. Each column has its default value until it is given another one.
///
///     LayerRow row;
///     row.Set("Name", name);
///     const qint32 layerID = row.StoreNew(store);
class LayerRow
{
public:
    LayerRow();
    /// Copies the values of all columns of the current row.
    explicit LayerRow(const IRecordset& row);

    /// column: a name of LayerColumns. Raises 9 (subscript out of range) for any other name.
    void Set(std::string_view column, const Value& value);

    /// Stores the row with the next free LayerID, and returns that, also if another program takes the same
    /// one at the same moment; inside a transaction that raises DatabaseFailure or DatabaseLocked instead,
    /// perhaps later, as ILayerStore::Send does. Raises errors of the store.
    qint32 StoreNew(ILayerStore& store);
    /// Stores the row as a new one with that LayerID. Raises errors of the store, DatabaseFailure if a layer
    /// has that ID; inside a transaction a store on a server may raise them later, as ILayerStore::Send does.
    void StoreAs(qint32 layerID, ILayerStore& store);

    /// The IDs that so many new layers get, in ascending order, found by one query. Raises 6 (overflow) if
    /// there are not so many.
    static std::vector<qint32> FreeIDs(ILayerStore& store, qsizetype count);

    /// The code of a layer when all codes from 0 to 32767 are taken; any number of layers may have it.
    static constexpr qint16 NoCode = -1;
    /// The lowest code from 0 up that no layer has, or NoCode.
    static qint16 LowestFreeCode(ILayerStore& store);
    /// The same for so many new layers, in ascending order; those for which no code is left get NoCode.
    static std::vector<qint16> FreeCodes(ILayerStore& store, qsizetype count);

private:
    std::array<Value, LayerColumns.size()> m_values;
};

} // namespace Orvane

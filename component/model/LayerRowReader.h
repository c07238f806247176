// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/ColumnError.h"
#include "component/model/LayerRowValues.h"
#include "component/model/LayerStyle.h"

#include <QtGlobal>

#include <bitset>
#include <optional>

namespace Orvane {

class IStyleEditorClient;

/// Turns rows of Layers into records. A value of the wrong type gives a Null slot, and the first one is kept.
class LayerRowReader
{
public:
    /// client: converts scales; not owned; outlives this object.
    explicit LayerRowReader(const IStyleEditorClient& client) : m_client(client) { }

    /// The properties of the row. values: of that row. Raises what the host raises.
    LayerStyle Read(const IRecordset& row, const LayerRowValues& values);
    /// The quick mode of the row (1, 2 or 4); nothing if it cannot be read.
    std::optional<qint16> ReadMode(const IRecordset& row, const LayerRowValues& values);

    /// Sets the slots to Null that could not be read in some row.
    void DropUnread(LayerStyle& style) const;
    /// The first value of the wrong type in all rows.
    const std::optional<ColumnError>& Fault() const { return m_fault; }

private:
    struct Target;

    void ReadFlags(const Target& target);
    void ReadColour(const Target& target);
    void ReadNumber(const Target& target, RowColumn column, qint16 slot);
    void ReadScale(const Target& target, RowColumn column, qint16 slot);
    template <typename Reading> void Set(const Target& target, qint16 slot, Reading read);
    template <typename Step> bool Try(Step step);

    const IStyleEditorClient& m_client;
    std::optional<ColumnError> m_fault;
    std::bitset<LayerStyle::SlotCount> m_unread;
};

} // namespace Orvane

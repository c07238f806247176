// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/LayerColumns.h>
#include <orvane/OrvaneShellLib/Value.h>

#include <QString>
#include <QtGlobal>

#include <array>
#include <string_view>
#include <vector>

namespace Orvane::HostTests {

/// A row of the table Layers. Columns that are not set have the defaults of LayerColumns.
class ContentsLayer
{
public:
    ContentsLayer(qint32 layerID, const QString& name, const Value& code);

    /// column: a name of LayerColumns. Raises 9 (subscript out of range) for any other name, as Get does.
    ContentsLayer& Set(std::string_view column, const Value& value);
    const Value& Get(std::string_view column) const;
    /// One value for each of LayerColumns, in their order. Flags are booleans.
    const std::array<Value, LayerColumns.size()>& Values() const { return m_values; }

private:
    std::array<Value, LayerColumns.size()> m_values;
};

/// A row of the table LayerGroups; the members have the columns' names.
struct ContentsGroup {
    qint32 id = 0;
    Value name; ///< a text, or Null
    qint32 groupOrdering = 0;
    bool pseudo = false;
    bool expanded = false;
};

/// A row of the table LayerGroupMembers. The group and the layer exist, and no two rows name the same two.
struct ContentsMember {
    qint32 groupID = 0;
    qint32 layerID = 0;
    qint32 ordering = 0;
};

/// All rows of a layer database.
struct HostContents {
    std::vector<ContentsLayer> layers = {};
    std::vector<ContentsGroup> groups = {};
    std::vector<ContentsMember> members = {};

    /// The row of a layer that is there.
    const ContentsLayer& Layer(qint32 layerID) const;
};

} // namespace Orvane::HostTests

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
    /// code: a number, or Null.
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
    qint32 id = 0; ///< not 0, different for each group
    Value name; ///< a text, or Null
    qint32 groupOrdering = 0; ///< the place in the list of groups
    bool pseudo = false; ///< such a group is not listed
    bool expanded = false; ///< shown with its layers
};

/// A row of the table LayerGroupMembers. The group and the layer exist, and no two rows name the same two.
struct ContentsMember {
    qint32 groupID = 0; ///< of a ContentsGroup
    qint32 layerID = 0; ///< of a ContentsLayer
    qint32 ordering = 0; ///< the place in the group
};

/// All rows of a layer database.
struct HostContents {
    std::vector<ContentsLayer> layers = {}; ///< in any order
    std::vector<ContentsGroup> groups = {}; ///< in any order
    std::vector<ContentsMember> members = {}; ///< in any order

    /// The row of a layer that is there.
    const ContentsLayer& Layer(qint32 layerID) const;
};

} // namespace Orvane::HostTests

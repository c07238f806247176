// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>
#include <QtGlobal>

#include <functional>
#include <vector>

namespace Orvane {

/// Statements for many rows at once, whose keys are parameters. A few long statements take far less time than
/// one for each row, in a store on a server above all.
///
///     KeyLists::ForEachBlock(layerIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
///         store.Send("DELETE FROM Layers WHERE LayerID IN " + list, values);
///     });
namespace KeyLists {

/// The most keys in one statement.
inline constexpr qsizetype Longest = 500;

/// list: "(?1, ?2 ...)"; values: of all parameters of the statement.
using Visitor = std::function<void(const QString& list, const std::vector<Value>& values)>;

/// Calls the visitor for each block of keys; never for none. first: the values of the parameters that come
/// before the keys. The last key of a block may be in its list several times, so that there are few different
/// statements, which stores then need not prepare again.
void ForEachBlock(const std::vector<qint32>& keys, const std::vector<Value>& first, const Visitor& visitor);

} // namespace KeyLists

} // namespace Orvane

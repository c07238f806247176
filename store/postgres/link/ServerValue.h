// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QByteArray>

#include <optional>
#include <vector>

namespace Orvane {

class StoreErrors;

/// A value as a parameter of a statement on a server: a text without a type, which the server reads as the
/// type that it expects there; nothing for NULL.
using ServerValue = std::optional<QByteArray>;
using ServerValues = std::vector<ServerValue>;

/// The value as a parameter: a boolean as 1 or 0, which the server takes for a number as well. NaN is stored
/// as NULL, as SQLite does. Raises TypeMismatch for Empty and for a text with a zero character.
ServerValue ToServerValue(const Value& value, const StoreErrors& errors);
/// All of them, in order.
ServerValues ToServerValues(const std::vector<Value>& values, const StoreErrors& errors);

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class ILayerStore;

/// Settings that a map file stores besides layers, by name. In a file without the table of settings, all
/// settings are empty.
namespace MapSettings {

/// Creates the table of settings if it is missing.
void Prepare(ILayerStore& database);

/// The setting's text, or an empty text.
QString Read(ILayerStore& database, const QString& name);

/// Stores the text. Raises what the database raises.
void Write(ILayerStore& database, const QString& name, const QString& value);

} // namespace MapSettings

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class ILayerStore;

/// What a map file stores besides layers, by name. A file without such settings reads as one with none.
namespace MapSettings {

/// Makes the file able to keep settings, if it is not yet.
void Prepare(ILayerStore& database);

/// The setting's text, or an empty text.
QString Read(ILayerStore& database, const QString& name);

/// Stores the text. Raises what the database raises.
void Write(ILayerStore& database, const QString& name, const QString& value);

} // namespace MapSettings

} // namespace Orvane

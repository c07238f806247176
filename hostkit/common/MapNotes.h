// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class ILayerStore;

/// The notes of IMapNotes in a layer store: the table MapNotes, which is created with the first note. Copies
/// of the map have it, and recorded changes include it.
namespace MapNotes {

/// The text under the key; empty if there is none.
QString Read(ILayerStore& store, const QString& key);

/// Stores the text; an empty one removes the note.
void Write(ILayerStore& store, const QString& key, const QString& text);

} // namespace MapNotes

} // namespace Orvane

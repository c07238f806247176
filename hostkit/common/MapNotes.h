// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

namespace Orvane {

class ILayerStore;

/// The notes of IMapNotes in a layer store: the table MapNotes, which is created with the first note. Copies
/// of the map have it, and recorded changes include it.
namespace MapNotes {

/// Makes the table if it is missing, for a map in which it cannot be made later.
void Prepare(ILayerStore& store);

/// The text under the key; empty if there is none.
QString Read(ILayerStore& store, const QString& key);

/// Stores the text; an empty one removes the note.
void Write(ILayerStore& store, const QString& key, const QString& text);

/// All notes by their keys.
QMap<QString, QString> ReadAll(ILayerStore& store);

/// Stores these notes in place of all that are there, in one transaction. False if they were there already.
bool ReplaceAll(ILayerStore& store, const QMap<QString, QString>& notes);

} // namespace MapNotes

} // namespace Orvane

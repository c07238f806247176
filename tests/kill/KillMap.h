// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <array>

namespace Orvane {
class ILayerStore;
}

namespace Orvane::Testing {

/// How many programs write to the map at once; writers are numbered from 0.
constexpr int WriterCount = 2;

/// For each writer, the last number that it reported as stored; 0 for none.
using ReportedNumbers = std::array<qint32, WriterCount>;

/// The map that writers change. Each writer numbers its edits from 1. An edit stores its number in two layers
/// and a group of the writer, and adds a row to a list of all edits: these four belong together.
namespace KillMap {

/// A new map without edits. Raises errors of the store.
void Make(const QString& path);

/// The last number in a writer's list of edits, 0 if it is empty. Raises errors of the store.
qint32 LastNumber(ILayerStore& store, qint32 writer);

/// Adds the edit to the list. Raises errors of the store.
void AddToList(ILayerStore& store, qint32 writer, qint32 number);
/// Stores the number in the writer's layers and group, through table cursors. Raises errors of the store.
void SetByCursors(ILayerStore& store, qint32 writer, qint32 number);
/// As SetByCursors, through statements.
void SetByStatements(ILayerStore& store, qint32 writer, qint32 number);

/// How many edits of all writers are stored. Raises errors of the store.
qint32 EditCount(const QString& path);

/// What is wrong with the map, a line for each fault; empty if it is whole. Raises nothing.
QStringList FindFaults(const QString& path, OpenMode mode, const ReportedNumbers& reported);

} // namespace KillMap

} // namespace Orvane::Testing

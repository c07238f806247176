// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace Orvane {

class ILayerStore;

/// The versions of the tables that a host keeps in its layer store, under a name for each purpose. They are
/// stored in the table HostTables. A name without a row has version 0, because older programs stored no
/// versions.
namespace HostTables {

/// The name of that table. What it says depends on all other rows, so its rows are no part of an undo step.
inline constexpr char TableName[] = "HostTables";

/// 0 when none is stored.
qint32 VersionOf(ILayerStore& store, const QString& name);

/// Stores the version. It is not a part of undo steps: undo leaves it as it is.
void SetVersion(ILayerStore& store, const QString& name, qint32 version);

/// Raises HostError::TablesTooNew if a newer program has written the tables. text: the description, for the
/// user, with the store's name as %1.
void RequireVersion(ILayerStore& store, const QString& name, qint32 newest, const QString& text);

} // namespace HostTables

} // namespace Orvane

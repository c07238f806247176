// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerValue.h"

#include <QByteArray>
#include <QString>

namespace Orvane {

class ServerRows;
class StoreErrors;

/// Finds out whether a schema holds nothing but a map: ordinary tables whose rows can be read and changed
/// without running anything that somebody put there. The counterpart of RequirePlainTables for files.
namespace SoundSchema {

/// The query about a schema, for a caller that sends it together with others, and its values. Run it while
/// the search path is ServerConnection::SafePath: otherwise what it looks for may run in it.
QByteArray Query();
ServerValues Values(const QString& schema);
/// Reads the answer. Raises NotALayerDatabase, and names the first thing that does not belong there.
void Require(const ServerRows& answer, const StoreErrors& errors);

} // namespace SoundSchema

} // namespace Orvane

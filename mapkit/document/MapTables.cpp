// SPDX-License-Identifier: MIT
#include "mapkit/document/MapTables.h"

#include "hostkit/common/MapNotes.h"
#include "hostkit/schemes/SchemeTables.h"
#include "mapkit/document/MapSettings.h"
#include "mapkit/document/MapThemes.h"
#include "mapkit/document/RenderingTable.h"
#include "mapkit/document/SourceTable.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

namespace Orvane {

void MapTables::PrepareAll(ILayerStore& store)
{
    Transaction transaction(store);
    SourceTable(store, QString()).Create();
    RenderingTable(store).Create();
    MapSettings::Prepare(store);
    MapThemes(store).Prepare();
    MapNotes::Prepare(store);
    SchemeTables(store).Create();
    transaction.Commit();
}

} // namespace Orvane

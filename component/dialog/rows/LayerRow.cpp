// SPDX-License-Identifier: MIT
#include "component/dialog/rows/LayerRow.h"

#include "component/model/LayerRowReader.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerQueries.h>

namespace Orvane {

std::optional<LayerStyle> ReadLayerRow(IStyleEditorClient& client, qint32 layerID)
{
    const auto row = client.GetDatabase().OpenRecordset(LayerQueries::OneLayer(layerID));
    if (row->AtEOF())
        return std::nullopt;
    return LayerRowReader(client).Read(*row, LayerRowValues(*row));
}

} // namespace Orvane

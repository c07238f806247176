// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerStyle.h"

#include <QtGlobal>

#include <optional>

namespace Orvane {

class IStyleEditorClient;

/// The properties of a layer that its row tells besides its name. Nothing if the layer is never listed. A
/// value of the wrong type gives a Null slot. Raises what the host and its database raise.
std::optional<LayerStyle> ReadLayerRow(IStyleEditorClient& client, qint32 layerID);

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"

#include <QString>

namespace Orvane {

class IStyleEditorClient;

/// What the tool tip of a row tells besides the name and the quick mode: of a layer its code, its groups, the
/// scales at which it is drawn, and where its data are if the host tells. Lines of rich text, each after a
/// "<br>"; empty for a group, and for a layer that is gone. Raises what the host and its database raise.
QString ReadRowDetails(IStyleEditorClient& client, const NodeReference& node);

} // namespace Orvane

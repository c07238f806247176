// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The listed text of a layer's display name: "(Obscured)" becomes "(OBS)" and "(Suppressed)" becomes
/// "(SUP)", whatever their case, the first of each only. What followed the marker comes first and what
/// preceded it last: "Roads (Obscured)" gives "(OBS)Roads ", "(Obscured)Roads" gives "Roads(OBS)".
QString DecorateLayerName(const QString& name);

} // namespace Orvane

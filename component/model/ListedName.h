// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The text to list for a layer's display name: "(Obscured)" becomes "(OBS)" and "(Suppressed)" becomes
/// "(SUP)", in any case, only the first of each. The text after the marker moves to the start, the text
/// before it to the end: "Roads (Obscured)" gives "(OBS)Roads ", "(Obscured)Roads" gives "Roads(OBS)".
QString DecorateLayerName(const QString& name);

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The scope of the plug-in's entries in a QGIS project.
inline const QString ProjectScope = QStringLiteral("Orvane");

} // namespace Orvane

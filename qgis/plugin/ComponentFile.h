// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The component that the plug-in loads: the file that the environment variable ORVANE_COMPONENT names, else
/// the one that was installed with the plug-in, else a plain name, for which StyleEditorPlugin searches.
QString ComponentFile();

} // namespace Orvane

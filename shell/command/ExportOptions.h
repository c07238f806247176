// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/PageSettings.h"
#include "shell/command/CommandReader.h"

#include <variant>

namespace Orvane {

/// What an export on the command line asks for.
struct ExportRequest {
    QString map;
    QString file; ///< with an ending that names a format
    QString scheme; ///< null for the layers as they are
    PageSettings page;
};

/// Reads the arguments of an export; returns an exit code when the command ends here.
std::variant<int, ExportRequest> ReadExportOptions(const QStringList& arguments, const Terminal& terminal);

} // namespace Orvane

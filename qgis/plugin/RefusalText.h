// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/project/RefusedChanges.h"

#include <QCoreApplication>

namespace Orvane {

/// What to tell the user about settings that layers could not take.
class RefusalText
{
    Q_DECLARE_TR_FUNCTIONS(RefusalText)

public:
    /// Names the first layer with all its settings, and says how many others there are. layers: at least one.
    static QString Of(const std::vector<RefusedColumns>& layers);
};

} // namespace Orvane

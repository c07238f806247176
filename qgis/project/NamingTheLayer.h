// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QString>

namespace Orvane {

/// Returns what act returns. The description of a RunTimeError that it raises then begins with the layer: the
/// user may have hundreds.
template <typename Act> auto NamingTheLayer(const QString& name, const Act& act)
{
    try {
        return act();
    } catch (const RunTimeError& error) {
        throw RunTimeError(
            error.Number(),
            QCoreApplication::translate("ProjectMirror", "Layer \"%1\": %2").arg(name, error.Description()),
            error.Source());
    }
}

} // namespace Orvane

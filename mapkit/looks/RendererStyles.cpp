// SPDX-License-Identifier: MIT
#include "mapkit/looks/RendererStyles.h"

#include <QCoreApplication>

namespace Orvane::RendererStyles {

std::vector<RendererStyle> Offered()
{
    const auto tr = [](const char* text) { return QCoreApplication::translate("RendererStyles", text); };
    return {
        {Labelled, tr("Labelled")},
        {Graduated, tr("Graduated")},
        {Graduated | Labelled, tr("Graduated, labelled")},
        {Cased, tr("Cased lines")},
        {Cased | Labelled, tr("Cased lines, labelled")},
    };
}

} // namespace Orvane::RendererStyles

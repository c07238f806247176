// SPDX-License-Identifier: MIT
#include "mapkit/drawing/ScaleText.h"

#include "mapkit/drawing/RoundedScale.h"

#include <QCoreApplication>
#include <QLocale>

namespace Orvane {

QString ScaleText(double denominator)
{
    return QCoreApplication::translate("ScaleText", "1:%1")
        .arg(QLocale().toString(RoundedScale(denominator), 'f', 0));
}

} // namespace Orvane

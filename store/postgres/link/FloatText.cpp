// SPDX-License-Identifier: MIT
#include "store/postgres/link/FloatText.h"

#include <QLocale>

#include <cmath>

namespace Orvane {

QByteArray FloatText(double number)
{
    if (std::isnan(number))
        return "NaN";
    if (std::isinf(number))
        return number > 0 ? "Infinity" : "-Infinity";
    if (number == 0.0)
        return std::signbit(number) ? "-0" : "0"; // Qt drops the sign
    return QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace Orvane

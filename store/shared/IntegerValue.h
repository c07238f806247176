// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <limits>

namespace Orvane {

/// A stored whole number as a column's value: of 32 bits as an integer, a larger one as double. isColour: the
/// column holds a colour, and an unsigned number of 32 bits becomes the signed one with the same bits.
inline Value IntegerValue(qint64 number, bool isColour)
{
    using Limits = std::numeric_limits<qint32>;
    if (number >= Limits::min() && number <= Limits::max())
        return qint32(number);
    if (isColour && number >= 0 && number <= std::numeric_limits<quint32>::max())
        return qint32(quint32(number));
    return double(number);
}

} // namespace Orvane

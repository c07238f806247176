// SPDX-License-Identifier: MIT
#pragma once

#include <QCollator>
#include <QLocale>

namespace Orvane {

/// The order of names in lists: that of the user's language, without case, and with numbers in their own
/// order.
///
///     std::stable_sort(names.begin(), names.end(), NaturalOrder());
inline QCollator NaturalOrder()
{
    QCollator order;
    if (order.locale().language() == QLocale::C) // it knows no order of numbers
        order.setLocale(QLocale(QLocale::English));
    order.setCaseSensitivity(Qt::CaseInsensitive);
    order.setNumericMode(true);
    return order;
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemeOrder.h"

#include <algorithm>

namespace Orvane::SchemeOrder {

QStringList MovedUp(QStringList names, const QStringList& chosen)
{
    for (int place = 1; place < names.size(); ++place) {
        if (chosen.contains(names.at(place)) && !chosen.contains(names.at(place - 1)))
            std::swap(names[place], names[place - 1]);
    }
    return names;
}

QStringList MovedDown(QStringList names, const QStringList& chosen)
{
    std::reverse(names.begin(), names.end());
    names = MovedUp(std::move(names), chosen);
    std::reverse(names.begin(), names.end());
    return names;
}

QStringList MovedTo(const QStringList& names, const QStringList& chosen, int position)
{
    QStringList before;
    QStringList moved;
    QStringList after;
    for (int place = 0; place < names.size(); ++place) {
        const QString& name = names.at(place);
        if (chosen.contains(name))
            moved << name;
        else
            (place < position ? before : after) << name;
    }
    return before + moved + after;
}

} // namespace Orvane::SchemeOrder

// SPDX-License-Identifier: MIT
#include "shell/systems/RecentSystems.h"

#include <QSettings>

namespace Orvane::RecentSystems {

namespace {

constexpr auto RecentKey = "Systems/Recent";
constexpr int MostSystems = 8;

} // namespace

QStringList All()
{
    return QSettings().value(QLatin1String(RecentKey)).toStringList().mid(0, MostSystems);
}

void Add(const QString& system)
{
    QStringList systems = All();
    systems.removeAll(system);
    systems.prepend(system);
    QSettings().setValue(QLatin1String(RecentKey), systems.mid(0, MostSystems));
}

} // namespace Orvane::RecentSystems

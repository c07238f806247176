// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/PasteTicks.h"

#include "component/common/Component.h"

#include <QString>

namespace Orvane {

namespace {

QString TickKey(Setting setting)
{
    return QLatin1String(EntryOf(setting).key);
}

} // namespace

SettingSet PasteTicks::TickedOf(const SettingSet& offered)
{
    const QSet<QString>& unticked = Component::Get().SettingsNotToPaste();
    SettingSet ticked;
    for (const Setting setting : offered) {
        if (!unticked.contains(TickKey(setting)))
            ticked.insert(setting);
    }
    return ticked;
}

void PasteTicks::Remember(const SettingSet& offered, const SettingSet& ticked)
{
    QSet<QString>& unticked = Component::Get().SettingsNotToPaste();
    for (const Setting setting : offered) {
        if (ticked.count(setting) > 0)
            unticked.remove(TickKey(setting));
        else
            unticked.insert(TickKey(setting));
    }
}

} // namespace Orvane

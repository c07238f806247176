// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/PasteTicks.h"

#include "component/common/Component.h"

#include <QString>

#include <optional>

namespace Orvane {

namespace {

QString TickKey(Setting setting)
{
    return QLatin1String(EntryOf(setting).key);
}

QSet<QString>& Unticked()
{
    std::optional<QSet<QString>>& kept = Component::Get().SettingsNotToPaste();
    if (kept)
        return *kept;
    kept.emplace();
    for (const SettingEntry& entry : AllSettings) {
        if (!entry.isTickedAtFirst)
            kept->insert(TickKey(entry.setting));
    }
    return *kept;
}

} // namespace

SettingSet PasteTicks::TickedOf(const SettingSet& offered)
{
    const QSet<QString>& unticked = Unticked();
    SettingSet ticked;
    for (const Setting setting : offered) {
        if (!unticked.contains(TickKey(setting)))
            ticked.insert(setting);
    }
    return ticked;
}

void PasteTicks::Remember(const SettingSet& offered, const SettingSet& ticked)
{
    QSet<QString>& unticked = Unticked();
    for (const Setting setting : offered) {
        if (ticked.count(setting) > 0)
            unticked.remove(TickKey(setting));
        else
            unticked.insert(TickKey(setting));
    }
}

} // namespace Orvane

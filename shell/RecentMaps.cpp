// SPDX-License-Identifier: MIT
#include "shell/RecentMaps.h"

#include <QFileInfo>
#include <QSettings>

namespace Orvane::RecentMaps {

namespace {

constexpr auto Key = "RecentMaps";

} // namespace

QStringList All()
{
    QStringList paths = QSettings().value(QLatin1String(Key)).toStringList();
    paths.removeIf([](const QString& path) { return !QFileInfo::exists(path); });
    return paths;
}

void Add(const QString& path)
{
    QStringList paths = All();
    paths.removeAll(path);
    paths.prepend(path);
    QSettings().setValue(QLatin1String(Key), QStringList(paths.mid(0, Most)));
}

} // namespace Orvane::RecentMaps

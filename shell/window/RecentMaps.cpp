// SPDX-License-Identifier: MIT
#include "shell/window/RecentMaps.h"

#include "store/StorePlace.h"

#include <QFileInfo>
#include <QSettings>

namespace Orvane::RecentMaps {

namespace {

constexpr auto Key = "RecentMaps";

} // namespace

bool MayExist(const QString& place)
{
    return !StorePlace::IsFile(place) || QFileInfo::exists(place);
}

QStringList All()
{
    return QSettings().value(QLatin1String(Key)).toStringList();
}

QString Latest()
{
    for (const QString& path : All()) {
        if (MayExist(path))
            return path;
    }
    return {};
}

void Add(const QString& path)
{
    QStringList paths = All();
    paths.removeAll(path);
    paths.prepend(path);
    QSettings().setValue(QLatin1String(Key), QStringList(paths.mid(0, Most)));
}

void Remove(const QString& path)
{
    QStringList paths = All();
    paths.removeAll(path);
    QSettings().setValue(QLatin1String(Key), paths);
}

} // namespace Orvane::RecentMaps

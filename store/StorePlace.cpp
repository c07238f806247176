// SPDX-License-Identifier: MIT
#include "store/StorePlace.h"

#include <QFileInfo>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <array>

namespace Orvane {

namespace {

constexpr std::array ServerBeginnings{"postgresql:", "postgres:"};
constexpr auto Schema = "schema=";

QString Decoded(const QString& text)
{
    return QUrl::fromPercentEncoding(text.toUtf8());
}

// The value of an option behind the question mark; empty if it is not there.
QString OptionIn(const QString& place, const char* beginning)
{
    for (const QString& option : place.section(u'?', 1).split(u'&')) {
        if (option.startsWith(QLatin1String(beginning)))
            return Decoded(option.section(u'=', 1));
    }
    return {};
}

// Between the user and the port.
QString HostIn(const QString& place)
{
    const QString authority = place.section(u'?', 0, 0).section(u'/', 2, 2);
    return Decoded(authority.section(u'@', -1).section(u':', 0, 0));
}

// The service, or else the server, or else the database.
QString ServerIn(const QString& place)
{
    const QString database = Decoded(place.section(u'?', 0, 0).section(u'/', 3, 3));
    for (const QString& name :
         {OptionIn(place, "service="), HostIn(place), OptionIn(place, "host="), OptionIn(place, "hostaddr="),
          database, OptionIn(place, "dbname=")}) {
        if (!name.isEmpty())
            return name;
    }
    return {};
}

} // namespace

bool StorePlace::IsFile(const QString& place)
{
    return std::none_of(ServerBeginnings.begin(), ServerBeginnings.end(), [&](const char* beginning) {
        return place.startsWith(QLatin1String(beginning), Qt::CaseInsensitive);
    });
}

QString StorePlace::Canonical(const QString& place)
{
    return IsFile(place) ? QFileInfo(place).absoluteFilePath() : place;
}

QString StorePlace::NameOf(const QString& place)
{
    if (IsFile(place))
        return QFileInfo(place).completeBaseName();
    return OptionIn(place, Schema);
}

QString StorePlace::FileNameOf(const QString& place)
{
    return IsFile(place) ? QFileInfo(place).fileName() : NameOf(place);
}

QString StorePlace::TitleOf(const QString& place)
{
    const QString server = IsFile(place) ? QString() : ServerIn(place);
    return server.isEmpty() ? FileNameOf(place) : NameOf(place) + QLatin1String(" (") + server + u')';
}

} // namespace Orvane

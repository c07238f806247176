// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerPlace.h"

#include "store/StoreTexts.h"
#include "store/shared/StoreErrors.h"

#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <array>
#include <libpq-fe.h>
#include <memory>

namespace Orvane {

namespace {

constexpr std::array AllowedKeywords
    = {"application_name", "connect_timeout", "dbname",      "host", "hostaddr", "port",
       "service",          "sslmode",         "sslrootcert", "user"};

constexpr int LongestName = 63; // bytes

using Parsed = std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)>;

// What an error may repeat of a place that may contain a password.
QString ShownPlace(QString place)
{
    const qsizetype start = place.indexOf(QLatin1String("//")) + 2;
    const qsizetype end = place.lastIndexOf(u'@') + 1;
    if (end > start)
        place.remove(int(start), int(end - start));
    return place.section(u'?', 0, 0);
}

StoreErrors PlaceErrors(const QString& place)
{
    return StoreErrors(StoreErrors::Named{ShownPlace(place)});
}

bool IsSchema(const QString& pair)
{
    return pair.startsWith(QLatin1String("schema="));
}

QString Decoded(const QString& pair)
{
    return QUrl::fromPercentEncoding(pair.section(u'=', 1).toUtf8());
}

Parsed ParsedUri(const QString& uri, const StoreErrors& errors)
{
    if (uri.contains(QChar(0)))
        throw errors.Failure(StoreTexts::PlaceUnclear);
    char* message = nullptr;
    Parsed parsed(PQconninfoParse(uri.toUtf8().constData(), &message), &PQconninfoFree);
    const std::unique_ptr<char, decltype(&PQfreemem)> owned(message, &PQfreemem);
    if (!parsed) // libpq's message may repeat a password
        throw errors.Failure(StoreTexts::PlaceUnclear);
    return parsed;
}

void RequireAllowed(const QByteArray& keyword, const StoreErrors& errors)
{
    if (keyword == "password" || keyword == "sslpassword")
        throw errors.Failure(StoreTexts::PlacePassword);
    if (std::find(AllowedKeywords.begin(), AllowedKeywords.end(), keyword) == AllowedKeywords.end())
        throw errors.Failure(StoreTexts::PlaceOption, QString::fromUtf8(keyword));
}

// A password that is not encoded can end up in the port.
void RequirePort(const QByteArray& port, const StoreErrors& errors)
{
    const bool isOne = std::all_of(port.begin(), port.end(), [](char letter) {
        return (letter >= '0' && letter <= '9') || letter == ',';
    });
    if (!isOne)
        throw errors.Failure(StoreTexts::PlaceUnclear);
}

// The server would cut it, so that two places were one.
void RequireLength(const QString& map)
{
    if (map.toUtf8().size() > LongestName)
        throw StoreErrors(StoreErrors::Named{map}).Failure(StoreTexts::MapNameTooLong);
}

// Several hosts, or the folder of a socket, are only understood behind the question mark.
bool FitsBeforeDatabase(const QByteArray& host)
{
    return std::all_of(host.begin(), host.end(), [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z')
            || (letter >= '0' && letter <= '9') || letter == '.' || letter == '-' || letter == '_';
    });
}

QString Encoded(const QByteArray& value)
{
    return QString::fromUtf8(QUrl::toPercentEncoding(QString::fromUtf8(value), "/:,"));
}

} // namespace

bool ServerPlace::IsOne(const QString& place)
{
    return place.startsWith(QLatin1String("postgresql://")) || place.startsWith(QLatin1String("postgres://"));
}

ServerPlace ServerPlace::FromText(const QString& place)
{
    const StoreErrors errors = PlaceErrors(place);
    if (!IsOne(place))
        throw errors.Failure(StoreTexts::PlaceUnclear);
    ServerPlace result;
    QStringList others;
    const QStringList pairs = place.contains(u'?') ? place.section(u'?', 1).split(u'&') : QStringList();
    for (const QString& pair : pairs) {
        if (IsSchema(pair))
            result.schema = Decoded(pair);
        else if (!pair.isEmpty())
            others << pair;
    }
    QString uri = place.section(u'?', 0, 0);
    if (!others.isEmpty())
        uri += u'?' + others.join(u'&');
    const Parsed parsed = ParsedUri(uri, errors);
    for (const PQconninfoOption* option = parsed.get(); option->keyword; ++option) {
        if (!option->val || !*option->val)
            continue;
        RequireAllowed(option->keyword, errors);
        result.options.emplace_back(option->keyword, option->val);
    }
    RequirePort(result.Find("port"), errors);
    RequireLength(result.schema);
    std::sort(result.options.begin(), result.options.end());
    return result;
}

ServerPlace ServerPlace::OfMap(const QString& place)
{
    ServerPlace result = FromText(place);
    if (result.schema.isEmpty())
        throw PlaceErrors(place).Failure(StoreTexts::PlaceUnclear);
    return result;
}

QString ServerPlace::ToText() const
{
    const QByteArray host = Find("host");
    const bool hostFirst = FitsBeforeDatabase(host);
    QString text = QStringLiteral("postgresql://");
    QStringList rest;
    for (const auto& [keyword, value] : options) {
        const bool isFirst = keyword == "user" || keyword == "dbname"
            || (hostFirst && (keyword == "host" || (keyword == "port" && !host.isEmpty())));
        if (!isFirst)
            rest << QString::fromUtf8(keyword) + u'=' + Encoded(value);
    }
    if (const QByteArray user = Find("user"); !user.isEmpty())
        text += QString::fromUtf8(QUrl::toPercentEncoding(QString::fromUtf8(user))) + u'@';
    if (hostFirst)
        text += QString::fromUtf8(host);
    if (const QByteArray port = Find("port"); hostFirst && !host.isEmpty() && !port.isEmpty())
        text += u':' + QString::fromUtf8(port);
    text += u'/' + QString::fromUtf8(QUrl::toPercentEncoding(QString::fromUtf8(Find("dbname"))));
    if (!schema.isEmpty())
        rest << QLatin1String("schema=") + QString::fromUtf8(QUrl::toPercentEncoding(schema));
    return rest.isEmpty() ? text : text + u'?' + rest.join(u'&');
}

QString ServerPlace::Name() const
{
    return schema.isEmpty() ? ServerName() : schema + QLatin1String(" (") + ServerName() + u')';
}

QString ServerPlace::ServerName() const
{
    for (const char* keyword : {"service", "host", "hostaddr", "dbname"}) {
        if (const QByteArray value = Find(keyword); !value.isEmpty())
            return QString::fromUtf8(value);
    }
    return QStringLiteral("PostgreSQL");
}

QByteArray ServerPlace::Find(const QByteArray& keyword) const
{
    const auto found = std::find_if(
        options.begin(), options.end(), [&](const Option& option) { return option.first == keyword; });
    return found == options.end() ? QByteArray() : found->second;
}

} // namespace Orvane

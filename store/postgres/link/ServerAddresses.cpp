// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerAddresses.h"

#include <QByteArrayList>

#include <algorithm>
#include <memory>
#include <netdb.h>
#include <sys/socket.h>

namespace Orvane {

namespace {

using Settings = std::vector<ServerPlace::Option>;

// Empty if there is no such setting.
QByteArray Setting(const Settings& settings, const QByteArray& keyword)
{
    const auto found = std::find_if(
        settings.begin(), settings.end(), [&](const auto& option) { return option.first == keyword; });
    return found == settings.end() ? QByteArray() : found->second;
}

void Set(Settings& settings, const QByteArray& keyword, const QByteArray& value)
{
    const auto isOld = [&](const auto& option) { return option.first == keyword; };
    settings.erase(std::remove_if(settings.begin(), settings.end(), isOld), settings.end());
    settings.emplace_back(keyword, value);
}

// Of a socket's folder, or a name that nobody knows: none.
QByteArrayList AddressesOfHost(const QByteArray& host)
{
    QByteArrayList addresses;
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (host.isEmpty() || host.startsWith('/') || host.startsWith('@')
        || getaddrinfo(host.constData(), nullptr, &wanted, &found) != 0)
        return addresses;
    const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owned(found, &freeaddrinfo);
    for (const addrinfo* address = found; address; address = address->ai_next) {
        char text[NI_MAXHOST];
        const int failure = getnameinfo(
            address->ai_addr, address->ai_addrlen, text, sizeof text, nullptr, 0, NI_NUMERICHOST);
        if (failure == 0 && !addresses.contains(text))
            addresses << text;
    }
    return addresses;
}

} // namespace

std::vector<Settings> AddressesOf(const Settings& settings)
{
    const QByteArrayList hosts = Setting(settings, "host").split(',');
    const QByteArrayList ports = Setting(settings, "port").split(',');
    const bool isClear = ports.size() == 1 || ports.size() == hosts.size();
    if (Setting(settings, "host").isEmpty() || !Setting(settings, "hostaddr").isEmpty() || !isClear)
        return {settings};
    std::vector<Settings> all;
    for (qsizetype number = 0; number < hosts.size(); ++number) {
        Settings one = settings;
        Set(one, "host", hosts[number]);
        Set(one, "port", ports[ports.size() == 1 ? 0 : number]);
        const QByteArrayList addresses = AddressesOfHost(hosts[number]);
        if (addresses.isEmpty())
            all.push_back(one);
        for (const QByteArray& address : addresses) {
            Set(one, "hostaddr", address);
            all.push_back(one);
        }
    }
    return all;
}

} // namespace Orvane

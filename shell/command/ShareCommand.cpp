// SPDX-License-Identifier: MIT
#include "shell/command/ShareCommand.h"

#include "store/StorePlace.h"
#include "store/opening/ServerMaps.h"

#include <QCoreApplication>

#include <algorithm>

namespace Orvane {

namespace {

QString ShareText(const char* text)
{
    return QCoreApplication::translate("ShareCommand", text);
}

/// The options; each may be given several times.
struct ShareOptions {
    QCommandLineOption read{
        QStringLiteral("read"), ShareText(QT_TRANSLATE_NOOP("ShareCommand", "Let ROLE read the map.")),
        QStringLiteral("ROLE")};
    QCommandLineOption edit{
        QStringLiteral("edit"),
        ShareText(QT_TRANSLATE_NOOP("ShareCommand", "Let ROLE read and change the map.")),
        QStringLiteral("ROLE")};
    QCommandLineOption revoke{
        QStringLiteral("revoke"),
        ShareText(QT_TRANSLATE_NOOP("ShareCommand", "Take all rights on the map back from ROLE.")),
        QStringLiteral("ROLE")};
};

void Drop(std::vector<MapHolder>& holders, const QString& role)
{
    holders.erase(
        std::remove_if(
            holders.begin(), holders.end(), [&](const MapHolder& holder) { return holder.role == role; }),
        holders.end());
}

void Give(std::vector<MapHolder>& holders, const QStringList& roles, MapRight right)
{
    for (const QString& role : roles) {
        Drop(holders, role);
        holders.push_back({role, right});
    }
}

void TellHolders(const Terminal& terminal, const std::vector<MapHolder>& holders)
{
    const QString edit = ShareText(QT_TRANSLATE_NOOP("ShareCommand", "%1: may edit"));
    const QString read = ShareText(QT_TRANSLATE_NOOP("ShareCommand", "%1: may read"));
    for (const MapHolder& holder : holders)
        TellLine(terminal, (holder.right == MapRight::Edit ? edit : read).arg(holder.role));
}

int Share(const QString& place, const CommandReader& reader, const ShareOptions& options)
{
    std::vector<MapHolder> holders = ServerMaps::Holders(place, {});
    for (const QString& role : reader.Values(options.revoke))
        Drop(holders, role);
    Give(holders, reader.Values(options.read), MapRight::Read);
    Give(holders, reader.Values(options.edit), MapRight::Edit);
    ServerMaps::SetHolders(place, holders, {});
    return ExitCode::Done;
}

} // namespace

int ShareCommand(const QStringList& arguments, const Terminal& terminal)
{
    const ShareOptions options;
    CommandReader reader(ShareText(QT_TRANSLATE_NOOP(
        "ShareCommand",
        "Choose who may read and edit a map on a server; without options, list them. A role is a user of the "
        "server or a group of users; \"public\" is everybody. Only the owner of the map can change this.\n"
        "Exit code: 0 done, 1 not done, 2 the command was not understood.")));
    reader.AddCommand(QStringLiteral("share"));
    reader.RequireWords(1, 1);
    reader.Options().addOptions({options.read, options.edit, options.revoke});
    reader.Options().addPositionalArgument(
        QStringLiteral("PLACE"),
        ShareText(QT_TRANSLATE_NOOP("ShareCommand", "The map, such as \"postgresql:///maps?schema=Town\".")));
    if (const auto ended = reader.Read(arguments, terminal))
        return *ended;
    const QString place = reader.Words().first();
    if (StorePlace::IsFile(place))
        return reader.Refuse(
            terminal, ShareText(QT_TRANSLATE_NOOP("ShareCommand", "Only maps on a server can be shared.")));
    const bool isListing
        = !reader.IsSet(options.read) && !reader.IsSet(options.edit) && !reader.IsSet(options.revoke);
    if (!isListing)
        return Share(place, reader, options);
    TellHolders(terminal, ServerMaps::Holders(place, {}));
    return ExitCode::Done;
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "component/entry/HostCheck.h"

#include "component/common/Messages.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>

namespace Orvane {

namespace {

QString VersionText(qint32 major, qint32 minor)
{
    return QStringLiteral("%1.%2").arg(major).arg(minor);
}

bool IsFirstByteOfCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

} // namespace

QString ReasonAgainst(const HostDescription& host)
{
    const HostDescription own = DescribeHost();
    if (host.size < sizeof own)
        return TranslateMsg("this program does not tell which version it uses");
    if (host.contract.major != own.contract.major)
        return TranslateMsg(
            "it uses version ^1 of the interface, this program uses version ^2",
            VersionText(own.contract.major, own.contract.minor),
            VersionText(host.contract.major, host.contract.minor));
    // One process has one Qt: another version means that the two would not share it.
    if (host.qtMajor != own.qtMajor || host.qtMinor != own.qtMinor)
        return TranslateMsg(
            "it runs with Qt ^1, this program with Qt ^2", VersionText(own.qtMajor, own.qtMinor),
            VersionText(host.qtMajor, host.qtMinor));
    const QString theirs = QString::fromLatin1(host.compilerAbi);
    const QString ours = QString::fromLatin1(own.compilerAbi);
    if (theirs != ours)
        return TranslateMsg(
            "it was built with the standard library \"^1\", this program with \"^2\"", ours, theirs);
    return {};
}

void WriteReason(const QString& reason, char* target, quint32 size)
{
    if (!target || size == 0)
        return;
    const QByteArray text = reason.toUtf8();
    auto length = std::min<std::size_t>(static_cast<std::size_t>(text.size()), size - 1);
    while (length > 0 && !IsFirstByteOfCharacter(text.constData()[length]))
        --length;
    std::memcpy(target, text.constData(), length);
    target[length] = '\0';
}

} // namespace Orvane

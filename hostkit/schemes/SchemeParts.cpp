// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeParts.h"

#include <QJsonArray>

#include <algorithm>

namespace Orvane {

namespace {

QString WordFor(SchemePart part)
{
    switch (part) {
    case SchemePart::Flags:
        return QStringLiteral("flags");
    case SchemePart::Appearance:
        return QStringLiteral("appearance");
    default:
        return QStringLiteral("scales");
    }
}

} // namespace

qint32 NumberOf(SchemeParts parts)
{
    qint32 number = 0;
    for (const SchemePart part : AllSchemeParts)
        number += parts.testFlag(part) ? qint32(part) : 0;
    return number;
}

SchemeParts PartsOfNumber(qint32 number)
{
    SchemeParts parts;
    for (const SchemePart part : AllSchemeParts)
        parts.setFlag(part, (number & qint32(part)) != 0);
    return parts ? parts : WholeScheme;
}

QJsonValue JsonOf(SchemeParts parts)
{
    QJsonArray words;
    for (const SchemePart part : AllSchemeParts) {
        if (parts.testFlag(part))
            words.append(WordFor(part));
    }
    return words;
}

std::optional<SchemeParts> PartsOfJson(const QJsonValue& json)
{
    SchemeParts parts;
    for (const QJsonValue word : json.toArray()) {
        const auto* part = std::find_if(AllSchemeParts.begin(), AllSchemeParts.end(), [&](SchemePart known) {
            return word.toString() == WordFor(known);
        });
        if (part == AllSchemeParts.end())
            return std::nullopt;
        parts |= *part;
    }
    return parts ? std::optional(parts) : std::nullopt;
}

} // namespace Orvane

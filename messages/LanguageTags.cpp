// SPDX-License-Identifier: MIT
#include "messages/LanguageTags.h"

#include <algorithm>

namespace Orvane {

namespace {

QString LanguageOf(const QString& tag)
{
    return tag.section(QLatin1Char('-'), 0, 0);
}

void AddLeadingParts(QStringList& tags)
{
    const QStringList given = tags;
    for (QString tag : given) {
        for (int dash = int(tag.lastIndexOf(u'-')); dash > 0; dash = int(tag.lastIndexOf(u'-'))) {
            tag.truncate(dash);
            tags.append(tag);
        }
    }
    tags.removeDuplicates();
    std::stable_sort(tags.begin(), tags.end(), [](const QString& left, const QString& right) {
        return left.count(u'-') > right.count(u'-');
    });
}

} // namespace

std::vector<QStringList> LanguageTags(const QStringList& languages)
{
    std::vector<QStringList> found;
    for (QString tag : languages) {
        tag.replace(u'_', u'-');
        if (found.empty() || LanguageOf(found.back().constFirst()) != LanguageOf(tag))
            found.emplace_back();
        found.back().append(tag);
    }
    for (QStringList& tags : found)
        AddLeadingParts(tags);
    return found;
}

bool IsEnglish(const QString& tag)
{
    return tag == QLatin1String("C") || LanguageOf(tag) == QLatin1String("en");
}

} // namespace Orvane

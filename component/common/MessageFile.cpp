// SPDX-License-Identifier: MIT
#include "component/common/MessageFile.h"

#include "messages/LanguageTags.h"

#include <QDir>
#include <QFileInfo>

namespace Orvane {

namespace {

constexpr char FileName[] = "POBEX.LRT";

QString FileForTags(const QString& folder, const QStringList& tags)
{
    for (const QString& tag : tags) {
        QString path = QDir(folder).filePath(tag + QLatin1Char('/') + FileName);
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

} // namespace

QString MessageFilePath(const QString& folder, const QStringList& languages)
{
    if (folder.isEmpty())
        return {};
    QString common = QDir(folder).filePath(FileName);
    if (QFileInfo(common).isFile())
        return common;
    for (const QStringList& tags : LanguageTags(languages)) {
        if (IsEnglish(tags.constFirst()))
            break;
        QString path = FileForTags(folder, tags);
        if (!path.isEmpty())
            return path;
    }
    return common;
}

} // namespace Orvane

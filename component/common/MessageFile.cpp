// SPDX-License-Identifier: MIT
#include "component/common/MessageFile.h"

#include <QDir>
#include <QFileInfo>

namespace Orvane {

namespace {

constexpr char FileName[] = "POBEX.LRT";

QString FileForTag(const QString& folder, const QString& tag)
{
    for (const QString& candidate : TagAndItsParents(tag)) {
        QString path = QDir(folder).filePath(candidate + QLatin1Char('/') + FileName);
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

} // namespace

bool IsEnglish(const QString& tag)
{
    return tag == QLatin1String("C") || tag.section(QLatin1Char('-'), 0, 0) == QLatin1String("en");
}

QStringList TagAndItsParents(QString tag)
{
    QStringList tags{tag};
    for (qsizetype dash = tag.lastIndexOf(u'-'); dash > 0; dash = tag.lastIndexOf(u'-')) {
        tag.truncate(dash);
        tags.append(tag);
    }
    return tags;
}

QString MessageFilePath(const QString& folder, const QStringList& languages)
{
    if (folder.isEmpty())
        return {};
    QString common = QDir(folder).filePath(FileName);
    if (QFileInfo(common).isFile())
        return common;
    for (QString tag : languages) {
        tag.replace(u'_', u'-');
        if (IsEnglish(tag))
            break;
        QString path = FileForTag(folder, tag);
        if (!path.isEmpty())
            return path;
    }
    return common;
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/map/DataFolders.h"

#include "mapkit/data/DataSource.h"
#include "mapkit/document/MapDocument.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace Orvane {

namespace {

constexpr qsizetype MostFolders = 5; // windows that open at once

QString FolderText(const char* text)
{
    return QCoreApplication::translate("DataFolders", text);
}

// "/vsizip//data/town.zip/roads.shp" and "/vsizip/{/data/town.zip}/roads.shp" are "/data/town.zip/roads.shp".
QString WithoutArchivePrefix(const QString& path)
{
    static const QRegularExpression prefix(QStringLiteral("^(/vsi[a-z0-9_]+/)+"));
    static const QRegularExpression braces(QStringLiteral("[{}]"));
    const QRegularExpressionMatch match = prefix.match(path);
    if (!match.hasMatch())
        return path;
    const QString inside = path.mid(match.capturedLength()).remove(braces);
    return inside.contains(QLatin1String("://")) ? QString() : QDir::cleanPath(inside);
}

QStringList FoldersOf(const MapDocument& document, const std::vector<qint32>& layerIDs)
{
    QStringList folders;
    for (const LayerSource& source : document.SourcesOf(layerIDs)) {
        const QString folder = FolderOfData(source.path);
        if (!folder.isEmpty() && !folders.contains(folder))
            folders << folder;
        if (folders.size() > MostFolders)
            break; // too many already
    }
    return folders;
}

QString WhyNotOpen(const QStringList& folders)
{
    if (folders.isEmpty())
        return FolderText(
            QT_TRANSLATE_NOOP("DataFolders", "The data of these layers are in no folder of this computer."));
    if (folders.size() > MostFolders)
        return FolderText(
            QT_TRANSLATE_NOOP("DataFolders", "These layers are in too many different folders."));
    return {};
}

void Open(const QString& folder)
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        throw RunTimeError(
            SourceUnreadable,
            FolderText(QT_TRANSLATE_NOOP("DataFolders", "The folder \"%1\" cannot be opened."))
                .arg(QDir::toNativeSeparators(folder)));
}

} // namespace

QString FolderOfData(const QString& path)
{
    const QString plain = WithoutArchivePrefix(path);
    const bool isInArchive = plain != path;
    QFileInfo file(plain);
    if (!file.isAbsolute())
        return {};
    while (isInArchive && !file.exists() && !file.isRoot())
        file.setFile(file.path());
    if (file.isDir())
        return file.isRoot() ? QString() : file.filePath();
    return file.dir().exists() ? file.path() : QString();
}

LayerCommand OpenFolderCommand(const MapDocument& document)
{
    const auto whyNot = [&document](const std::vector<qint32>& layerIDs) {
        return WhyNotOpen(FoldersOf(document, layerIDs));
    };
    const auto run = [&document](const std::vector<qint32>& layerIDs) {
        for (const QString& folder : FoldersOf(document, layerIDs))
            Open(folder);
    };
    return {
        QStringLiteral("OpenFolder"), FolderText(QT_TRANSLATE_NOOP("DataFolders", "Open Folder")), whyNot,
        run};
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/command/DataSentences.h"

#include "mapkit/data/ServerTables.h"

#include <QDir>
#include <QFileInfo>

namespace Orvane {

namespace {

// Not within a longer name or a path.
qsizetype PlaceOfName(const QString& sentence, const QString& name)
{
    const auto isPartOfName = [&](qsizetype index) {
        return index >= 0 && index < sentence.size()
            && (sentence.at(index).isLetterOrNumber()
                || QStringLiteral("/\\_-").contains(sentence.at(index)));
    };
    qsizetype place = sentence.indexOf(name);
    while (place >= 0 && (isPartOfName(place - 1) || isPartOfName(place + name.size())))
        place = sentence.indexOf(name, place + 1);
    return place;
}

} // namespace

QString PathToTell(const QString& path)
{
    const QString relative = QDir::current().relativeFilePath(path);
    const bool isInside = !relative.startsWith(QLatin1String("..")) && QDir::isRelativePath(relative);
    return QDir::toNativeSeparators(isInside ? relative : QFileInfo(path).absoluteFilePath());
}

QString WithPath(const QString& sentence, const QString& path)
{
    const QString folder = QDir::toNativeSeparators(QFileInfo(path).absolutePath());
    if (path.isEmpty() || IsServerTable(path) || sentence.contains(folder))
        return sentence;
    const QString withPath = WithPaths(sentence, {path});
    const QString told = PathToTell(path);
    return withPath.contains(told) ? withPath : told + QLatin1String(": ") + sentence;
}

QString WithPaths(const QString& sentence, const QStringList& paths)
{
    QString told = sentence;
    for (const QString& path : paths) {
        const QString name = QFileInfo(path).fileName();
        const qsizetype place = name.isEmpty() ? -1 : PlaceOfName(told, name);
        if (place >= 0)
            told.replace(place, name.size(), PathToTell(path));
    }
    return told;
}

QStringList FailuresWithPaths(const SourceContents& contents, const std::vector<LayerSource>& sources)
{
    QStringList sentences;
    for (const LayerSource& source : sources) {
        const auto failure = contents.failures.find(source.layerID);
        if (failure != contents.failures.end())
            sentences << WithPath(failure->second, source.path);
    }
    sentences.removeDuplicates();
    return sentences;
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeFile.h"

#include "files/FileReplacement.h"
#include "hostkit/common/HostErrors.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace Orvane::SchemeFile {

namespace {

class FileTexts
{
    Q_DECLARE_TR_FUNCTIONS(SchemeFile)
};

[[noreturn]] void Raise(HostError number, const QString& description)
{
    throw RunTimeError(int(number), description, QStringLiteral("SchemeFile"));
}

[[noreturn]] void RaiseUnreadable(const QString& path, const QString& reason)
{
    Raise(
        HostError::SchemeFileUnreadable,
        FileTexts::tr("The scheme file \"%1\" cannot be read. %2").arg(QFileInfo(path).fileName(), reason));
}

QByteArray ContentOf(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) // opening a pipe waits for a writer
        RaiseUnreadable(path, FileTexts::tr("It is not an ordinary file."));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        RaiseUnreadable(path, file.errorString());
    // Reads one byte more than allowed, because the file may grow meanwhile.
    const QByteArray content = file.read(LargestFile + 1);
    if (content.size() > LargestFile)
        RaiseUnreadable(path, FileTexts::tr("It is too large."));
    if (file.error() != QFileDevice::NoError)
        RaiseUnreadable(path, file.errorString());
    return content.startsWith("\xEF\xBB\xBF") ? content.mid(3) : content;
}

} // namespace

SchemeDocument Read(const QString& path)
{
    const QByteArray content = ContentOf(path);
    try {
        return SchemeDocument::FromJson(content);
    } catch (const RunTimeError& error) {
        RaiseUnreadable(path, error.Description());
    }
}

void Write(const QString& path, const SchemeDocument& scheme)
{
    const QByteArray content = scheme.ToJson();
    FileReplacement file(path);
    if (file.Begin() && file.write(content) == content.size() && file.Commit())
        return;
    Raise(
        HostError::SchemeFileUnwritable,
        FileTexts::tr("The scheme file \"%1\" cannot be written: %2.")
            .arg(QFileInfo(path).fileName(), file.Reason()));
}

} // namespace Orvane::SchemeFile

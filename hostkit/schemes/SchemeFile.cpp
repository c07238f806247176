// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeFile.h"

#include "files/FileReplacement.h"
#include "hostkit/common/HostErrors.h"

#include <OrvaneShellLib/Cancellation.h>
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

void Open(QFile& file, const QString& path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) // opening a pipe waits for a writer
        RaiseUnreadable(path, FileTexts::tr("It is not an ordinary file."));
    if (!file.open(QIODevice::ReadOnly))
        RaiseUnreadable(path, file.errorString());
}

void SkipByteOrderMark(QFile& file)
{
    if (file.peek(3) == "\xEF\xBB\xBF")
        file.skip(3);
}

QByteArray ContentOf(QFile& file, const QString& path)
{
    // Reads one byte more than allowed, because the file may grow meanwhile.
    QByteArray content = file.read(LargestFile + 1);
    if (content.size() > LargestFile)
        RaiseUnreadable(path, FileTexts::tr("It is too large."));
    if (file.error() != QFileDevice::NoError)
        RaiseUnreadable(path, file.errorString());
    return content;
}

// Runs read; an error then names the file.
bool Named(const QString& path, const std::function<bool()>& read)
{
    try {
        return read();
    } catch (const RunTimeError& error) {
        RaiseUnreadable(path, error.Description());
    }
}

} // namespace

SchemeDocument Read(const QString& path, const std::function<void(double done)>& told)
{
    QFile file(path);
    Open(file, path);
    SkipByteOrderMark(file);
    try {
        if (file.size() > SmallFile) {
            if (std::optional<SchemeDocument> document = SchemeDocument::FromLines(file, told))
                return *std::move(document);
        }
        if (file.size() <= LargestFile) {
            file.seek(0);
            SkipByteOrderMark(file);
            return SchemeDocument::FromJson(ContentOf(file, path));
        }
    } catch (const RunTimeError& error) {
        if (IsCancellation(error))
            throw;
        RaiseUnreadable(path, error.Description());
    }
    RaiseUnreadable(path, FileTexts::tr("It is too large."));
}

Reader::Reader(const QString& path) : m_path(path), m_file(path)
{
    Open(m_file, path);
    SchemeDocument::Reader text(m_file);
    if (m_file.size() > SmallFile && Begin(text)) {
        m_head = text.Head();
        return;
    }
    m_file.close();
    m_document = Read(path);
    m_head = *m_document;
}

void Reader::ForEachLayer(const Visitor& visitor)
{
    if (m_document) {
        const auto count = double(m_document->layers.size());
        for (const SchemeDocument::Layer& layer : m_document->layers)
            visitor(layer, layer.identity.id / count);
        return;
    }
    SchemeDocument::Reader text(m_file);
    if (!Begin(text))
        RaiseUnreadable(m_path, SchemeDocument::tr("It is not a layer scheme."));
    SchemeDocument::Layer layer;
    while (Named(m_path, [&] { return text.Next(layer); }))
        visitor(layer, text.Done());
}

bool Reader::Begin(SchemeDocument::Reader& text)
{
    m_file.seek(0);
    SkipByteOrderMark(m_file);
    return Named(m_path, [&] { return text.Begin(); });
}

void Make(const QString& path, const Writer& write)
{
    FileReplacement file(path);
    if (file.Begin()) {
        write(file);
        if (file.Commit())
            return;
    }
    Raise(
        HostError::SchemeFileUnwritable,
        FileTexts::tr("The scheme file \"%1\" cannot be written: %2.")
            .arg(QFileInfo(path).fileName(), file.Reason()));
}

void Write(const QString& path, const SchemeDocument& scheme)
{
    const QByteArray content = scheme.ToJson();
    Make(path, [&](QIODevice& text) { text.write(content); });
}

} // namespace Orvane::SchemeFile

// SPDX-License-Identifier: MIT
#include "store/KeptBytes.h"

#include "store/StoreTexts.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryFile>

#include <atomic>

namespace Orvane {

namespace {

std::atomic<qsizetype> g_inMemory = 0;
std::atomic<qsizetype> g_most = KeptBytes::UsualMost;

[[noreturn]] void RaiseNotKept(const QTemporaryFile& file)
{
    QString text = QCoreApplication::translate("LayerStore", StoreTexts::ChangesNotKept);
    text.replace(QLatin1String("^2"), file.errorString());
    text.replace(QLatin1String("^1"), QDir::toNativeSeparators(QDir::tempPath()));
    throw RunTimeError(ErrorNumber::DatabaseFailure, text, QStringLiteral("LayerStore"));
}

std::unique_ptr<QTemporaryFile> FileWith(const QByteArray& bytes)
{
    auto file
        = std::make_unique<QTemporaryFile>(QDir(QDir::tempPath()).filePath(QStringLiteral("orvane-undo")));
    if (!file->open() || file->write(bytes) != bytes.size() || !file->flush())
        RaiseNotKept(*file);
    return file;
}

} // namespace

struct KeptBytes::Content {
    explicit Content(const QByteArray& bytes) : size(bytes.size())
    {
        if (size > Small && g_inMemory + size > g_most) {
            file = FileWith(bytes);
            return;
        }
        memory = bytes;
        counted = size > Small ? size : 0;
        g_inMemory += counted;
    }
    ~Content() { g_inMemory -= counted; }
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;

    QByteArray memory;
    std::unique_ptr<QTemporaryFile> file; // instead of memory
    qsizetype size;
    qsizetype counted = 0;
};

KeptBytes::KeptBytes(const QByteArray& bytes)
    : m_content(bytes.isEmpty() ? nullptr : std::make_shared<const Content>(bytes))
{
}

QByteArray KeptBytes::Read() const
{
    if (!m_content)
        return {};
    if (!m_content->file)
        return m_content->memory;
    QTemporaryFile& file = *m_content->file;
    if (!file.seek(0))
        RaiseNotKept(file);
    QByteArray bytes = file.readAll();
    if (bytes.size() != m_content->size)
        RaiseNotKept(file);
    return bytes;
}

qsizetype KeptBytes::Size() const
{
    return m_content ? m_content->size : 0;
}

qsizetype KeptBytes::InMemory() const
{
    return m_content ? m_content->memory.size() : 0;
}

qsizetype KeptBytes::AllInMemory()
{
    return g_inMemory;
}

void KeptBytes::SetMost(qsizetype bytes)
{
    g_most = bytes;
}

} // namespace Orvane

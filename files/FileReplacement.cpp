// SPDX-License-Identifier: MIT
#include "files/FileReplacement.h"

#include "files/DiskSync.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cerrno>

namespace Orvane {

namespace {

constexpr qsizetype MostWaiting = 65536; // bytes

// The folder as the user gave it; a bare file name is in the current one.
QString FolderOf(const QString& path)
{
    const QFileInfo info(path);
    const QString folder = info.path() == QLatin1String(".") ? info.absolutePath() : info.path();
    return QDir::toNativeSeparators(folder);
}

} // namespace

QString WhyNotWritten(const QString& path, const QString& systemReason)
{
    const QString folder = FolderOf(path);
    if (systemReason == qt_error_string(ENOSPC))
        return QCoreApplication::translate("FileReplacement", "there is no room in the folder \"%1\"")
            .arg(folder);
    if (!QFileInfo(folder).isDir())
        return QCoreApplication::translate("FileReplacement", "there is no folder \"%1\"").arg(folder);
    return systemReason;
}

FileReplacement::FileReplacement(const QString& path) : m_file(path)
{
}

FileReplacement::~FileReplacement() = default;

bool FileReplacement::Begin()
{
    // Unbuffered, because QSaveFile::commit does not notice that the last of its buffer could not be written.
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return Fail(m_file.errorString());
    return open(QIODevice::WriteOnly);
}

bool FileReplacement::Commit()
{
    if (!isOpen() || !WriteAll(m_waiting))
        return false;
    m_waiting.clear();
    if (const std::error_code error = SyncHandle(m_file.handle()))
        return Fail(qt_error_string(error.value()));
    if (!m_file.commit())
        return Fail(m_file.errorString());
    close();
    SyncFolder(QFileInfo(m_file.fileName()).absolutePath());
    return true;
}

qint64 FileReplacement::readData(char*, qint64)
{
    return -1;
}

qint64 FileReplacement::writeData(const char* data, qint64 length)
{
    m_waiting.append(data, qsizetype(length));
    if (m_waiting.size() < MostWaiting)
        return m_reason.isEmpty() ? length : -1;
    const bool written = WriteAll(m_waiting);
    m_waiting.clear();
    return written ? length : -1;
}

// A disk that becomes full takes a part of what is written; only the next attempt says why.
bool FileReplacement::WriteAll(const QByteArray& bytes)
{
    qint64 done = 0;
    while (m_reason.isEmpty() && done < bytes.size()) {
        const qint64 written = m_file.write(bytes.constData() + done, bytes.size() - done);
        if (written <= 0)
            Fail(m_file.errorString());
        done += written;
    }
    return m_reason.isEmpty();
}

bool FileReplacement::Fail(const QString& systemReason)
{
    m_reason = WhyNotWritten(m_file.fileName(), systemReason);
    setErrorString(m_reason);
    return false;
}

} // namespace Orvane

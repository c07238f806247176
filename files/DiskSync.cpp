// SPDX-License-Identifier: MIT
// The only place that asks the system to write its buffers to the disk.
#include "files/DiskSync.h"

#include <QFile>

#include <cerrno>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Orvane {

namespace {

int Sync(int handle)
{
#ifdef Q_OS_WIN
    return _commit(handle);
#else
    return ::fsync(handle);
#endif
}

} // namespace

std::error_code SyncHandle(int handle)
{
    if (handle < 0)
        return {};
    int result = Sync(handle);
    while (result != 0 && errno == EINTR)
        result = Sync(handle);
    return result == 0 ? std::error_code() : std::error_code(errno, std::generic_category());
}

std::error_code SyncFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return std::make_error_code(std::errc::io_error);
    return SyncHandle(file.handle());
}

void SyncFolder(const QString& path)
{
#ifdef Q_OS_WIN
    Q_UNUSED(path) // NTFS keeps the order of such changes itself
#else
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    SyncHandle(folder); // some file systems cannot do this for folders
    ::close(folder);
#endif
}

} // namespace Orvane

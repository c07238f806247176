// SPDX-License-Identifier: MIT
#include "mapkit/files/OrdinaryFiles.h"

#include "mapkit/files/ReadingBound.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cerrno>
#include <cpl_error.h>
#include <cpl_vsi_virtual.h>
#include <cstring>
#include <memory>
#include <sqlite3.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Orvane {

namespace {

void TellSpecialFile(const char* path)
{
    const QString text = QCoreApplication::translate("DataSource", "\"%1\" is not an ordinary file");
    const QByteArray message = text.arg(QFileInfo(QString::fromUtf8(path)).fileName()).toUtf8();
    CPLError(CE_Failure, CPLE_OpenFailed, "%s", message.constData());
}

// Hands on everything to GDAL's own handler of plain paths, except the opening of what is no ordinary file.
class OrdinaryFileSystem : public VSIFilesystemHandler
{
public:
    explicit OrdinaryFileSystem(VSIFilesystemHandler* inner) : m_inner(inner) { }

    using VSIFilesystemHandler::Open;
    VSIVirtualHandle* Open(const char* path, const char* access, bool setError, CSLConstList options) override
    {
        ReadingBound::ReachSqlite();
        if (ReadingBound::IsOverHere()) {
            errno = EINTR;
            return nullptr;
        }
        if (IsSpecial(path)) {
            TellSpecialFile(path);
            errno = EACCES;
            return nullptr;
        }
        return m_inner->Open(path, access, setError, options);
    }
    int Stat(const char* path, VSIStatBufL* result, int flags) override
    {
        ReadingBound::ReachSqlite();
        return m_inner->Stat(path, result, flags);
    }
    int Unlink(const char* path) override { return m_inner->Unlink(path); }
    int Rename(const char* from, const char* to) override { return m_inner->Rename(from, to); }
    int Mkdir(const char* path, long mode) override { return m_inner->Mkdir(path, mode); }
    int Rmdir(const char* path) override { return m_inner->Rmdir(path); }
    char** ReadDirEx(const char* path, int most) override { return m_inner->ReadDirEx(path, most); }
    char** SiblingFiles(const char* path) override { return m_inner->SiblingFiles(path); }
    int IsCaseSensitive(const char* path) override { return m_inner->IsCaseSensitive(path); }
    GIntBig GetDiskFreeSpace(const char* path) override { return m_inner->GetDiskFreeSpace(path); }
    int SupportsSparseFiles(const char* path) override { return m_inner->SupportsSparseFiles(path); }
    VSIDIR* OpenDir(const char* path, int depth, const char* const* options) override
    {
        return m_inner->OpenDir(path, depth, options);
    }
    bool IsLocal(const char* path) override { return m_inner->IsLocal(path); }

private:
    bool IsSpecial(const char* path)
    {
        VSIStatBufL status;
        const bool exists = m_inner->Stat(path, &status, VSI_STAT_EXISTS_FLAG | VSI_STAT_NATURE_FLAG) == 0;
        return exists && !VSI_ISREG(status.st_mode) && !VSI_ISDIR(status.st_mode);
    }

    std::unique_ptr<VSIFilesystemHandler> m_inner;
};

#ifdef Q_OS_UNIX

using SystemOpen = int (*)(const char*, int, int);

SystemOpen sqliteOpen = nullptr; // what SQLite used before

bool MayBeUsed(const char* path, const struct stat& status)
{
    const bool isRandomness = S_ISCHR(status.st_mode) && std::strcmp(path, "/dev/urandom") == 0;
    return S_ISREG(status.st_mode) || S_ISDIR(status.st_mode) || isRandomness;
}

// Looks at what was opened, not at the name: no other file can take its place in between.
int OpenOrdinary(const char* path, int flags, int mode)
{
    ReadingBound::ReachSqlite();
    const int file = sqliteOpen(path, flags | O_NONBLOCK, mode);
    struct stat status = {};
    if (file < 0 || (fstat(file, &status) == 0 && MayBeUsed(path, status)))
        return file;
    close(file);
    errno = EACCES;
    return -1;
}

// SQLite opens databases and their journals past GDAL's file systems.
void OpenOnlyOrdinaryDatabases()
{
    sqlite3_initialize();
    sqlite3_vfs* files = sqlite3_vfs_find("unix");
    if (!files || files->iVersion < 3)
        return;
    sqliteOpen = reinterpret_cast<SystemOpen>(files->xGetSystemCall(files, "open"));
    files->xSetSystemCall(files, "open", reinterpret_cast<sqlite3_syscall_ptr>(OpenOrdinary));
}

#else

void OpenOnlyOrdinaryDatabases()
{
}

#endif

} // namespace

void OpenOnlyOrdinaryFiles()
{
    VSIFileManager::InstallHandler("", new OrdinaryFileSystem(VSIFileManager::GetHandler(""))); // GDAL's
    OpenOnlyOrdinaryDatabases();
}

} // namespace Orvane

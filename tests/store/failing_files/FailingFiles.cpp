// SPDX-License-Identifier: MIT
#include "store/failing_files/FailingFiles.h"

#include <cstring>
#include <new>

namespace Orvane::Testing {

namespace {

constexpr auto VfsName = "failing-files";

const char* NameWithoutFolder(const char* path)
{
    if (!path)
        return "(temporary)";
    const char* slash = std::strrchr(path, '/');
    return slash ? slash + 1 : path;
}

} // namespace

// What SQLite takes for its file; the real one follows it in memory.
struct FailingFiles::File {
    sqlite3_file base;
    FailingFiles* owner;
    const char* name; // SQLite keeps it while the file is open

    static File* Of(sqlite3_file* file) { return reinterpret_cast<File*>(file); }
    static sqlite3_file* RealOf(sqlite3_file* file)
    {
        return reinterpret_cast<sqlite3_file*>(reinterpret_cast<File*>(file) + 1);
    }
    static bool Fails(sqlite3_file* file, Call call, const char* what)
    {
        return Of(file)->owner->Fails(call, what, Of(file)->name);
    }
    static int Result(sqlite3_file* file, int inputOutput) { return Of(file)->owner->Result(inputOutput); }
};

struct FailingFiles::Calls {
    static FailingFiles& Owner(sqlite3_vfs* vfs) { return *static_cast<FailingFiles*>(vfs->pAppData); }

    static int Open(sqlite3_vfs* vfs, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags)
    {
        FailingFiles& owner = Owner(vfs);
        file->pMethods = nullptr; // then SQLite does not close it
        const char* shortName = NameWithoutFolder(name);
        if (owner.Fails(Call::Open, "xOpen", shortName))
            return owner.Result(SQLITE_CANTOPEN);
        sqlite3_file* real = new (reinterpret_cast<File*>(file) + 1) sqlite3_file{};
        const int result = owner.m_real->xOpen(owner.m_real, name, real, flags, outFlags);
        if (real->pMethods)
            new (file) File{{&Methods}, &owner, shortName};
        return result;
    }

    static int Delete(sqlite3_vfs* vfs, const char* name, int syncsFolder)
    {
        FailingFiles& owner = Owner(vfs);
        if (owner.Fails(Call::Delete, "xDelete", NameWithoutFolder(name)))
            return owner.Result(SQLITE_IOERR_DELETE);
        return owner.m_real->xDelete(owner.m_real, name, syncsFolder);
    }

    static int Sleep(sqlite3_vfs* vfs, int microseconds)
    {
        FailingFiles& owner = Owner(vfs);
        owner.m_sleptMicroseconds += microseconds;
        return owner.m_skipsSleep ? microseconds : owner.m_real->xSleep(owner.m_real, microseconds);
    }

    static int Close(sqlite3_file* file)
    {
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xClose(real);
    }

    static int Read(sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset)
    {
        if (File::Fails(file, Call::Read, "xRead"))
            return File::Result(file, SQLITE_IOERR_READ);
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xRead(real, bytes, count, offset);
    }

    static int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset)
    {
        sqlite3_file* real = File::RealOf(file);
        if (!File::Fails(file, Call::Write, "xWrite"))
            return real->pMethods->xWrite(real, bytes, count, offset);
        if (File::Of(file)->owner->m_failure.writesHalf)
            real->pMethods->xWrite(real, bytes, count / 2, offset);
        return File::Result(file, SQLITE_IOERR_WRITE);
    }

    static int Truncate(sqlite3_file* file, sqlite3_int64 size)
    {
        if (File::Fails(file, Call::Truncate, "xTruncate"))
            return File::Result(file, SQLITE_IOERR_TRUNCATE);
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xTruncate(real, size);
    }

    static int Sync(sqlite3_file* file, int flags)
    {
        if (File::Fails(file, Call::Sync, "xSync"))
            return File::Result(file, SQLITE_IOERR_FSYNC);
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xSync(real, flags);
    }

    static int FileSize(sqlite3_file* file, sqlite3_int64* size)
    {
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xFileSize(real, size);
    }

    static int Lock(sqlite3_file* file, int level)
    {
        if (File::Fails(file, Call::Lock, "xLock"))
            return File::Result(file, SQLITE_IOERR_LOCK);
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xLock(real, level);
    }

    static int Unlock(sqlite3_file* file, int level)
    {
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xUnlock(real, level);
    }

    static int CheckReservedLock(sqlite3_file* file, int* isTaken)
    {
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xCheckReservedLock(real, isTaken);
    }

    static int FileControl(sqlite3_file* file, int operation, void* argument)
    {
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xFileControl(real, operation, argument);
    }

    static int SectorSize(sqlite3_file* file)
    {
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xSectorSize(real);
    }

    static int DeviceCharacteristics(sqlite3_file* file)
    {
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xDeviceCharacteristics(real);
    }

    static int ShmMap(sqlite3_file* file, int region, int size, int extends, void volatile** memory)
    {
        if (File::Fails(file, Call::Map, "xShmMap")) {
            *memory = nullptr;
            return File::Result(file, SQLITE_IOERR_SHMMAP);
        }
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xShmMap(real, region, size, extends, memory);
    }

    static int ShmLock(sqlite3_file* file, int offset, int count, int flags)
    {
        if ((flags & SQLITE_SHM_LOCK) && File::Fails(file, Call::Lock, "xShmLock"))
            return File::Result(file, SQLITE_IOERR_SHMLOCK);
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xShmLock(real, offset, count, flags);
    }

    static void ShmBarrier(sqlite3_file* file)
    {
        sqlite3_file* real = File::RealOf(file);
        real->pMethods->xShmBarrier(real);
    }

    static int ShmUnmap(sqlite3_file* file, int deletes)
    {
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xShmUnmap(real, deletes);
    }

    static const sqlite3_io_methods Methods;
};

// Version 2: with version 3 SQLite could read a mapped file without any call.
const sqlite3_io_methods FailingFiles::Calls::Methods
    = {2,
       Close,
       Read,
       Write,
       Truncate,
       Sync,
       FileSize,
       Lock,
       Unlock,
       CheckReservedLock,
       FileControl,
       SectorSize,
       DeviceCharacteristics,
       ShmMap,
       ShmLock,
       ShmBarrier,
       ShmUnmap,
       nullptr,
       nullptr};

// What is not replaced works on names and on the clock; the real functions need no VFS of their own for it.
FailingFiles::FailingFiles() : m_real(sqlite3_vfs_find(nullptr)), m_vfs(*m_real)
{
    m_vfs.pNext = nullptr;
    m_vfs.zName = VfsName;
    m_vfs.szOsFile = int(sizeof(File)) + m_real->szOsFile;
    m_vfs.pAppData = this;
    m_vfs.xOpen = Calls::Open;
    m_vfs.xDelete = Calls::Delete;
    m_vfs.xSleep = Calls::Sleep;
    sqlite3_vfs_register(&m_vfs, 1);
}

FailingFiles::~FailingFiles()
{
    sqlite3_vfs_unregister(&m_vfs);
    sqlite3_vfs_register(m_real, 1);
}

void FailingFiles::Fail(const Failure& failure)
{
    m_failure = failure;
    m_counted = 0;
    m_hasFailed = false;
    m_firstFailure.clear();
    m_isFailing = true;
}

bool FailingFiles::Fails(Call call, const char* name, const char* file)
{
    if (!m_isFailing || !(m_failure.calls & call))
        return false;
    ++m_counted;
    if (m_counted < m_failure.number || (m_counted > m_failure.number && !m_failure.lasts))
        return false;
    if (!m_hasFailed)
        m_firstFailure = std::string(name) + ' ' + file;
    m_hasFailed = true;
    return true;
}

int FailingFiles::Result(int inputOutput) const
{
    switch (m_failure.reason) {
    case Reason::DiskFull:
        return SQLITE_FULL;
    case Reason::Busy:
        return SQLITE_BUSY;
    default:
        return inputOutput;
    }
}

} // namespace Orvane::Testing

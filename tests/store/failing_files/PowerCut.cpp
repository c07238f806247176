// SPDX-License-Identifier: MIT
#include "store/failing_files/PowerCut.h"

#include <QFile>

#include <new>
#include <utility>

namespace Orvane::Testing {

namespace {

constexpr auto PowerVfsName = "power-cut";

PowerCut* LivingPower = nullptr;

QString Path(const std::string& folder, const std::string& name)
{
    return QString::fromStdString(folder + '/' + name);
}

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// What SQLite takes for its file; the real one follows it in memory.
struct PowerCut::File {
    sqlite3_file base;
    PowerCut* owner;
    const char* path; // SQLite keeps it while the file is open
    bool isNewJournal; // its first sync syncs the folder too

    static File* Of(sqlite3_file* file) { return reinterpret_cast<File*>(file); }
    static sqlite3_file* RealOf(sqlite3_file* file)
    {
        return reinterpret_cast<sqlite3_file*>(reinterpret_cast<File*>(file) + 1);
    }
    static PowerCut& Power(sqlite3_file* file) { return *Of(file)->owner; }
    static bool IsOff(sqlite3_file* file) { return Power(file).m_isOff; }
    /// Empty for a file that is not followed.
    static std::string NameOf(sqlite3_file* file)
    {
        return Of(file)->path ? Power(file).NameIn(Of(file)->path) : std::string();
    }
};

// Calls the same function of the real file.
template <typename... Arguments, int (*sqlite3_io_methods::*Member)(sqlite3_file*, Arguments...)>
struct PowerCut::Forward<Member> {
    static int Call(sqlite3_file* file, Arguments... arguments)
    {
        sqlite3_file* real = File::RealOf(file);
        return (real->pMethods->*Member)(real, arguments...);
    }
};

struct PowerCut::Calls {
    static PowerCut& Owner(sqlite3_vfs* vfs) { return *static_cast<PowerCut*>(vfs->pAppData); }

    static int Open(sqlite3_vfs* vfs, sqlite3_filename path, sqlite3_file* file, int flags, int* outFlags)
    {
        PowerCut& power = Owner(vfs);
        file->pMethods = nullptr; // then SQLite does not close it
        const std::string name = path ? power.NameIn(path) : std::string();
        if (power.m_isOff)
            return SQLITE_CANTOPEN;
        if (!name.empty() && !power.Knows(name) && (flags & SQLITE_OPEN_CREATE)) {
            const bool begins = power.Begins("xOpen", name);
            power.m_disk.Create(name);
            if (!begins)
                return SQLITE_CANTOPEN;
        }
        sqlite3_file* real = new (reinterpret_cast<File*>(file) + 1) sqlite3_file{};
        const int result = power.m_real->xOpen(power.m_real, path, real, flags, outFlags);
        constexpr int journals = SQLITE_OPEN_MAIN_JOURNAL | SQLITE_OPEN_SUPER_JOURNAL | SQLITE_OPEN_WAL;
        if (real->pMethods)
            new (file) File{{&Methods}, &power, path, (flags & SQLITE_OPEN_CREATE) && (flags & journals)};
        return result;
    }

    static int Delete(sqlite3_vfs* vfs, const char* path, int syncsFolder)
    {
        PowerCut& power = Owner(vfs);
        if (!power.NoteDelete(path))
            return SQLITE_IOERR_DELETE;
        LivingPower = nullptr; // the real function removes the file by a call that would be noted again
        const int result = power.m_real->xDelete(power.m_real, path, 0);
        LivingPower = &power;
        if (syncsFolder && result == SQLITE_OK)
            power.m_disk.SyncFolder();
        return result;
    }

    static int Read(sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset)
    {
        sqlite3_file* real = File::RealOf(file);
        return File::IsOff(file) ? SQLITE_IOERR_READ : real->pMethods->xRead(real, bytes, count, offset);
    }

    static int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset)
    {
        if (File::IsOff(file))
            return SQLITE_IOERR_WRITE;
        PowerCut& power = File::Power(file);
        if (const std::string name = File::NameOf(file); !name.empty()) {
            power.m_disk.Write(name, offset, QByteArray(static_cast<const char*>(bytes), count));
            if (!power.Begins("xWrite", name))
                return SQLITE_IOERR_WRITE;
        }
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xWrite(real, bytes, count, offset);
    }

    static int Truncate(sqlite3_file* file, sqlite3_int64 size)
    {
        if (File::IsOff(file))
            return SQLITE_IOERR_TRUNCATE;
        PowerCut& power = File::Power(file);
        if (const std::string name = File::NameOf(file); !name.empty()) {
            power.m_disk.Truncate(name, size);
            if (!power.Begins("xTruncate", name))
                return SQLITE_IOERR_TRUNCATE;
        }
        sqlite3_file* real = File::RealOf(file);
        return real->pMethods->xTruncate(real, size);
    }

    static int Sync(sqlite3_file* file, int)
    {
        if (File::IsOff(file))
            return SQLITE_IOERR_FSYNC;
        PowerCut& power = File::Power(file);
        const std::string name = File::NameOf(file);
        if (name.empty())
            return SQLITE_OK;
        if (!power.Begins("xSync", name))
            return SQLITE_IOERR_FSYNC;
        power.m_disk.Sync(name);
        if (std::exchange(File::Of(file)->isNewJournal, false))
            power.m_disk.SyncFolder();
        return SQLITE_OK;
    }

    static int Lock(sqlite3_file* file, int level)
    {
        sqlite3_file* real = File::RealOf(file);
        return File::IsOff(file) ? SQLITE_IOERR_LOCK : real->pMethods->xLock(real, level);
    }

    static int ShmMap(sqlite3_file* file, int region, int size, int extends, void volatile** memory)
    {
        sqlite3_file* real = File::RealOf(file);
        if (!File::IsOff(file))
            return real->pMethods->xShmMap(real, region, size, extends, memory);
        *memory = nullptr;
        return SQLITE_IOERR_SHMMAP;
    }

    static int ShmLock(sqlite3_file* file, int offset, int count, int flags)
    {
        sqlite3_file* real = File::RealOf(file);
        if ((flags & SQLITE_SHM_LOCK) && File::IsOff(file))
            return SQLITE_IOERR_SHMLOCK;
        return real->pMethods->xShmLock(real, offset, count, flags);
    }

    static void ShmBarrier(sqlite3_file* file)
    {
        sqlite3_file* real = File::RealOf(file);
        real->pMethods->xShmBarrier(real);
    }

    static const sqlite3_io_methods Methods;
};

// Version 2: with version 3 SQLite could write a mapped file without any call.
const sqlite3_io_methods PowerCut::Calls::Methods
    = {2,
       Forward<&sqlite3_io_methods::xClose>::Call,
       Read,
       Write,
       Truncate,
       Sync,
       Forward<&sqlite3_io_methods::xFileSize>::Call,
       Lock,
       Forward<&sqlite3_io_methods::xUnlock>::Call,
       Forward<&sqlite3_io_methods::xCheckReservedLock>::Call,
       Forward<&sqlite3_io_methods::xFileControl>::Call,
       Forward<&sqlite3_io_methods::xSectorSize>::Call,
       Forward<&sqlite3_io_methods::xDeviceCharacteristics>::Call,
       ShmMap,
       ShmLock,
       ShmBarrier,
       Forward<&sqlite3_io_methods::xShmUnmap>::Call,
       nullptr,
       nullptr};

PowerCut::PowerCut(const QString& folder)
    : m_folder(folder.toStdString()), m_real(sqlite3_vfs_find(nullptr)), m_vfs(*m_real)
{
    m_vfs.pNext = nullptr;
    m_vfs.zName = PowerVfsName;
    m_vfs.szOsFile = int(sizeof(File)) + m_real->szOsFile;
    m_vfs.pAppData = this;
    m_vfs.xOpen = Calls::Open;
    m_vfs.xDelete = Calls::Delete;
    sqlite3_vfs_register(&m_vfs, 1);
    LivingPower = this;
}

PowerCut::~PowerCut()
{
    LivingPower = nullptr;
    sqlite3_vfs_unregister(&m_vfs);
    sqlite3_vfs_register(m_real, 1);
}

PowerCut* PowerCut::Living()
{
    return LivingPower;
}

void PowerCut::CutAt(int number)
{
    m_number = number;
    m_counted = 0;
}

void PowerCut::Return(Loss loss, unsigned seed)
{
    m_isOff = false;
    m_number = 0;
    LivingPower = nullptr; // putting the files there is nothing that a program does
    for (const std::string& name : m_names) {
        QFile::remove(Path(m_folder, name));
        QFile::remove(Path(m_folder, name + "-shm")); // is built again after a crash
    }
    for (const auto& [name, content] : m_disk.AfterPowerCut(loss, seed)) {
        QFile file(Path(m_folder, name));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }
    LivingPower = this;
}

bool PowerCut::NoteSync(const std::string& path)
{
    if (path == m_folder) {
        if (!Begins("fsync", "folder"))
            return false;
        m_disk.SyncFolder();
        return true;
    }
    const std::string name = NameIn(path);
    if (name.empty() || !Knows(name))
        return true;
    if (!Begins("fsync", name))
        return false;
    m_disk.Sync(name);
    return true;
}

bool PowerCut::NoteRename(const std::string& from, const std::string& to)
{
    const std::string oldName = NameIn(from);
    const std::string newName = NameIn(to);
    if (oldName.empty() || newName.empty() || !Knows(oldName))
        return true;
    if (m_isOff)
        return false;
    Knows(newName);
    const bool begins = Begins("rename", oldName);
    m_names.insert(newName);
    m_disk.Rename(oldName, newName);
    return begins;
}

bool PowerCut::NoteDelete(const std::string& path)
{
    const std::string name = NameIn(path);
    if (name.empty() || !Knows(name))
        return true;
    if (m_isOff)
        return false;
    const bool begins = Begins("unlink", name);
    m_disk.Delete(name);
    return begins;
}

std::string PowerCut::NameIn(const std::string& path) const
{
    const size_t slash = path.rfind('/');
    const std::string name = path.substr(slash + 1);
    const bool isIndex = name.size() > 4 && name.compare(name.size() - 4, 4, "-shm") == 0;
    if (slash == std::string::npos || isIndex || path.compare(0, slash, m_folder) != 0)
        return {};
    return name;
}

bool PowerCut::Knows(const std::string& name)
{
    if (m_disk.Knows(name))
        return true;
    m_names.insert(name);
    const QString path = Path(m_folder, name);
    if (!QFile::exists(path))
        return false;
    m_disk.AddOld(name, ContentOf(path));
    return true;
}

bool PowerCut::Begins(const char* call, const std::string& name)
{
    if (m_isOff)
        return false;
    m_lastChange = std::string(call) + ' ' + name;
    ++m_counted;
    m_isOff = m_number > 0 && m_counted == m_number;
    return !m_isOff;
}

} // namespace Orvane::Testing

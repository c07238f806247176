// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <sqlite3.h>
#include <string>

namespace Orvane::Testing {

/// A layer below SQLite in which the calls to files can fail, to see what a store then keeps.
///
///     FailingFiles files;
///     const auto database = SqliteLayerDatabase::Open(path);
///     files.Fail({.number = 3});
///     ... the third call fails ...
///     files.Heal();
///
/// While it lives it is SQLite's default VFS: all databases that are opened go through it. Close them before
/// it is destroyed. Files opened by other means than SQLite never fail.
class FailingFiles
{
public:
    /// Kinds of calls; they can be combined with |.
    enum Call : unsigned {
        Open = 1,
        Read = 2,
        Write = 4,
        Sync = 8,
        Truncate = 16,
        Lock = 32, ///< taking a lock, on the file or on the index of a write-ahead log; never releasing one
        Delete = 64,
        Map = 128, ///< mapping the index of a write-ahead log into memory
        AllCalls = 255,
        /// The calls that need room on the disk.
        Growing = Write | Truncate,
    };

    enum class Reason {
        InputOutput, ///< SQLITE_IOERR with the extension of the call, SQLITE_CANTOPEN for Open
        DiskFull, ///< SQLITE_FULL
        Busy, ///< SQLITE_BUSY; sensible for Lock
    };

    /// Which calls fail, and how.
    struct Failure {
        unsigned calls = AllCalls; ///< these are counted, and only these fail
        int number = 1; ///< the first call that fails, counted from 1
        Reason reason = Reason::InputOutput;
        bool lasts = false; ///< all counted calls after it fail too, as on a full disk
        bool writesHalf = false; ///< a write that fails has stored the first half of its bytes
    };

    FailingFiles();
    ~FailingFiles();
    FailingFiles(const FailingFiles&) = delete;
    FailingFiles& operator=(const FailingFiles&) = delete;

    /// Counts the calls from now on, and lets them fail.
    void Fail(const Failure& failure);
    /// Lets no further call fail; Counted and HasFailed keep their values.
    void Heal() { m_isFailing = false; }
    /// The counted calls since Fail.
    int Counted() const { return m_counted; }
    /// True when a call has failed since the last call of Fail.
    bool HasFailed() const { return m_hasFailed; }
    /// What failed first, for messages of tests: "xWrite map.ovl-wal"; empty while nothing has failed.
    const std::string& FirstFailure() const { return m_firstFailure; }

    /// From now on SQLite's waits take no time; they are only added up.
    void SkipSleep() { m_skipsSleep = true; }
    /// How long SQLite has waited, in milliseconds. Tests set it back by subtraction.
    std::int64_t SleptMilliseconds() const { return m_sleptMicroseconds / 1000; }

private:
    struct File;
    struct Calls;

    bool Fails(Call call, const char* name, const char* file);
    int Result(int inputOutput) const;

    sqlite3_vfs* m_real;
    sqlite3_vfs m_vfs;
    Failure m_failure;
    int m_counted = 0;
    bool m_isFailing = false;
    bool m_hasFailed = false;
    bool m_skipsSleep = false;
    std::int64_t m_sleptMicroseconds = 0;
    std::string m_firstFailure;
};

} // namespace Orvane::Testing

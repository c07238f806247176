// SPDX-License-Identifier: MIT
#pragma once

#include "store/failing_files/DiskModel.h"

#include <QString>

#include <set>
#include <sqlite3.h>

namespace Orvane::Testing {

/// A layer below SQLite that can lose the power, to see what a store finds when it returns.
///
///     PowerCut power(folder);
///     power.CutAt(7);
///     ... the seventh change of the disk is the last that is begun; from then on every call fails ...
///     ... close all databases ...
///     power.Return(Loss::TornWrites, seed);
///
/// While it lives it is SQLite's default VFS. Only files in the folder are followed: what is in it counts as
/// synced when it is first opened. Nothing is really synced, which makes it fast. One at a time.
///
/// SQLite's own files pass through the VFS. What a program does to files besides (SyncFile, rename, remove)
/// is followed only where it calls the Note functions, see powercut/SystemCalls.cpp.
class PowerCut
{
public:
    /// folder: absolute.
    explicit PowerCut(const QString& folder);
    ~PowerCut();
    PowerCut(const PowerCut&) = delete;
    PowerCut& operator=(const PowerCut&) = delete;

    /// The one that lives, or nullptr.
    static PowerCut* Living();

    /// Counts changes of the disk (creating, writing, truncating, syncing, renaming, removing) from now on;
    /// change number n, from 1, is begun, may have happened in part, and fails. 0: none fails.
    void CutAt(int number);
    bool IsOff() const { return m_isOff; }
    /// The counted changes since CutAt.
    int Counted() const { return m_counted; }
    /// What was begun last, for messages of tests: "xWrite map.ovl-wal".
    const std::string& LastChange() const { return m_lastChange; }

    /// Puts into the folder what the disk may hold. All databases must be closed.
    void Return(Loss loss, unsigned seed);

    // What others than SQLite do; each returns false if the power fails, and the call must not be made then.

    bool NoteSync(const std::string& path);
    bool NoteRename(const std::string& from, const std::string& to);
    bool NoteDelete(const std::string& path);

private:
    struct File;
    struct Calls;
    template <auto Member> struct Forward;

    /// The name in the folder; empty for a path elsewhere, and for an index, which is built again after a
    /// crash.
    std::string NameIn(const std::string& path) const;
    /// Learns of a file that is there already.
    bool Knows(const std::string& name);
    bool Begins(const char* call, const std::string& name);

    std::string m_folder;
    sqlite3_vfs* m_real;
    sqlite3_vfs m_vfs;
    DiskModel m_disk;
    std::set<std::string> m_names; // all that were ever followed
    int m_number = 0;
    int m_counted = 0;
    bool m_isOff = false;
    std::string m_lastChange;
};

} // namespace Orvane::Testing

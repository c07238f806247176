// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace Orvane::Testing {

/// How much of what was not synced a disk holds when the power returns.
enum class Loss {
    Everything, ///< nothing of it was stored
    Nothing, ///< all of it was stored
    SomeWrites, ///< any of the changes, each whole
    TornWrites, ///< any sectors of 512 bytes of any of the changes
};

/// What a disk holds for certain, and what it was given besides: the files of one folder, with the changes
/// since each file was synced, and with the names that were given and taken since the folder was synced.
///
/// A later change that was stored hides an earlier one in the same sector; a name is given or taken whole.
class DiskModel
{
public:
    bool Knows(const std::string& name) const { return m_now.count(name) > 0; }
    /// A file that was on the disk before anything happened.
    void AddOld(const std::string& name, const QByteArray& content);
    void Create(const std::string& name);
    void Write(const std::string& name, qint64 offset, const QByteArray& bytes);
    void Truncate(const std::string& name, qint64 size);
    void Sync(const std::string& name);
    void Delete(const std::string& name);
    void Rename(const std::string& from, const std::string& to);
    void SyncFolder();

    /// The files when the power has returned. They are then what the disk holds for certain.
    std::map<std::string, QByteArray> AfterPowerCut(Loss loss, unsigned seed);

private:
    struct Change {
        qint64 offset = 0; // the new size, if it truncates
        QByteArray bytes;
        bool truncates = false;
    };
    struct File {
        QByteArray synced;
        std::vector<Change> changes;
    };
    using FilePtr = std::shared_ptr<File>; // several names may have stood for it
    using Folder = std::map<std::string, FilePtr>;
    using Naming = std::vector<std::pair<std::string, FilePtr>>; // no file: the name is taken away

    static void Apply(QByteArray& content, const Change& change);
    static QByteArray Survivor(const File& file, Loss loss, std::mt19937& random);
    void Name(const Naming& naming);

    Folder m_now;
    Folder m_synced;
    std::vector<Naming> m_namings; // since the folder was synced
};

} // namespace Orvane::Testing

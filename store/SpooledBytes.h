// SPDX-License-Identifier: MIT
#pragma once

#include "store/TemporaryFile.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane {

/// Records of bytes, one after another, of which there may be more than fit into memory: from a certain size
/// on they are in a temporary file.
class SpooledBytes
{
public:
    /// How much is held in memory at most, in bytes, before it goes to the file.
    static constexpr size_t MostInMemory = size_t(8) * 1024 * 1024;

    /// In bytes, with the lengths of the records: where the next record begins.
    quint64 Size() const { return InFile() + m_memory.size(); }
    /// Adds a record. Raises as TemporaryFile does; it is not added then.
    void Append(std::string_view record);
    /// Forgets the records from there on; place: where a record begins.
    void ShrinkTo(quint64 place);

    /// Reads the record that begins there, and moves place to the next one. The view points into this object
    /// or into buffer, and is valid until either changes. Raises as TemporaryFile does.
    std::string_view Read(quint64& place, std::string& buffer) const;

private:
    struct Block {
        qint64 number = -1;
        std::string bytes;
    };

    quint64 InFile() const { return m_file ? quint64(m_file->Size()) : 0; }
    void MoveToFile();
    void ReadFromFile(quint64 place, char* to, size_t size) const;
    const std::string& BlockAt(qint64 number) const;

    std::string m_memory; // what follows the file's content
    std::unique_ptr<TemporaryFile> m_file;
    mutable std::vector<Block> m_blocks; // of the file, read lately
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "store/SpooledBytes.h"

#include <algorithm>
#include <cstring>

namespace Orvane {

namespace {

using RecordLength = quint32;

constexpr qint64 BlockSize = 65536;
constexpr size_t BlockCount = 64;

} // namespace

void SpooledBytes::Append(std::string_view record)
{
    if (m_memory.size() >= MostInMemory)
        MoveToFile();
    const auto length = RecordLength(record.size());
    const size_t start = m_memory.size();
    m_memory.resize(start + sizeof length + record.size()); // both are added, or neither
    std::memcpy(m_memory.data() + start, &length, sizeof length);
    std::memcpy(m_memory.data() + start + sizeof length, record.data(), record.size());
}

// Whole records, so that none is in both places.
void SpooledBytes::MoveToFile()
{
    if (!m_file)
        m_file = std::make_unique<TemporaryFile>();
    m_file->Append(m_memory);
    m_memory.clear();
    m_blocks.clear();
}

void SpooledBytes::ShrinkTo(quint64 place)
{
    if (place >= InFile())
        return m_memory.resize(std::min(size_t(place - InFile()), m_memory.size()));
    m_memory.clear();
    m_blocks.clear();
    if (place == 0)
        m_file.reset();
    else
        m_file->ShrinkTo(qint64(place));
}

std::string_view SpooledBytes::Read(quint64& place, std::string& buffer) const
{
    RecordLength length = 0;
    const bool inMemory = place >= InFile();
    const char* record = inMemory ? m_memory.data() + (place - InFile()) : nullptr;
    if (inMemory)
        std::memcpy(&length, record, sizeof length);
    else
        ReadFromFile(place, reinterpret_cast<char*>(&length), sizeof length);
    const quint64 start = place + sizeof length;
    place = start + length;
    if (inMemory)
        return {record + sizeof length, length};
    buffer.resize(length);
    ReadFromFile(start, buffer.data(), length);
    return buffer;
}

void SpooledBytes::ReadFromFile(quint64 place, char* to, size_t size) const
{
    while (size > 0) {
        const std::string& block = BlockAt(qint64(place) / BlockSize);
        const auto offset = size_t(qint64(place) % BlockSize);
        const size_t part = std::min(size, block.size() - offset);
        std::copy_n(block.data() + offset, part, to);
        place += part;
        to += part;
        size -= part;
    }
}

const std::string& SpooledBytes::BlockAt(qint64 number) const
{
    m_blocks.resize(BlockCount);
    Block& block = m_blocks[size_t(number) % BlockCount];
    if (block.number == number)
        return block.bytes;
    block.number = -1; // if reading fails
    block.bytes.resize(size_t(std::min(BlockSize, m_file->Size() - number * BlockSize)));
    m_file->Read(number * BlockSize, block.bytes.data(), qint64(block.bytes.size()));
    block.number = number;
    return block.bytes;
}

} // namespace Orvane

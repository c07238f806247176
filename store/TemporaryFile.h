// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryFile>

#include <string_view>

namespace Orvane {

/// What is too much for memory, in the folder for temporary files; it goes with this object, also when the
/// program crashes. Raises DatabaseFailure, which names the folder, when there is no room, and when the file
/// cannot be read.
class TemporaryFile
{
public:
    TemporaryFile();

    /// In bytes.
    qint64 Size() const { return m_size; }
    /// Adds bytes at the end. If that raises, the file is as before.
    void Append(std::string_view bytes);
    /// Forgets what follows that size.
    void ShrinkTo(qint64 size);
    /// Reads so many bytes from that place; they must be there.
    void Read(qint64 place, char* to, qint64 size) const;

private:
    [[noreturn]] void Raise() const;

    mutable QTemporaryFile m_file; // reading moves its position
    qint64 m_size = 0;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace Orvane::Testing {

/// The input as bytes.
inline QByteArray BytesIn(const uint8_t* data, size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), int(size));
}

/// The input as text, in UTF-8; what is not valid is replaced.
inline QString TextIn(const uint8_t* data, size_t size)
{
    return QString::fromUtf8(BytesIn(data, size));
}

/// Ends the program, with that text, when a promise does not hold.
inline void Require(bool holds, const char* promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", promise);
    std::abort();
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <string>
#include <string_view>
#include <variant>

namespace Orvane {

/// Bytes that a database stores unchanged.
struct Blob {
    QByteArray bytes; ///< as stored
};

/// A value of a row exactly as its database stores it; std::monostate stands for NULL. Texts are in UTF-8.
using StoredValue = std::variant<std::monostate, qint64, double, std::string_view, Blob>;

/// How changes are written as bytes. The same value always has the same bytes, so that coded values can be
/// compared without decoding them.
namespace ChangeCoding {

/// Each appends one value; a count has as few bytes as it needs.
void AppendCount(std::string& bytes, quint64 count);
void AppendNull(std::string& bytes);
void AppendInteger(std::string& bytes, qint64 number);
void AppendReal(std::string& bytes, double number);
void AppendText(std::string& bytes, std::string_view text);
void AppendBlob(std::string& bytes, std::string_view blob);

} // namespace ChangeCoding

/// Reads coded changes from front to back. What it returns points into the bytes, which must outlive it.
class ChangeBytes
{
public:
    /// Reads from the beginning; the bytes must outlive the reader.
    explicit ChangeBytes(std::string_view bytes) : m_rest(bytes) { }

    /// How many bytes are left to read.
    size_t Left() const { return m_rest.size(); }
    bool AtEnd() const { return m_rest.empty(); }
    quint64 Count();
    /// The bytes of the next value.
    std::string_view CodedValue();
    /// The value that these bytes encode.
    static StoredValue Decoded(std::string_view coded);

private:
    std::string_view Take(size_t size);

    std::string_view m_rest;
};

} // namespace Orvane

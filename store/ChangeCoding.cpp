// SPDX-License-Identifier: MIT
#include "store/ChangeCoding.h"

#include <array>
#include <cstring>

namespace Orvane {

namespace {

// The first byte of a coded value.
namespace Tag {
constexpr char Null = 0;
constexpr char Integer = 1;
constexpr char Real = 2;
constexpr char Text = 3;
constexpr char Blob = 4;
} // namespace Tag

// Maps small negative numbers to small counts.
quint64 ZigZag(qint64 number)
{
    return (quint64(number) << 1) ^ quint64(number >> 63);
}

qint64 FromZigZag(quint64 count)
{
    return qint64(count >> 1) ^ -qint64(count & 1);
}

void AppendSized(std::string& bytes, char tag, std::string_view content)
{
    bytes += tag;
    ChangeCoding::AppendCount(bytes, content.size());
    bytes += content;
}

} // namespace

// Seven bits in each byte, the low ones first. The eighth bit is set if more bytes follow.
void ChangeCoding::AppendCount(std::string& bytes, quint64 count)
{
    std::array<char, 10> coded; // 64 bits by seven
    size_t size = 0;
    for (; count >= 0x80; count >>= 7)
        coded[size++] = char(count | 0x80);
    coded[size++] = char(count);
    bytes.append(coded.data(), size);
}

void ChangeCoding::AppendNull(std::string& bytes)
{
    bytes += Tag::Null;
}

void ChangeCoding::AppendInteger(std::string& bytes, qint64 number)
{
    bytes += Tag::Integer;
    AppendCount(bytes, ZigZag(number));
}

void ChangeCoding::AppendReal(std::string& bytes, double number)
{
    bytes += Tag::Real;
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void ChangeCoding::AppendText(std::string& bytes, std::string_view text)
{
    AppendSized(bytes, Tag::Text, text);
}

void ChangeCoding::AppendBlob(std::string& bytes, std::string_view blob)
{
    AppendSized(bytes, Tag::Blob, blob);
}

quint64 ChangeBytes::Count()
{
    quint64 count = 0;
    size_t size = 0;
    unsigned char byte = 0;
    do {
        byte = static_cast<unsigned char>(m_rest[size]);
        count |= quint64(byte & 0x7F) << (7 * size++);
    } while (byte >= 0x80);
    m_rest.remove_prefix(size);
    return count;
}

std::string_view ChangeBytes::CodedValue()
{
    const std::string_view start = m_rest;
    switch (Take(1).front()) {
    case Tag::Integer:
        Count();
        break;
    case Tag::Real:
        Take(sizeof(double));
        break;
    case Tag::Text:
    case Tag::Blob:
        Take(Count());
        break;
    default:
        break;
    }
    return start.substr(0, start.size() - m_rest.size());
}

StoredValue ChangeBytes::Decoded(std::string_view coded)
{
    ChangeBytes value(coded);
    switch (value.Take(1).front()) {
    case Tag::Integer:
        return FromZigZag(value.Count());
    case Tag::Real: {
        double number = 0;
        std::memcpy(&number, value.m_rest.data(), sizeof number);
        return number;
    }
    case Tag::Text: {
        const quint64 size = value.Count();
        return value.Take(size);
    }
    case Tag::Blob: {
        const quint64 size = value.Count();
        return Blob{QByteArray(value.Take(size).data(), qsizetype(size))};
    }
    default:
        return std::monostate();
    }
}

std::string_view ChangeBytes::Take(size_t size)
{
    const std::string_view taken = m_rest.substr(0, size);
    m_rest.remove_prefix(size);
    return taken;
}

} // namespace Orvane

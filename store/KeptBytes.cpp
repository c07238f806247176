// SPDX-License-Identifier: MIT
#include "store/KeptBytes.h"

#include "store/TemporaryFile.h"

#include <atomic>
#include <utility>
#include <vector>

namespace Orvane {

namespace {

std::atomic<qsizetype> g_inMemory = 0;
std::atomic<qsizetype> g_most = KeptBytes::UsualMost;

} // namespace

struct KeptBytes::Content {
    struct Piece {
        QByteArray memory;
        qint64 place = 0; // in the file, if memory is empty
        qsizetype size = 0;
    };

    Content() = default;
    ~Content() { g_inMemory -= counted; }
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;

    void Add(const QByteArray& bytes)
    {
        const bool isSmall = size + bytes.size() <= Small;
        pieces.reserve(pieces.size() + 1);
        if (!isSmall && g_inMemory + bytes.size() > g_most)
            AddToFile(bytes);
        else
            AddToMemory(bytes, isSmall ? 0 : bytes.size());
        size += bytes.size();
    }
    void AddToFile(const QByteArray& bytes)
    {
        if (!file)
            file = std::make_unique<TemporaryFile>();
        const qint64 place = file->Size();
        file->Append({bytes.constData(), size_t(bytes.size())});
        pieces.push_back({{}, place, bytes.size()});
    }
    void AddToMemory(const QByteArray& bytes, qsizetype count)
    {
        pieces.push_back({bytes, 0, bytes.size()});
        counted += count;
        inMemory += bytes.size();
        g_inMemory += count;
    }
    QByteArray Read(const Piece& piece) const
    {
        if (!piece.memory.isEmpty())
            return piece.memory;
        QByteArray bytes(piece.size, Qt::Uninitialized);
        file->Read(piece.place, bytes.data(), piece.size);
        return bytes;
    }

    std::vector<Piece> pieces;
    std::unique_ptr<TemporaryFile> file; // one for all pieces that are not in memory
    qsizetype size = 0;
    qsizetype inMemory = 0;
    qsizetype counted = 0; // what counts against the limit
};

KeptBytes::KeptBytes(const QByteArray& bytes)
{
    if (bytes.isEmpty())
        return;
    Maker maker;
    maker.Add(bytes);
    *this = maker.Finish();
}

KeptBytes::KeptBytes(std::shared_ptr<const Content> content) : m_content(std::move(content))
{
}

QByteArray KeptBytes::Read() const
{
    if (PieceCount() == 1)
        return Piece(0);
    QByteArray bytes;
    for (size_t number = 0; number < PieceCount(); ++number)
        bytes += Piece(number);
    return bytes;
}

size_t KeptBytes::PieceCount() const
{
    return m_content ? m_content->pieces.size() : 0;
}

QByteArray KeptBytes::Piece(size_t number) const
{
    return m_content->Read(m_content->pieces[number]);
}

qsizetype KeptBytes::Size() const
{
    return m_content ? m_content->size : 0;
}

qsizetype KeptBytes::InMemory() const
{
    return m_content ? m_content->inMemory : 0;
}

qsizetype KeptBytes::AllInMemory()
{
    return g_inMemory;
}

void KeptBytes::SetMost(qsizetype bytes)
{
    g_most = bytes;
}

void KeptBytes::Maker::Add(const QByteArray& piece)
{
    if (!m_content)
        m_content = std::make_shared<Content>();
    m_content->Add(piece);
}

KeptBytes KeptBytes::Maker::Finish()
{
    return KeptBytes(std::exchange(m_content, nullptr));
}

} // namespace Orvane

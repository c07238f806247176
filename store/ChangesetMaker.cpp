// SPDX-License-Identifier: MIT
#include "store/ChangesetMaker.h"

#include "store/ChangesetReader.h"

namespace Orvane {

namespace {

constexpr size_t Large = 16384; // bytes, from which on compression pays
constexpr size_t PieceSize = size_t(1024) * 1024; // bytes, before they are compressed
constexpr int FastCompression = 1;

} // namespace

void ChangesetMaker::Add(std::string_view row)
{
    m_rows += row;
    if (m_rows.size() >= PieceSize)
        KeepRows();
}

void ChangesetMaker::Add(const ChangedRow& row)
{
    ChangedRows::Append(m_rows, row);
    if (m_rows.size() >= PieceSize)
        KeepRows();
}

Changeset ChangesetMaker::Finish()
{
    if (!m_rows.empty())
        KeepRows();
    m_hasRows = false;
    return Changeset(m_kept.Finish());
}

// The first piece holds the tables, the others hold rows.
void ChangesetMaker::KeepRows()
{
    if (!m_hasRows) {
        std::string tables;
        ChangedRows::Append(tables, m_tables);
        Keep(tables);
    }
    m_hasRows = true;
    Keep(m_rows);
    m_rows.clear();
}

// The first byte says whether the others are compressed.
void ChangesetMaker::Keep(std::string_view bytes)
{
    const auto all = QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size()));
    const bool isCompressed = bytes.size() >= Large;
    QByteArray piece = isCompressed ? qCompress(all, FastCompression) : all;
    piece.prepend(isCompressed ? Changeset::Compressed : Changeset::Plain);
    m_kept.Add(piece);
}

} // namespace Orvane

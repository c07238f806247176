// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <memory>

namespace Orvane {

/// Bytes that are kept for later and never change; copies share them. All objects of the program together
/// hold at most a certain size in memory: what comes after that is kept in temporary files, which go with the
/// last copy, also when the program crashes.
class KeptBytes
{
public:
    /// How much all objects together hold in memory, in bytes.
    static constexpr qsizetype UsualMost = qsizetype(64) * 1024 * 1024;
    /// Bytes of this size or less always stay in memory.
    static constexpr qsizetype Small = 16384;

    class Maker;

    /// Nothing.
    KeptBytes() = default;
    /// One piece. Raises DatabaseFailure if a temporary file is needed and cannot be written.
    explicit KeptBytes(const QByteArray& bytes);

    /// True if no bytes are kept.
    bool IsEmpty() const { return !m_content; }
    /// All bytes. Raises DatabaseFailure if a temporary file cannot be read.
    QByteArray Read() const;
    /// In how many pieces they were added.
    size_t PieceCount() const;
    /// One piece, from 0. Raises as Read does.
    QByteArray Piece(size_t number) const;
    /// How many there are, in memory or in a file.
    qsizetype Size() const;
    /// How much of it is in memory, in bytes.
    qsizetype InMemory() const;

    /// What all objects hold in memory now, without small ones, in bytes.
    static qsizetype AllInMemory();
    /// Another limit than UsualMost, for a program that has less or more memory to spare.
    static void SetMost(qsizetype bytes);

private:
    struct Content;

    explicit KeptBytes(std::shared_ptr<const Content> content);

    std::shared_ptr<const Content> m_content;
};

/// Makes KeptBytes from pieces, so that not all of them need be in memory at once.
class KeptBytes::Maker
{
public:
    /// Adds bytes, which may not be empty. Raises DatabaseFailure if a temporary file is needed and cannot be
    /// written.
    void Add(const QByteArray& piece);
    /// What was added; nothing is left to add to.
    KeptBytes Finish();

private:
    std::shared_ptr<Content> m_content;
};

} // namespace Orvane

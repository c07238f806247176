// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

namespace Orvane {

class ServerConnection;

/// By what a session finds its own transactions in the news of a map: each transaction that writes gives the
/// server a token of its own, which the triggers store with the news; see NoteFunction. All tokens of a
/// session begin in the same way.
class TransactionToken
{
public:
    TransactionToken();

    /// A UUID, which is not that of any other transaction.
    const QByteArray& Text() const { return m_text; }
    /// What the tokens of this session begin with.
    QByteArray Beginning() const { return m_text.left(m_text.lastIndexOf('-') + 1); }
    /// Goes on to the next transaction.
    void Next();

    /// Gives the present transaction of the server a token, which is its value.
    static QByteArray Setting();

private:
    QByteArray m_text;
    quint64 m_number = 0;
};

/// Whether the transaction with that token was stored, whose connection broke when it was committed. What the
/// server still does for that connection is ended. False if the transaction has changed no row; nothing if
/// it cannot be found out in a few seconds. connection: a new one, outside of a transaction. backend: the
/// server's process for the one that broke. Raises database errors.
std::optional<bool> WasStored(ServerConnection& connection, const QByteArray& token, int backend);

} // namespace Orvane

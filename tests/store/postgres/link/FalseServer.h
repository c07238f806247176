// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerPlace.h"
#include "support/UnixSocket.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <thread>

namespace Orvane::Testing {

/// A program that takes connections as PostgreSQL's server does, and then answers whatever a test wants.
class FalseServer
{
public:
    /// What it does when the client has sent its first own statement.
    using Answering = std::function<void(UnixSocket& client)>;

    explicit FalseServer(Answering answer);
    ~FalseServer();

    /// Where clients find it.
    ServerPlace Place() const;

    /// A message of the server, of that kind.
    static QByteArray Message(char kind, const QByteArray& content);
    /// The beginning of an answer with rows of one column of text.
    static QByteArray BeginningOfRows();
    /// A row with one value.
    static QByteArray Row(const QByteArray& value);
    /// The end of an answer and of what was sent together.
    static QByteArray EndOfAnswer(const QByteArray& tag);

private:
    void Serve();

    QTemporaryDir m_folder;
    Answering m_answer;
    std::unique_ptr<UnixListener> m_listener;
    std::thread m_thread;
};

} // namespace Orvane::Testing

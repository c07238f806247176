// SPDX-License-Identifier: MIT
#include "store/postgres/link/FalseServer.h"

#include <QtEndian>

namespace Orvane::Testing {

namespace {

QByteArray Int32(qint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray Int16(qint16 number)
{
    QByteArray bytes(2, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray Greeting()
{
    return FalseServer::Message('R', Int32(0))
        + FalseServer::Message('S', QByteArray("server_version\00015.0\0", 20))
        + FalseServer::Message('K', Int32(7) + Int32(7)) + FalseServer::Message('Z', "I");
}

// To a statement without rows, sent in a pipeline.
QByteArray PlainAnswer()
{
    return FalseServer::Message('1', {}) + FalseServer::Message('2', {}) + FalseServer::Message('n', {})
        + FalseServer::EndOfAnswer("SET");
}

} // namespace

FalseServer::FalseServer(Answering answer)
    : m_answer(std::move(answer)),
      m_listener(std::make_unique<UnixListener>(m_folder.filePath(QStringLiteral(".s.PGSQL.5432")))),
      m_thread([this] { Serve(); })
{
}

FalseServer::~FalseServer()
{
    m_listener->Shut();
    m_thread.join();
}

ServerPlace FalseServer::Place() const
{
    return {{}, {{"dbname", "postgres"}, {"host", m_folder.path().toUtf8()}, {"user", "orvane"}}};
}

QByteArray FalseServer::Message(char kind, const QByteArray& content)
{
    return kind + Int32(qint32(content.size()) + 4) + content;
}

QByteArray FalseServer::BeginningOfRows()
{
    constexpr qint32 TextType = 25;
    const QByteArray column
        = QByteArray("a\0", 2) + Int32(0) + Int16(0) + Int32(TextType) + Int16(-1) + Int32(-1) + Int16(0);
    return Message('1', {}) + Message('2', {}) + Message('T', Int16(1) + column);
}

QByteArray FalseServer::Row(const QByteArray& value)
{
    return Message('D', Int16(1) + Int32(qint32(value.size())) + value);
}

QByteArray FalseServer::EndOfAnswer(const QByteArray& tag)
{
    return Message('C', tag + '\0') + Message('Z', "I");
}

// Whoever comes later, such as a request to cancel, finds the door closed.
void FalseServer::Serve()
{
    if (auto client = m_listener->Accept()) {
        client->Read();
        client->Send(Greeting());
        client->Read();
        client->Send(PlainAnswer());
        client->Read();
        m_answer(*client);
    }
    while (m_listener->Accept()) { }
}

} // namespace Orvane::Testing

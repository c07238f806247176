// SPDX-License-Identifier: MIT
#include "store/postgres/link/LinkTest.h"
#include "support/UnixSocket.h"

#include <QTemporaryDir>
#include <QtEndian>

#include <gmock/gmock.h>
#include <thread>

namespace Orvane::Testing {

namespace {

using testing::HasSubstr;

// A message of PostgreSQL's protocol: its letter, its length and what it says.
QByteArray Message(char kind, const QByteArray& content)
{
    const quint32 size = qToBigEndian(quint32(content.size() + 4));
    return kind + QByteArray(reinterpret_cast<const char*>(&size), sizeof size) + content;
}

/// Something that lets everybody in as a server of that version does, and answers no statement.
class Doorman
{
public:
    explicit Doorman(const QByteArray& version)
        : m_listener(m_folder.filePath(QStringLiteral(".s.PGSQL.5432"))), m_thread([this, version] {
              while (auto client = m_listener.Accept()) {
                  client->Read();
                  client->Send(
                      Message('R', QByteArray(4, '\0'))
                      + Message('S', QByteArray("server_version") + '\0' + version + '\0')
                      + Message('K', QByteArray(8, '\1')) + Message('Z', "I"));
                  client->ReadToEnd();
              }
          })
    {
    }
    ~Doorman()
    {
        m_listener.Shut();
        m_thread.join();
    }
    Doorman(const Doorman&) = delete;
    Doorman& operator=(const Doorman&) = delete;

    QString Folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
    UnixListener m_listener;
    std::thread m_thread;
};

} // namespace

TEST(OldServerTest, IsRefusedByItsVersion)
{
    const Doorman server("12.9");
    const ServerPlace place{
        {}, {{"dbname", "postgres"}, {"host", server.Folder().toUtf8()}, {"user", "orvane"}}};
    WorkWatch watch;
    const auto error = RaisedBy([&] { ServerConnection::Connect(place, {}, watch); });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->Number(), int(ErrorNumber::DatabaseFailure));
    EXPECT_THAT(error->Description().toStdString(), HasSubstr("runs PostgreSQL 12.9."));
}

} // namespace Orvane::Testing

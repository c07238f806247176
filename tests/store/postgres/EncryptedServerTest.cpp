// SPDX-License-Identifier: MIT
#include "store/IChangeNews.h"
#include "store/postgres/OwnServerTest.h"
#include "support/Errors.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Orvane::Testing {

namespace {

using testing::HasSubstr;

const auto Failure = int(ErrorNumber::DatabaseFailure);

// A port of this machine that nobody listens on.
int FreePort()
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    EXPECT_EQ(bind(socket, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size), 0);
    close(socket);
    return ntohs(address.sin_port);
}

/// A server on the network, which has a certificate.
class EncryptedServerTest : public OwnServerTest
{
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable(QStringLiteral("openssl")).isEmpty())
            GTEST_SKIP() << "The program openssl, which makes certificates, is not installed.";
        OwnServerTest::SetUp();
        if (IsSkipped())
            return;
        MakeCertificate(File("right"), QStringLiteral("localhost"));
        MakeCertificate(File("wrong"), QStringLiteral("localhost"));
        m_port = FreePort();
    }

    QString File(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    // NAME.crt and NAME.key.
    static void MakeCertificate(const QString& name, const QString& host)
    {
        QProcess openssl;
        openssl.setProcessChannelMode(QProcess::MergedChannels);
        openssl.start(
            QStringLiteral("openssl"),
            {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days",
             "2", "-subj", "/CN=" + host, "-addext", "subjectAltName=DNS:" + host, "-keyout", name + ".key",
             "-out", name + ".crt"});
        ASSERT_TRUE(openssl.waitForFinished());
        ASSERT_EQ(openssl.exitCode(), 0) << openssl.readAll().constData();
    }
    // The server trusts only files of its own user.
    void GiveToServer(const QString& from, const char* name)
    {
        const QString to = m_server->Settings() + u'/' + QString::fromLatin1(name);
        ASSERT_TRUE(QFile::copy(from, to));
        struct stat folder {
        };
        ASSERT_EQ(stat(QFile::encodeName(m_server->Settings()).constData(), &folder), 0);
        const QByteArray file = QFile::encodeName(to);
        ASSERT_EQ(chown(file.constData(), folder.st_uid, folder.st_gid), 0);
        ASSERT_EQ(chmod(file.constData(), 0600), 0);
    }
    void Encrypt(const char* certificate)
    {
        GiveToServer(File(certificate) + QStringLiteral(".crt"), "server.crt");
        GiveToServer(File(certificate) + QStringLiteral(".key"), "server.key");
        Listen("ssl = on\n");
    }
    void Listen(const QByteArray& settings)
    {
        Configure("listen_addresses = '127.0.0.1'\nport = " + QByteArray::number(m_port) + '\n' + settings);
    }

    QString SafePlace(const char* host, const char* certificate) const
    {
        return QStringLiteral("postgresql://orvane@%1:%2/postgres?hostaddr=127.0.0.1&sslmode=verify-full"
                              "&sslrootcert=%3.crt&schema=Town")
            .arg(QString::fromLatin1(host), QString::number(m_port), File(certificate));
    }
    std::unique_ptr<PostgresLayerDatabase> OpenedSafely() const
    {
        return PostgresLayerDatabase::Open(SafePlace("localhost", "right"));
    }
    void ExpectRefused(const char* host, const char* certificate)
    {
        const auto error = RaisedBy([&] { PostgresLayerDatabase::Open(SafePlace(host, certificate)); });
        ASSERT_TRUE(error.has_value());
        EXPECT_EQ(error->Number(), Failure);
        EXPECT_THAT(error->Description().toStdString(), HasSubstr("secure connection"));
    }

private:
    QTemporaryDir m_folder;
    int m_port = 0;
};

} // namespace

TEST_F(EncryptedServerTest, ACertificateThatAnAuthorityOfTheUserSignedIsAccepted)
{
    Encrypt("right");
    const auto store = OpenedSafely();
    SetName(*store, "Roads");
    const auto rows = store->OpenQuery(
        QStringLiteral("SELECT CAST(ssl AS integer) AS s FROM pg_stat_ssl WHERE pid = pg_backend_pid()"));
    EXPECT_EQ(ToInt32(rows->Field("s")), 1);
}

TEST_F(EncryptedServerTest, ACertificateOfSomebodyElseIsRefused)
{
    Encrypt("wrong");
    ExpectRefused("localhost", "right");
}

TEST_F(EncryptedServerTest, ACertificateForAnotherNameIsRefused)
{
    Encrypt("right");
    ExpectRefused("maps.example.org", "right");
}

TEST_F(EncryptedServerTest, AServerThatDoesNotEncryptIsRefused)
{
    Listen({});
    ExpectRefused("localhost", "right");
}

TEST_F(EncryptedServerTest, NewsAndLongAnswersComeEncrypted)
{
    Encrypt("right");
    const auto store = OpenedSafely();
    const auto other = OpenedSafely();
    ForeignChange change;
    store->News()->SetListener({[&](const ForeignChange& told) { change = told; }, {}});
    SetName(*other, "Roads");
    EXPECT_TRUE(ComesAbout([&] { return change.layerIDs.contains(1); }));
    other->Execute(QStringLiteral("INSERT INTO Layers (LayerID, Name)"
                                  " SELECT i, repeat('x', 400) FROM generate_series(2, 20000) AS i"));
    EXPECT_TRUE(ComesAbout([&] { return change.all; }));
    const auto rows = store->OpenQuery(QStringLiteral("SELECT Name FROM Layers"));
    int count = 0;
    for (; !rows->AtEOF(); rows->MoveNext())
        ++count;
    EXPECT_EQ(count, 20000);
}

} // namespace Orvane::Testing

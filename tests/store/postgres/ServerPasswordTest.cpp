// SPDX-License-Identifier: MIT
#include "store/postgres/OwnServerTest.h"
#include "support/Errors.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::HasSubstr;
using testing::Not;

const auto Failure = int(ErrorNumber::DatabaseFailure);
const auto Lost = int(ErrorNumber::ConnectionLost);
const char* const Password = "green-Zebra-17";
const char* const WrongPassword = "blue-Zebra-16";

// The command lines of all programs of the machine.
QByteArray CommandLines()
{
    QByteArray lines;
    const QStringList folders = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString& name : folders) {
        QFile file(QStringLiteral("/proc/%1/cmdline").arg(name));
        if (file.open(QIODevice::ReadOnly))
            lines += file.readAll() + '\n';
    }
    return lines;
}

/// The role "kim" of a server that wants kim's password.
class ServerPasswordTest : public OwnServerTest
{
protected:
    void SetUp() override
    {
        OwnServerTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run("CREATE ROLE kim LOGIN SUPERUSER");
        GivePassword(Password);
        RequirePassword("kim");
    }
    void TearDown() override { qunsetenv("PGPASSFILE"); }

    void GivePassword(const QByteArray& password)
    {
        Owner().Run("SET log_statement = 'none'; ALTER ROLE kim PASSWORD '" + password + '\'');
    }
    // Writes a password where libpq looks for it.
    void KeepPassword(const QByteArray& password)
    {
        QFile file(m_folder.filePath(QStringLiteral("passwords")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("*:*:*:kim:" + password + '\n');
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        qputenv("PGPASSFILE", QFile::encodeName(file.fileName()));
    }
    void EndConnectionsOfKim()
    {
        Owner().Run("SELECT pg_terminate_backend(pid, 10000) FROM pg_stat_activity WHERE usename = 'kim'");
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ServerPasswordTest, OneThatLibpqFindsIsNotAskedFor)
{
    KeepPassword(Password);
    TypingUser user({});
    SetName(*Opened("kim", &user), "Roads");
    EXPECT_TRUE(user.wasWrongs.empty());
    EXPECT_EQ(StoredNames(), "Roads");
}

TEST_F(ServerPasswordTest, WithoutOneAndWithoutAnybodyToAskTheErrorSaysWhatIsRefused)
{
    const auto open = [this] { Opened("kim"); };
    EXPECT_EQ(ErrorOf(open), Failure);
    EXPECT_THAT(DescriptionOf(open).toStdString(), HasSubstr("refused the user or the password"));
    KeepPassword(WrongPassword);
    EXPECT_EQ(ErrorOf(open), Failure);
    EXPECT_THAT(DescriptionOf(open).toStdString(), HasSubstr("refused the user or the password"));
}

TEST_F(ServerPasswordTest, AUserWhoTypesNoneHasCancelled)
{
    TypingUser user({QString::fromLatin1(WrongPassword)});
    EXPECT_EQ(ErrorOf([&] { Opened("kim", &user); }), int(UserCancelled));
    EXPECT_EQ(user.wasWrongs, (std::vector<bool>{false, true}));
}

TEST_F(ServerPasswordTest, OneThatWasChangedBetweenTwoConnectionsIsAskedForAgain)
{
    KeepPassword(Password);
    TypingUser user({QStringLiteral("another")});
    const auto store = Opened("kim", &user);
    GivePassword("another");
    EndConnectionsOfKim();
    EXPECT_EQ(ErrorOf([&] { SetName(*store, "Roads"); }), Lost);
    EXPECT_EQ(ErrorOf([&] { SetName(*store, "Roads"); }), 0);
    EXPECT_EQ(user.wasWrongs.size(), 1U);
    EXPECT_EQ(StoredNames(), "Roads");
}

TEST_F(ServerPasswordTest, OneThatWasChangedIsNamedWhereNobodyCanBeAsked)
{
    KeepPassword(Password);
    const auto store = Opened("kim");
    GivePassword("another");
    EndConnectionsOfKim();
    EXPECT_EQ(ErrorOf([&] { SetName(*store, "Roads"); }), Lost);
    const QString text = DescriptionOf([&] { SetName(*store, "Roads"); });
    EXPECT_THAT(text.toStdString(), HasSubstr("refused the user or the password"));
}

TEST_F(ServerPasswordTest, NobodyIsToldOne)
{
    Configure("log_statement = 'all'\nlog_connections = on\nlog_min_messages = debug1\n");
    QString told;
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    {
        TypingUser user({QString::fromLatin1(WrongPassword), QString::fromLatin1(Password)});
        const auto store = Opened("kim", &user);
        store->SetQueryListener([&](const QString& sql) { told += sql; });
        SetName(*store, "Roads");
        told += store->Path() + QString::fromUtf8(CommandLines());
        const std::string title = Owner().Text(
            "SELECT string_agg(a::text, ' ') FROM pg_stat_activity AS a WHERE usename = 'kim'");
        told += QString::fromStdString(title);
        m_server->Stop();
        told += DescriptionOf([&] { SetName(*store, "Rivers"); });
        told += DescriptionOf([&] { SetName(*store, "Rivers"); });
    }
    m_server->Start();
    TypingUser forgetful(
        {QString::fromLatin1(WrongPassword), QString::fromLatin1(WrongPassword),
         QString::fromLatin1(WrongPassword)});
    told += DescriptionOf([&] { Opened("kim", &forgetful); });
    told += QString::fromUtf8(m_server->Log());
    const std::string written
        = testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr();
    EXPECT_THAT(told.toStdString(), HasSubstr("refused the user or the password"));
    EXPECT_THAT(told.toStdString(), HasSubstr("connection authorized: user=kim"));
    for (const char* password : {Password, WrongPassword}) {
        EXPECT_THAT(told.toStdString(), Not(HasSubstr(password)));
        EXPECT_THAT(written, Not(HasSubstr(password)));
    }
}

TEST_F(ServerPasswordTest, APlaceWithOneIsRefusedAndNotRepeated)
{
    const QString password = QString::fromLatin1(Password);
    for (const char* place :
         {"postgresql://kim:%1@localhost/postgres?schema=Town", "postgresql://localhost/?password=%1",
          "postgresql://kim:%1@localhost:port/postgres", "postgresql://localhost/?sslpassword=%1&schema=Town",
          "postgresql://localhost/?passwrd=%1"}) {
        const QString text
            = DescriptionOf([&] { PostgresLayerDatabase::Open(QString::fromLatin1(place).arg(password)); });
        EXPECT_FALSE(text.isEmpty()) << place;
        EXPECT_FALSE(text.contains(password)) << qPrintable(text);
    }
}

} // namespace Orvane::Testing

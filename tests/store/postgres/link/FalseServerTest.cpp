// SPDX-License-Identifier: MIT
// What a server does that means harm.
#include "store/postgres/link/FalseServer.h"

#include "store/StoreOptions.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerRowStream.h"
#include "store/shared/WorkWatch.h"
#include "support/Dice.h"
#include "support/Errors.h"
#include "support/ProcessorTime.h"

#include <QByteArrayList>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

using namespace std::chrono_literals;

constexpr int Megabyte = 1 << 20;

/// A client that takes a megabyte for an answer and waits half a second for it.
class FalseServerTest : public testing::Test
{
protected:
    static StoreOptions Careful()
    {
        StoreOptions options;
        options.answerTimeout = 500ms;
        options.longestAnswer = Megabyte;
        return options;
    }
    /// The error of a statement that is answered so, empty for none.
    QString ErrorAfter(const FalseServer::Answering& answer)
    {
        const FalseServer server(answer);
        return DescriptionOf(
            [&] { ServerConnection::Connect(server.Place(), Careful(), m_watch)->Run("SELECT 1"); });
    }
    /// The same with these bytes.
    QString ErrorAfter(const QByteArray& bytes)
    {
        return ErrorAfter([&](UnixSocket& client) { client.Send(bytes); });
    }
    /// What is said when such messages come again and again.
    QString ErrorOfEndless(const QByteArray& beginning, const QByteArray& message)
    {
        return ErrorAfter([&](UnixSocket& client) {
            client.Send(beginning);
            for (qint64 sent = 0; sent < 64LL * Megabyte; sent += message.size())
                client.Send(message);
        });
    }

private:
    const ProcessorTime m_time{20s};
    WorkWatch m_watch;
};

const QByteArray Many(1000, 'x');

} // namespace

TEST_F(FalseServerTest, AnAnswerIsReadAsThatOfAServer)
{
    const QByteArray answer
        = FalseServer::BeginningOfRows() + FalseServer::Row("7") + FalseServer::EndOfAnswer("SELECT 1");
    EXPECT_EQ(ErrorAfter(answer), QString());
}

TEST_F(FalseServerTest, RowsWithoutAnEndAreGivenUp)
{
    const QString error = ErrorOfEndless(FalseServer::BeginningOfRows(), FalseServer::Row(Many));
    EXPECT_TRUE(error.contains(QStringLiteral("memory"))) << qPrintable(error);
}

TEST_F(FalseServerTest, NoticesWithoutAnEndAreGivenUp)
{
    const QByteArray notice
        = FalseServer::Message('N', "SWARNING" + QByteArray(1, '\0') + 'M' + Many + QByteArray(2, '\0'));
    const QString error = ErrorOfEndless({}, notice);
    EXPECT_TRUE(error.contains(QStringLiteral("memory"))) << qPrintable(error);
}

TEST_F(FalseServerTest, NotificationsWithoutAnEndAreGivenUp)
{
    const QByteArray news = FalseServer::Message(
        'A', QByteArray(4, '\1') + "c" + QByteArray(1, '\0') + Many + QByteArray(1, '\0'));
    const QString error = ErrorOfEndless({}, news);
    EXPECT_TRUE(error.contains(QStringLiteral("memory"))) << qPrintable(error);
}

TEST_F(FalseServerTest, ALengthThatDoesNotComeIsNotWaitedFor)
{
    EXPECT_NE(ErrorAfter(FalseServer::BeginningOfRows() + QByteArray("D\x3f\xff\xff\xff\0\1", 7)), QString());
    EXPECT_NE(ErrorAfter(FalseServer::BeginningOfRows() + QByteArray("D\xff\xff\xff\xff\0\1", 7)), QString());
}

TEST_F(FalseServerTest, ARowThatDoesNotFitItsColumnsIsAnError)
{
    const QByteArray row = FalseServer::Message('D', QByteArray("\x7f\xff\0\0\0\1x", 7));
    EXPECT_NE(
        ErrorAfter(FalseServer::BeginningOfRows() + row + FalseServer::EndOfAnswer("SELECT 1")), QString());
}

TEST_F(FalseServerTest, AServerThatWantsRowsWhenNobodyHasSomeIsGivenUp)
{
    for (const char kind : {'G', 'H', 'W'}) {
        const QByteArray copy = FalseServer::Message(kind, QByteArray(3, '\0'));
        const QByteArray begin = FalseServer::Message('1', {}) + FalseServer::Message('2', {});
        EXPECT_NE(ErrorAfter(begin + copy), QString()) << kind;
    }
}

TEST_F(FalseServerTest, ALongErrorIsCut)
{
    const QByteArray zero(1, '\0');
    const QByteArray message = FalseServer::Message(
        'E', "SERROR" + zero + "C42601" + zero + 'M' + QByteArray(Megabyte / 2, 'x') + zero + zero);
    const QString error = ErrorAfter(message + FalseServer::Message('Z', "I"));
    EXPECT_TRUE(error.contains(QStringLiteral("xxx")));
    EXPECT_LT(error.size(), 2000);
}

TEST_F(FalseServerTest, AnswersInAnyOrderEnd)
{
    const QByteArray begin = FalseServer::BeginningOfRows();
    const QByteArrayList messages
        = {FalseServer::Message('1', {}),
           FalseServer::Message('2', {}),
           FalseServer::Message('3', {}),
           FalseServer::Message('n', {}),
           FalseServer::Message('s', {}),
           FalseServer::Message('I', {}),
           FalseServer::Message('Z', "I"),
           FalseServer::Message('Z', "T"),
           FalseServer::Message('Z', "E"),
           FalseServer::Message('c', {}),
           FalseServer::Message('G', QByteArray(3, '\0')),
           FalseServer::Row("7"),
           begin.mid(10),
           FalseServer::EndOfAnswer("SELECT 1"),
           QByteArray("?")};
    for (unsigned seed = 0; seed < 60; ++seed) {
        SCOPED_TRACE(seed);
        Dice dice(seed);
        QByteArray bytes;
        for (int count = dice.Below(12); count >= 0; --count)
            bytes += dice.OneOf(messages);
        ErrorAfter([&](UnixSocket& client) { // and no more comes
            client.Send(bytes);
            client = UnixSocket(Descriptor());
        });
    }
}

TEST_F(FalseServerTest, BytesThatAreNoMessagesEnd)
{
    for (unsigned seed = 0; seed < 60; ++seed) {
        SCOPED_TRACE(seed);
        Dice dice(seed);
        QByteArray bytes(1 + dice.Below(100), '\0');
        for (char& byte : bytes)
            byte = char(dice.Below(256));
        EXPECT_NE(
            ErrorAfter([&](UnixSocket& client) {
                client.Send(bytes);
                client = UnixSocket(Descriptor());
            }),
            QString());
    }
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "support/PrivateServer.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QUrl>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace Orvane::Testing {

namespace {

// The name of a socket may have 107 bytes.
QByteArray ParentFolder()
{
    const QByteArray usual = QFile::encodeName(QDir::tempPath());
    return usual.size() <= 60 ? usual : QByteArray("/tmp");
}

void ForgetSettingsOfLibpq()
{
    const QStringList names = QProcessEnvironment::systemEnvironment().keys();
    for (const QString& name : names) {
        if (name.startsWith(QLatin1String("PG")))
            qunsetenv(name.toUtf8().constData());
    }
}

} // namespace

PrivateServer::PrivateServer()
{
    ForgetSettingsOfLibpq();
    StartKeeper();
    m_folder = QFile::decodeName(NextLine());
    TakeState();
}

PrivateServer::~PrivateServer()
{
    close(m_orders);
    close(m_answers);
    if (m_keeper > 0)
        waitpid(m_keeper, nullptr, 0);
}

bool PrivateServer::IsInstalled()
{
    return *ORVANE_POSTGRESQL_PROGRAMS;
}

bool PrivateServer::IsRequired()
{
    return qEnvironmentVariableIsSet("ORVANE_REQUIRE_SERVER");
}

void PrivateServer::StartKeeper()
{
    std::array<int, 2> orders{-1, -1};
    std::array<int, 2> answers{-1, -1};
    ASSERT_EQ(pipe2(orders.data(), O_CLOEXEC), 0);
    ASSERT_EQ(pipe2(answers.data(), O_CLOEXEC), 0);
    QByteArray program = ORVANE_SERVER_KEEPER;
    QByteArray programs = ORVANE_POSTGRESQL_PROGRAMS;
    QByteArray parent = ParentFolder();
    const std::array<char*, 4> arguments{program.data(), programs.data(), parent.data(), nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, orders[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, answers[1], STDOUT_FILENO);
    EXPECT_EQ(posix_spawn(&m_keeper, program.constData(), &actions, nullptr, arguments.data(), environ), 0);
    posix_spawn_file_actions_destroy(&actions);
    close(orders[0]);
    close(answers[1]);
    m_orders = orders[1];
    m_answers = answers[0];
}

QByteArray PrivateServer::NextLine() const
{
    QByteArray line;
    char letter = 0;
    ssize_t count = 0;
    while ((count = read(m_answers, &letter, 1)) == 1 || (count < 0 && errno == EINTR)) {
        if (count == 1 && letter == '\n')
            break;
        if (count == 1)
            line += letter;
    }
    return line;
}

void PrivateServer::TakeState()
{
    const QByteArray state = NextLine();
    m_isRunning = state == "ready";
    EXPECT_TRUE(m_isRunning || state == "stopped") << "The server did not start.\n" << Log().constData();
}

void PrivateServer::Order(const char* line)
{
    EXPECT_EQ(write(m_orders, line, qstrlen(line)), ssize_t(qstrlen(line)));
    TakeState();
}

void PrivateServer::Restart()
{
    Stop();
    Start();
}

pid_t PrivateServer::Process() const
{
    QFile file(Settings() + QStringLiteral("/postmaster.pid"));
    return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed().toInt() : 0;
}

QByteArray PrivateServer::Connection(const QByteArray& role) const
{
    return "host=" + QFile::encodeName(m_folder) + " port=5432 dbname=postgres user=" + role;
}

QString PrivateServer::Place(const QString& schema, const QString& role) const
{
    const auto encoded
        = [](const QString& text) { return QString::fromLatin1(QUrl::toPercentEncoding(text)); };
    return QStringLiteral("postgresql:///postgres?host=%1&user=%2&schema=%3")
        .arg(encoded(m_folder), encoded(role), encoded(schema));
}

QByteArray PrivateServer::Log() const
{
    QFile file(m_folder + QStringLiteral("/log"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

PrivateServer& SharedServer()
{
    static PrivateServer server;
    return server;
}

} // namespace Orvane::Testing

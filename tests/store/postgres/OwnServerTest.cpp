// SPDX-License-Identifier: MIT
#include "store/postgres/OwnServerTest.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>

#include <thread>

namespace Orvane::Testing {

bool ComesAbout(const std::function<bool()>& isSo)
{
    const QDeadlineTimer end(30000);
    while (!isSo() && !end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return isSo();
}

std::optional<QString>
TypingUser::AskPassword(const QString& /*user*/, const QString& /*server*/, bool wasWrong)
{
    wasWrongs.push_back(wasWrong);
    return m_passwords.isEmpty() ? std::optional<QString>() : m_passwords.takeFirst();
}

void OwnServerTest::SetUp()
{
    if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
        GTEST_SKIP() << "PostgreSQL's server is not installed.";
    m_server = std::make_unique<PrivateServer>();
    PostgresLayerDatabase::Create(Place());
}

std::unique_ptr<PostgresLayerDatabase> OwnServerTest::Opened(const char* role, IServerLogin* login) const
{
    StoreOptions options;
    options.login = login;
    return PostgresLayerDatabase::Open(Place(role), OpenMode::ReadWrite, options);
}

std::string OwnServerTest::StoredNames() const
{
    return Owner().Text("SELECT string_agg(Name, ' ' ORDER BY LayerID) FROM \"Town\".Layers");
}

void OwnServerTest::RequirePassword(const QByteArray& role)
{
    QFile rules(m_server->Settings() + QStringLiteral("/pg_hba.conf"));
    ASSERT_TRUE(rules.open(QIODevice::ReadWrite));
    const QByteArray others = rules.readAll();
    rules.seek(0);
    rules.write("local all " + role + " scram-sha-256\n" + others);
    rules.close();
    const auto loaded = [this] { return Owner().Text("SELECT pg_conf_load_time()"); };
    const std::string before = loaded();
    Owner().Run("SELECT pg_reload_conf()");
    while (loaded() == before)
        std::this_thread::yield();
}

void OwnServerTest::Configure(const QByteArray& settings)
{
    QFile file(m_server->Settings() + QStringLiteral("/postgresql.conf"));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(settings);
    file.close();
    m_server->Restart();
}

void SetName(ILayerStore& store, const char* name, int layer)
{
    store.Execute(
        QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (?1, ?2)"
                       " ON CONFLICT (LayerID) DO UPDATE SET Name = ?2"),
        {layer, QString::fromLatin1(name)});
}

} // namespace Orvane::Testing

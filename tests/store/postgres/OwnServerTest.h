// SPDX-License-Identifier: MIT
#pragma once

#include "store/IServerLogin.h"
#include "store/postgres/PostgresLayerDatabase.h"
#include "store/postgres/RawLink.h"
#include "support/PrivateServer.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace Orvane::Testing {

/// Lets the event loop run until something is so; false if it does not become so.
bool ComesAbout(const std::function<bool()>& isSo);

/// A user who types one password after the other, and gives up at the end.
class TypingUser final : public IServerLogin
{
public:
    explicit TypingUser(const QStringList& passwords) : m_passwords(passwords) { }

    std::optional<QString> AskPassword(const QString& user, const QString& server, bool wasWrong) override;

    std::vector<bool> wasWrongs; ///< what was said at each question

private:
    QStringList m_passwords;
};

/// The map "Town" on a server of the test's own, which the test may stop and change. Skipped without one.
class OwnServerTest : public testing::Test
{
protected:
    void SetUp() override;

    QString Place(const char* role = "orvane") const
    {
        return m_server->Place(QStringLiteral("Town"), QString::fromLatin1(role));
    }
    std::unique_ptr<PostgresLayerDatabase> Opened(const char* role, IServerLogin* login = nullptr) const;
    /// Somebody else who may do everything.
    RawLink Owner() const { return RawLink(m_server->Connection()); }
    /// The names of the layers as they are stored, with blanks between them.
    std::string StoredNames() const;

    /// From now on the server wants that role's password.
    void RequirePassword(const QByteArray& role);
    /// Adds lines to the settings of the server, and starts it again.
    void Configure(const QByteArray& settings);

    std::unique_ptr<PrivateServer> m_server;
};

/// Gives a layer that name, and makes it before if it is not there.
void SetName(ILayerStore& store, const char* name, int layer = 1);

} // namespace Orvane::Testing

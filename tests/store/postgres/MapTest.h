// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"
#include "store/postgres/RawLink.h"
#include "store/postgres/link/QuotedName.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPlace.h"
#include "store/postgres/maps/MapSchema.h"
#include "store/shared/WorkWatch.h"
#include "support/PrivateServer.h"

#include <QString>

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace Orvane::Testing {

/// Scenarios on a map in the server of this program. Skipped without one.
class MapTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
        m_owner = std::make_unique<RawLink>(SharedServer().Connection());
        m_owner->RunTogether(MapSchema::Creation(m_schema, QStringLiteral("Town")));
        m_owner->Run("SET search_path = " + MapSchema::SearchPath(m_schema));
    }
    void TearDown() override
    {
        if (m_owner)
            m_owner->Run("DROP SCHEMA " + QuotedName(m_schema) + " CASCADE");
    }

    /// Another program that has the map open.
    std::unique_ptr<RawLink> Other(const QByteArray& role = "orvane") const
    {
        auto link = std::make_unique<RawLink>(SharedServer().Connection(role));
        link->Run("SET search_path = " + MapSchema::SearchPath(m_schema));
        return link;
    }
    /// The store's own kind of connection, to the map.
    std::unique_ptr<ServerConnection> Connected(const QString& role = QStringLiteral("orvane"))
    {
        const ServerPlace place = ServerPlace::FromText(SharedServer().Place(m_schema, role));
        auto connection = ServerConnection::Connect(place, {}, m_watch);
        connection->Run("SET search_path = " + MapSchema::SearchPath(m_schema));
        return connection;
    }
    /// The owner of the map.
    RawLink& Owner() const { return *m_owner; }
    /// The OID of the map's schema.
    quint32 Map() const
    {
        const std::string oid = Owner().Text("SELECT oid FROM pg_namespace WHERE nspname = current_schema()");
        return quint32(std::stoul(oid));
    }

    const QString m_schema = QStringLiteral("Town's \"Map\"");

private:
    WorkWatch m_watch;
    std::unique_ptr<RawLink> m_owner;
};

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "store/postgres/PostgresLayerDatabase.h"
#include "store/postgres/RawLink.h"
#include "store/postgres/RoundTrips.h"
#include "store/postgres/link/ServerPlace.h"
#include "store/postgres/maps/MapSchema.h"
#include "support/PrivateServer.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace Orvane::Testing {

/// Scenarios with a host on a map of 5,000 layers in groups of 50, in the server of this program. Group 1,000
/// holds the layers 1 to 1,000. Skipped without a server.
class ServerMapTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        const QString place = SharedServer().Place(QLatin1String(test.name()));
        m_store = PostgresLayerDatabase::Create(place);
        RawLink filler(SharedServer().Connection());
        filler.Run("SET search_path = " + MapSchema::SearchPath(ServerPlace::FromText(place).schema));
        Fill(filler);
        m_client = std::make_unique<StandardClient>(*m_store, m_services);
    }

    int RoundTripsOf(const std::function<void()>& act) const { return Testing::RoundTripsOf(*m_store, act); }

    static constexpr qint32 LargeGroup = 1000;
    StandardShellServices m_services;
    std::unique_ptr<PostgresLayerDatabase> m_store;
    std::unique_ptr<StandardClient> m_client;

private:
    static void Fill(RawLink& filler)
    {
        filler.Run("INSERT INTO Layers (LayerID, Name, Code)"
                   " SELECT n, 'Layer ' || n, n % 1000 FROM generate_series(1, 5000) AS n");
        filler.Run("INSERT INTO LayerGroups (ID, Name, GroupOrdering)"
                   " SELECT n, 'Group ' || n, n FROM generate_series(1, 100) AS n");
        filler.Run("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering)"
                   " SELECT (n + 49) / 50, n, n FROM generate_series(1, 5000) AS n");
        filler.Run("INSERT INTO LayerGroups (ID, Name, GroupOrdering) VALUES (1000, 'Large', 1000)");
        filler.Run("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering)"
                   " SELECT 1000, n, n FROM generate_series(1, 1000) AS n");
        filler.Run("ANALYZE");
    }
};

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/shared/WorkWatch.h"
#include "support/Errors.h"
#include "support/PrivateServer.h"

#include <gtest/gtest.h>
#include <memory>

namespace Orvane::Testing {

/// Scenarios with connections to the server of this program. Skipped without one.
class LinkTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
    }

    /// The server itself, as the role that may do everything, through the socket in that folder.
    static ServerPlace PlaceIn(const QString& folder)
    {
        return {{}, {{"dbname", "postgres"}, {"host", folder.toUtf8()}, {"user", "orvane"}}};
    }
    std::unique_ptr<ServerConnection> Connected(const StoreOptions& options = {})
    {
        return ServerConnection::Connect(PlaceIn(SharedServer().Folder()), options, m_watch);
    }

    WorkWatch m_watch;
};

} // namespace Orvane::Testing

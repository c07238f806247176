// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/document/MapDocument.h"
#include "shell/servers/ServerPasswords.h"
#include "shell/servers/ServerSettings.h"
#include "store/opening/ServerMaps.h"
#include "support/PrivateServer.h"

#include <QSettings>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace Orvane::Testing {

/// Scenarios with a server that is remembered and has the map "Town". Skipped without PostgreSQL's server.
class ServerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
        QSettings().clear();
        m_server = ServerMaps::ServerOf(SharedServer().Place("x"));
        ServerSettings::AddServer(m_server);
        ServerSettings::SetLastServer(m_server);
        MakeMap("Town");
    }
    void TearDown() override
    {
        if (m_server.isEmpty())
            return;
        for (const ListedMap& map : ServerMaps::List(m_server, {}))
            ServerMaps::Remove(PlaceOf(map.name), {});
    }

    QString PlaceOf(const QString& map) const { return ServerMaps::PlaceOf(m_server, map); }
    void MakeMap(const QString& name) const { MapDocument::Make(PlaceOf(name), IfExists::Refuse); }

    QString m_server;
    QWidget m_window;
    ServerPasswords m_passwords{m_window};
};

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "benchmarks/server/ServerMap.h"

#include "store/postgres/PostgresLayerDatabase.h"
#include "store/postgres/RawLink.h"
#include "store/postgres/maps/MapSchema.h"
#include "support/CuttingProxy.h"
#include "support/PrivateServer.h"

#include <set>

namespace Orvane::Benchmarks {

namespace {

using namespace std::chrono_literals;
using Testing::SharedServer;

const Testing::CuttingProxy& FarNetwork()
{
    static Testing::CuttingProxy proxy(SharedServer().Socket());
    static const bool isSlow = [] {
        proxy.SetDelay(20ms);
        return true;
    }();
    Q_UNUSED(isSlow)
    return proxy;
}

} // namespace

void ServerMap::Fill() const
{
    PostgresLayerDatabase::Create(SharedServer().Place(Schema()));
    Testing::RawLink link(SharedServer().Connection());
    const QByteArray layers = QByteArray::number(m_layers);
    const QByteArray groups = QByteArray::number(m_layers / 50);
    link.Run(SearchPath());
    link.Run(
        "INSERT INTO Layers (LayerID, Name, Code, Color, FillForeColor, MinVisScale, MaxVisScale,"
        " Priority, OverrideMode) SELECT n, 'Water mains ' || n * 7919 % 100000 || ' of sheet ' || n,"
        " n % 1000, 255, 65280, 500.5, 25000, 3, CASE n % 10 WHEN 0 THEN 1 ELSE 0 END"
        " FROM generate_series(1, "
        + layers + ") AS n");
    link.Run(
        "INSERT INTO LayerGroups (ID, Name, GroupOrdering, Pseudo)"
        " SELECT n, 'Group ' || n, n, FALSE FROM generate_series(1, "
        + groups + ") AS n");
    link.Run("INSERT INTO LayerGroups (ID, Name, GroupOrdering, Pseudo)"
             " VALUES (1001000, 'Large', 1001000, TRUE)");
    link.Run(
        "INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering)"
        " SELECT (n + 49) / 50, n, n FROM generate_series(1, "
        + layers + ") AS n");
    link.Run(
        "INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering)"
        " SELECT 1001000, 1 + n * 97 % "
        + layers + ", n FROM generate_series(1, 1000) AS n");
    link.Run("VACUUM ANALYZE");
}

void ServerMap::EnsureFilled() const
{
    static std::set<int> filled;
    if (filled.insert(m_layers).second)
        Fill();
}

QString ServerMap::Schema() const
{
    return QStringLiteral("Benchmark%1").arg(m_layers);
}

QString ServerMap::Folder() const
{
    EnsureFilled();
    return m_distance == Distance::Far ? FarNetwork().Folder() : SharedServer().Folder();
}

QString ServerMap::Place() const
{
    return QStringLiteral("postgresql://orvane@/postgres?host=%1&schema=%2").arg(Folder(), Schema());
}

QByteArray ServerMap::Connection() const
{
    return "host='" + Folder().toUtf8() + "' user=orvane dbname=postgres";
}

QByteArray ServerMap::SearchPath() const
{
    return "SET search_path = " + MapSchema::SearchPath(Schema());
}

} // namespace Orvane::Benchmarks

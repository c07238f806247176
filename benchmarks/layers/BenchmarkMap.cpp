// SPDX-License-Identifier: MIT
#include "benchmarks/layers/BenchmarkMap.h"

#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/Transaction.h>

#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <random>

namespace Orvane::Benchmarks {

namespace {

constexpr int GroupSize = 50;
constexpr qint32 FirstPseudoGroup = 1'000'000;
constexpr std::array Words
    = {"Roads", "Rivers", "parcels", "Buildings", "contours", "Water mains", "Cables", "Trees", "borders"};

QString NameOfLayer(int id, std::mt19937& random)
{
    return QStringLiteral("%1 %2 of sheet %3")
        .arg(QLatin1String(Words[random() % Words.size()]))
        .arg(random() % 100000)
        .arg(id);
}

void AddLayers(SqliteLayerDatabase& map, int layerCount)
{
    std::mt19937 random(20);
    const auto sql = QStringLiteral(
        "INSERT INTO Layers (LayerID, Name, Code, Color, FillForeColor, MinVisScale, MaxVisScale, Priority,"
        " OverrideMode) VALUES (?1, ?2, ?3, 255, 65280, 500.5, 25000, 3, ?4)");
    for (int id = 1; id <= layerCount; ++id)
        map.Execute(sql, {id, NameOfLayer(id, random), id % 1000, id % 10 == 0 ? 1 : 0});
}

void AddGroup(SqliteLayerDatabase& map, qint32 id, bool pseudo, int firstLayer, int memberCount)
{
    map.Execute(
        QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering, Pseudo) VALUES (?1, ?2, ?1, ?3)"),
        {id, QStringLiteral("Group %1").arg(id), pseudo});
    const auto sql = QStringLiteral("INSERT INTO LayerGroupMembers VALUES (?1, ?2, ?3)");
    for (int i = 0; i < memberCount; ++i)
        map.Execute(sql, {id, firstLayer + i, i});
}

void Fill(SqliteLayerDatabase& map, int layerCount)
{
    Transaction transaction(map);
    AddLayers(map, layerCount);
    for (int first = 1, group = 1; first <= layerCount; first += GroupSize, ++group)
        AddGroup(map, group, false, first, GroupSize);
    for (const int memberCount : {GroupSize, 1000, 10000, 100000}) {
        if (memberCount <= layerCount)
            AddGroup(map, GroupOf(memberCount), true, 1, memberCount);
    }
    transaction.Commit();
}

} // namespace

QString BenchmarkMap(int layerCount)
{
    static const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("%1.ovl").arg(layerCount));
    if (!QFile::exists(path))
        Fill(*SqliteLayerDatabase::Create(path), layerCount);
    return path;
}

qint32 GroupOf(int memberCount)
{
    return FirstPseudoGroup + memberCount;
}

} // namespace Orvane::Benchmarks

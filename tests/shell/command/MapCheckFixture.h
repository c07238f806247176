// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/schemes/LayerSchemes.h"
#include "mapkit/DataFolder.h"
#include "mapkit/RawDatabase.h"
#include "mapkit/document/MapDocument.h"
#include "shell/command/MapCheck.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <gmock/gmock.h>

namespace Orvane::Testing {

/// A map file with two layers of data in a group, and two schemes.
class MapCheckFixture : public testing::Test
{
protected:
    MapCheckFixture()
    {
        const auto document = MapDocument::Create(m_map);
        const qint32 groupID = document->AddGroup("Group", true);
        for (const char* name : {"a", "b"}) {
            NewLayer layer;
            layer.name = name;
            layer.path = m_folder.WriteSquare(name + QString(".geojson"));
            layer.ogrLayer = name;
            document->AddMember(groupID, document->AddLayer(layer));
        }
        LayerSchemes(document->Database()).Create("Night");
    }

    // So many that checking them takes more steps than SQLite makes between two looks at the clock.
    void AddManyLayers() const
    {
        RawDatabase(m_map).Run(
            "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000)"
            " INSERT INTO Layers (Name) SELECT 'many' FROM n");
    }

    std::vector<MapProblem::Kind> Kinds(const std::vector<MapProblem>& problems) const
    {
        std::vector<MapProblem::Kind> kinds;
        for (const MapProblem& problem : problems)
            kinds.push_back(problem.kind);
        return kinds;
    }

    int Count(const char* table) const
    {
        const auto database = SqliteLayerDatabase::Open(m_map, OpenMode::ReadOnly);
        return ToInt32(database->OpenQuery(QString("SELECT count(*) AS N FROM ") + table)->Field("N"));
    }

    QByteArray Bytes() const
    {
        QFile file(m_map);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    DataFolder m_folder;
    const QString m_map = m_folder.Path("map.orvane");
};

} // namespace Orvane::Testing

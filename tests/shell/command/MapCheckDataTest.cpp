// SPDX-License-Identifier: MIT
// What a check of a map says about its data.
#include "mapkit/DataFolder.h"
#include "mapkit/document/MapDocument.h"
#include "shell/command/MapCheck.h"

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class MapCheckDataTest : public testing::Test
{
protected:
    MapCheckDataTest()
    {
        m_folder.WriteSquare("a.geojson");
        MapDocument::Create(m_map);
    }

    DataFolder m_folder;
    const QString m_map = m_folder.Path("map.orvane");
};

} // namespace

TEST_F(MapCheckDataTest, ATableWithoutTheColumnsOfTheMapIsNamed)
{
    NewLayer towns;
    towns.path = m_folder.Write("towns.csv", "name,lon,lat\nA,13,52\n");
    towns.ogrLayer = "towns";
    towns.choice.columns = {"Lon", "lat", {}};
    MapDocument::Open(m_map)->AddLayer(towns);
    EXPECT_TRUE(CheckMap(m_map).empty());
    m_folder.Write("towns.csv", "name,x,lat\nA,13,52\n");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].kind, MapProblem::Kind::UnreadableData);
    EXPECT_TRUE(problems[0].text.contains("\"Lon\"")) << qPrintable(problems[0].text);
    EXPECT_TRUE(problems[0].text.contains(towns.path)) << qPrintable(problems[0].text);
}

TEST_F(MapCheckDataTest, EachLayerOfAFileWithAnUnknownSystemIsNamedOnce)
{
    const auto document = MapDocument::Open(m_map);
    for (const FeatureKind kind : {FeatureKind::Point, FeatureKind::Area}) {
        NewLayer part;
        part.path = m_folder.Path("a.geojson");
        part.ogrLayer = "plan";
        part.system = "EPSG:0";
        part.choice.kinds = {kind};
        document->AddLayer(part);
    }
    NewLayer whole;
    whole.path = m_folder.Path("a.geojson");
    whole.ogrLayer = "a";
    whole.system = "EPSG:0";
    document->AddLayer(whole);
    QStringList texts;
    for (const MapProblem& problem : CheckMap(m_map)) {
        if (problem.text.contains("EPSG:0"))
            texts << problem.text;
    }
    ASSERT_EQ(texts.size(), 2) << qPrintable(texts.join(' '));
    EXPECT_TRUE(texts[0].contains("a.geojson (plan)"));
    EXPECT_TRUE(texts[1].contains(m_folder.Path("a.geojson") + '"'));
}

} // namespace Orvane

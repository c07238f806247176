// SPDX-License-Identifier: MIT
#include "shell/command/ListCommand.h"

#include "mapkit/RasterFile.h"
#include "shell/command/CommandFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Orvane {

using namespace Testing;

using ListCommandTest = CommandFixture;

TEST_F(ListCommandTest, EachLayerHasItsFeaturesAndExtent)
{
    EXPECT_EQ(Run({"list", MakeMap("map.orvane")}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_EQ(m_out, "EPSG:4326\nSquare: features 1, extent 0 0 10 10\n");
}

TEST_F(ListCommandTest, JsonHasTheSameForScripts)
{
    EXPECT_EQ(Run({"list", "--json", MakeMap("map.orvane")}), ExitCode::Done);
    const QJsonObject map = QJsonDocument::fromJson(m_out.toUtf8()).object();
    EXPECT_EQ(map["system"].toString(), "EPSG:4326");
    const QJsonObject layer = map["layers"].toArray().first().toObject();
    EXPECT_EQ(layer["name"].toString(), "Square");
    EXPECT_EQ(layer["features"].toInt(), 1);
    EXPECT_EQ(layer["extent"].toArray(), (QJsonArray{0, 0, 10, 10}));
}

TEST_F(ListCommandTest, ARasterHasItsPixels)
{
    const QString photo = m_folder.Path("photo.tif");
    WriteRaster(photo, {.width = 50, .bands = 3}, [](int, int, int) { return 1; });
    const QString map = m_folder.Path("rasters.orvane");
    ASSERT_EQ(Run({"import", photo, "--to", map, "--map-crs", "EPSG:4326"}), ExitCode::Done);
    m_out.clear();
    EXPECT_EQ(Run({"list", map}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_EQ(m_out, "EPSG:4326\nphoto: raster of 50 x 100 pixels, extent 0 0 5 10\n");
    m_out.clear();
    EXPECT_EQ(Run({"list", "--json", map}), ExitCode::Done);
    const QJsonObject layer = QJsonDocument::fromJson(m_out.toUtf8())["layers"][0].toObject();
    EXPECT_EQ(layer["raster"], (QJsonObject{{"width", 50}, {"height", 100}, {"bands", 3}}));
}

TEST_F(ListCommandTest, ALayerWithoutItsDataIsReportedAndTheOthersAreListed)
{
    const QString map = MakeMap("map.orvane");
    QFile::remove(m_folder.Path("square.geojson"));
    EXPECT_EQ(Run({"list", map}), ExitCode::Problems);
    EXPECT_TRUE(m_out.contains("Square: features 0")) << m_out.toStdString();
    EXPECT_TRUE(m_errors.contains("square.geojson")) << m_errors.toStdString();
}

TEST_F(ListCommandTest, AMapIsNeeded)
{
    EXPECT_EQ(Run({"list"}), ExitCode::Usage);
    EXPECT_EQ(Run({"list", m_folder.Path("none.orvane")}), ExitCode::Problems);
}

} // namespace Orvane

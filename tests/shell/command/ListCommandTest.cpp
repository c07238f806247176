// SPDX-License-Identifier: MIT
#include "shell/command/ListCommand.h"

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

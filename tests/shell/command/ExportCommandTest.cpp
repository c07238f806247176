// SPDX-License-Identifier: MIT
#include "shell/command/ExportCommand.h"

#include "hostkit/schemes/LayerSchemes.h"
#include "mapkit/RasterFile.h"
#include "shell/command/CommandFixture.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <QDir>
#include <QImage>

namespace Orvane {

using namespace Testing;

namespace {

class ExportCommandTest : public CommandFixture
{
protected:
    /// The picture that an export of the bare map makes.
    QImage Exported(const QString& map, const QStringList& more = {})
    {
        const QString file = m_folder.Path("map.png");
        EXPECT_EQ(
            Run(QStringList{map, "--export", file, "--map-only", "--size", "200x200px"} + more),
            ExitCode::Done)
            << m_errors.toStdString();
        return QImage(file);
    }

    /// A map whose layer is red, and green in the scheme "Night".
    QString MapWithSchemes()
    {
        const QString path = MakeMap("map.orvane", 0x00FF00);
        const auto document = MapDocument::Open(path);
        LayerSchemes schemes(document->Database());
        schemes.Create("Night");
        document->Database().Execute("UPDATE Layers SET FillForeColor = 255");
        schemes.Create("Day");
        return path;
    }
};

} // namespace

TEST_F(ExportCommandTest, ThePictureShowsTheMapInTheSizeAskedFor)
{
    const QImage image = Exported(MakeMap("map.orvane"));
    EXPECT_EQ(image.size(), QSize(200, 200));
    EXPECT_EQ(image.pixelColor(100, 100), QColor(Qt::red));
    EXPECT_TRUE(m_errors.isEmpty());
}

TEST_F(ExportCommandTest, EachFormatIsWritten)
{
    const QString map = MakeMap("map.orvane");
    for (const char* name : {"map.pdf", "map.svg", "map.png"}) {
        EXPECT_EQ(Run({map, "--export", m_folder.Path(name)}), ExitCode::Done) << m_errors.toStdString();
        EXPECT_GT(Content(m_folder.Path(name)).size(), 500) << name;
    }
}

TEST_F(ExportCommandTest, ASchemeIsDrawnAndTheMapFileStaysAsItIs)
{
    const QString map = MapWithSchemes();
    const QByteArray before = Content(map);
    EXPECT_EQ(Exported(map).pixelColor(100, 100), QColor(Qt::red));
    EXPECT_EQ(Exported(map, {"--scheme", "Night"}).pixelColor(100, 100), QColor(Qt::green));
    EXPECT_EQ(Exported(map).pixelColor(100, 100), QColor(Qt::red));
    EXPECT_EQ(Content(map), before);
}

TEST_F(ExportCommandTest, AnUnknownSchemeIsAProblemThatIsNamed)
{
    const QString file = m_folder.Path("map.png");
    EXPECT_EQ(Run({MapWithSchemes(), "--export", file, "--scheme", "Dusk"}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("Dusk")) << m_errors.toStdString();
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(ExportCommandTest, AMapIsExportedFromWhereNothingCanBeWritten)
{
    const QString map = MakeMap("map.orvane");
    QFile::setPermissions(map, QFile::ReadOwner);
    EXPECT_EQ(Exported(map).pixelColor(100, 100), QColor(Qt::red));
    EXPECT_EQ(QDir(m_folder.Path("")).entryList({"map.orvane*"}, QDir::Files), QStringList("map.orvane"));
}

TEST_F(ExportCommandTest, TheScaleIsKept)
{
    const QString map = MakeMap("map.orvane");
    const QImage image = Exported(map, {"--scale", "100000000", "--resolution", "254"});
    int red = 0;
    for (int x = 0; x < image.width(); ++x)
        red += image.pixelColor(x, 100) == QColor(Qt::red) ? 1 : 0;
    EXPECT_NEAR(red, 111, 2) << "1,113 km at 1:100,000,000, ten dots a millimetre";
}

TEST_F(ExportCommandTest, ValuesThatMakeNoSenseAreUsageErrors)
{
    const QString map = MakeMap("map.orvane");
    for (const QStringList& option :
         {QStringList{"--scale", "0"},
          {"--scale", "x"},
          {"--scale", "-5"},
          {"--size", "A12"},
          {"--size", "0x5px"},
          {"--resolution", "1"},
          {"--resolution", "1e9"},
          {"--scale", "nan"}}) {
        EXPECT_EQ(Run(QStringList{map, "--export", m_folder.Path("map.png")} + option), ExitCode::Usage)
            << option.join(' ').toStdString();
        EXPECT_FALSE(m_errors.isEmpty());
    }
}

TEST_F(ExportCommandTest, WhatIsNoMapIsAProblem)
{
    EXPECT_EQ(Run({m_folder.Path("none.orvane"), "--export", m_folder.Path("a.pdf")}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("none.orvane")) << m_errors.toStdString();
    EXPECT_EQ(
        Run({m_folder.Write("text.orvane", "x"), "--export", m_folder.Path("a.pdf")}), ExitCode::Problems);
}

TEST_F(ExportCommandTest, FeaturesAndRastersThatWereMovedAlongWithTheMapAreDrawn)
{
    QDir(m_folder.Path("")).mkpath("old/data");
    const QString picture = m_folder.Path("old/data/green.tif");
    WriteRaster(picture, {.bands = 3}, [](int, int, int band) { return band == 2 ? 255 : 0; });
    {
        const auto document = MapDocument::Open(MakeMap("old/map.orvane"));
        LayerSource source = document->Sources().at(0);
        source.path = m_folder.WriteSquare("old/data/square.geojson", 5);
        document->SetSource(source);
        NewLayer raster = NewLayer::OfRaster();
        raster.name = "green";
        raster.path = picture;
        document->AddLayer(raster);
    }
    ASSERT_TRUE(QFile::rename(m_folder.Path("old"), m_folder.Path("new")));
    const QImage image = Exported(m_folder.Path("new/map.orvane"));
    EXPECT_EQ(image.pixelColor(100, 100), QColor(Qt::red)) << m_errors.toStdString();
    const QRgb beside = image.pixel(40, 100);
    EXPECT_GT(qGreen(beside), qRed(beside)) << "the raster, which the square only half covers";
    EXPECT_TRUE(m_errors.isEmpty()) << m_errors.toStdString();
}

TEST_F(ExportCommandTest, DataThatAreGoneAreToldAndTheRestIsDrawn)
{
    const QString map = MakeMap("map.orvane");
    QFile::remove(m_folder.Path("square.geojson"));
    EXPECT_EQ(Run({map, "--export", m_folder.Path("map.png")}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("square.geojson")) << m_errors.toStdString();
    EXPECT_TRUE(QFile::exists(m_folder.Path("map.png")));
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerFixture.h"
#include "samples/BgrColour.h"

#include <QFile>
#include <QTemporaryDir>
#include <qgsgeometry.h>
#include <qgslayertree.h>
#include <qgsmaprenderersequentialjob.h>
#include <qgsmapsettings.h>

namespace Orvane {

namespace {

constexpr int Side = 240; // pixels, of the map image

constexpr double ScreenDots = 96; // per inch

const char* const Collection = R"({"type": "FeatureCollection",
 "crs": {"type": "name", "properties": {"name": "urn:ogc:def:crs:EPSG::3857"}},
 "features": [{"type": "Feature", "properties": {"people": 1}, "geometry": %1}]})";

class ReopenedProject : public Testing::LayerFixture
{
protected:
    // A layer of one feature in a file, because a project saves no layers in memory.
    QgsVectorLayer& AddFile(const char* name, const char* geometry)
    {
        const QString path = m_folder.filePath(QString::fromLatin1(name) + QStringLiteral(".geojson"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        const QString shape = QgsGeometry::fromWkt(QString::fromLatin1(geometry)).asJson();
        file.write(QString::fromLatin1(Collection).arg(shape).toUtf8());
        file.close();
        auto* layer = new QgsVectorLayer(path, QString::fromLatin1(name), QStringLiteral("ogr"));
        EXPECT_TRUE(layer->isValid());
        project.addMapLayer(layer);
        return *layer;
    }

    void SaveAndReopen()
    {
        const QString path = m_folder.filePath(QStringLiteral("town.qgz"));
        ASSERT_TRUE(project.write(path));
        project.clear();
        ASSERT_TRUE(project.read(path));
    }

    QgsMapLayer& Named(const char* name) { return *project.mapLayersByName(QString::fromLatin1(name)).at(0); }

    QImage Map(double dotsPerInch = ScreenDots)
    {
        QgsMapSettings settings;
        settings.setLayers(project.layerTreeRoot()->checkedLayers());
        settings.setDestinationCrs(QgsCoordinateReferenceSystem(QStringLiteral("EPSG:3857")));
        settings.setExtent(QgsRectangle(0, 0, 100, 100));
        settings.setOutputSize(QSize(Side, Side) * (dotsPerInch / ScreenDots));
        settings.setOutputDpi(dotsPerInch);
        settings.setBackgroundColor(Qt::white);
        QgsMapRendererSequentialJob job(settings);
        job.start();
        job.waitForFinished();
        return job.renderedImage();
    }

private:
    QTemporaryDir m_folder;
};

const char* const Square = "POLYGON((10 10, 90 10, 90 90, 10 90, 10 10))";

} // namespace

TEST_F(ReopenedProject, HasEveryValueThatWasWritten)
{
    QgsVectorLayer& layer = AddFile("Parcels", Square);
    Set(layer, "Code", 12);
    Set(layer, "Selectable", false);
    Set(layer, "Hitable", false);
    Set(layer, "locked", true);
    Set(layer, "Color", qint32(quint32(Bgr(0x00FF00)) | 0xFF000000U));
    Set(layer, "FillForeColor", Bgr(0xFF0000));
    Set(layer, "FillBackColor", Bgr(0x0000FF));
    Set(layer, "FillStyle", 15);
    Set(layer, "OutlineStyle", 8);
    Set(layer, "LineThickness", 2);
    Set(layer, "MinVisScale", 10.0);
    Set(layer, "MaxVisScale", 9000.0);
    Set(layer, "Visible", false);
    Set(layer, "OverrideMode", 1);
    const LayerValues before = ReadLayer(layer, project);
    ASSERT_NO_FATAL_FAILURE(SaveAndReopen());
    const LayerValues after = ReadLayer(Named("Parcels"), project);
    for (std::size_t i = 0; i < before.size(); ++i)
        EXPECT_TRUE(before[i].IsIdenticalTo(after[i])) << LayerColumns[i].name;
    Set(Named("Parcels"), "OverrideMode", 0);
    EXPECT_DOUBLE_EQ(Named("Parcels").opacity(), 1);
}

TEST_F(ReopenedProject, DrawsEveryFillStyleAsBefore)
{
    AddFile("Parcels", Square);
    for (qint32 style = 0; style <= 31; ++style) {
        Set(Named("Parcels"), "FillForeColor", Bgr(0xC02020));
        Set(Named("Parcels"), "FillBackColor", Bgr(0x2020C0));
        Set(Named("Parcels"), "FillStyle", style);
        const QImage before = Map();
        ASSERT_NO_FATAL_FAILURE(SaveAndReopen());
        EXPECT_EQ(Map(), before) << style;
        EXPECT_TRUE(Get(Named("Parcels"), "FillStyle").IsIdenticalTo(style));
    }
}

TEST_F(ReopenedProject, DrawsEveryLineStyleAsBefore)
{
    AddFile("Roads", "LINESTRING(5 5, 95 40, 20 95)");
    AddFile("Parcels", Square);
    for (qint32 style = 0; style <= 15; ++style) {
        for (const char* name : {"Roads", "Parcels"}) {
            Set(Named(name), "LineThickness", -2);
            Set(Named(name), "OutlineStyle", style);
        }
        const QImage before = Map();
        ASSERT_NO_FATAL_FAILURE(SaveAndReopen());
        EXPECT_EQ(Map(), before) << style;
        EXPECT_TRUE(Get(Named("Roads"), "OutlineStyle").IsIdenticalTo(style));
    }
}

TEST_F(ReopenedProject, NoTwoLineStylesLookAlike)
{
    QgsVectorLayer& layer = AddFile("Roads", "LINESTRING(0 50, 100 50)");
    std::vector<QImage> images;
    images.reserve(16);
    for (qint32 style = 0; style <= 15; ++style) {
        Set(layer, "LineThickness", -2);
        Set(layer, "OutlineStyle", style);
        const QImage image = Map();
        for (const QImage& other : images)
            EXPECT_NE(image, other) << style;
        images.push_back(image);
    }
}

TEST_F(ReopenedProject, APatternShowsItsTwoColoursOnly)
{
    QgsVectorLayer& layer = AddFile("Parcels", "POLYGON((-99 -99, 199 -99, 199 199, -99 199, -99 -99))");
    Set(layer, "FillForeColor", Bgr(0xFF0000));
    Set(layer, "FillBackColor", Bgr(0x0000FF));
    Set(layer, "FillStyle", 31);
    const QImage image = Map();
    int fore = 0;
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x) {
            fore += image.pixelColor(x, y) == QColor(Qt::red);
            EXPECT_TRUE(
                image.pixelColor(x, y) == QColor(Qt::red) || image.pixelColor(x, y) == QColor(Qt::blue))
                << x << ' ' << y << ' ' << qPrintable(image.pixelColor(x, y).name());
            if (testing::Test::HasFailure())
                return;
        }
    }
    EXPECT_EQ(fore, Side * Side / 2);
}

TEST_F(ReopenedProject, APatternIsAsLargeOnPaperAsOnTheScreen)
{
    QgsVectorLayer& layer = AddFile("Parcels", "POLYGON((-99 -99, 199 -99, 199 199, -99 199, -99 -99))");
    Set(layer, "FillForeColor", Bgr(0xFF0000));
    Set(layer, "FillBackColor", Bgr(0x0000FF));
    Set(layer, "FillStyle", 31);
    const QImage image = Map(300);
    int edges = 0;
    for (int x = 1; x < image.width(); ++x)
        edges += (image.pixelColor(x, 3).red() > 127) != (image.pixelColor(x - 1, 3).red() > 127);
    EXPECT_NEAR(edges, Side / 4, 2);
}

TEST_F(ReopenedProject, ATransparentBackShowsTheLayerBelow)
{
    QgsVectorLayer& layer = AddFile("Parcels", "POLYGON((-99 -99, 199 -99, 199 199, -99 199, -99 -99))");
    Set(layer, "FillForeColor", Bgr(0xFF0000));
    Set(layer, "FillBackColor", TransparentColour);
    Set(layer, "FillStyle", 31);
    const QImage image = Map();
    int paper = 0;
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x)
            paper += image.pixelColor(x, y) == QColor(Qt::white);
    }
    EXPECT_EQ(paper, Side * Side / 2);
}

} // namespace Orvane

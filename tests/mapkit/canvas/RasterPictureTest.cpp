// SPDX-License-Identifier: MIT
// Rasters in the picture of a map.
#include "mapkit/DataFolder.h"
#include "mapkit/Drawings.h"
#include "mapkit/RasterFile.h"
#include "mapkit/canvas/MapPicture.h"
#include "mapkit/data/SourceReader.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const MapView View({5, 5}, 0.1, QSize(100, 100));
constexpr double Scale = 10000;

QString Green(const QString& path)
{
    WriteRaster(
        path, {.width = 1000, .height = 1000, .bands = 3, .transform = {0, 0.01, 0, 10, 0, -0.01}},
        [](int, int, int band) { return band == 2 ? 255 : 0; });
    return path;
}

class RasterPictureTest : public testing::Test
{
protected:
    MapLayer Raster(qint32 layerID) const
    {
        MapLayer layer;
        layer.layerID = layerID;
        layer.priority = 255;
        layer.raster = std::make_shared<const MapRaster>(LayerSource{layerID, m_path, {}, {}}, "EPSG:4326");
        return layer;
    }

    void Wait()
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !m_picture.IsBusy(); }));
    }
    void Show(const std::vector<MapLayer>& layers)
    {
        m_picture.Show(layers, View, Scale, 1);
        Wait();
    }
    void Set(const std::vector<MapLayer>& layers)
    {
        m_drawn.clear();
        m_picture.SetLayers(layers);
        Wait();
    }
    std::vector<qint32> Drawn() const
    {
        std::vector<qint32> layerIDs;
        for (const QList<QVariant>& arguments : m_drawn)
            layerIDs.push_back(arguments.first().toInt());
        return layerIDs;
    }
    QColor At(int x, int y) const { return m_picture.Image().pixelColor(x, y); }

    DataFolder m_folder;
    const QString m_path = Green(m_folder.Path("photo.tif"));
    MapPicture m_picture;
    QSignalSpy m_drawn{&m_picture, &MapPicture::LayerDrawn};
    QSignalSpy m_failed{&m_picture, &MapPicture::LayerFailed};
    MapLayer m_raster = Raster(1);
    MapLayer m_area = FilledLayer(2, Qt::red, Area(0, 0, 5, 5), 10);
};

} // namespace

TEST_F(RasterPictureTest, IsNotDrawnAgainWhenAnotherLayerChanges)
{
    Show({m_raster, m_area});
    EXPECT_EQ(At(80, 20), QColor(Qt::green));
    EXPECT_EQ(At(20, 80), QColor(Qt::red));
    Set({m_raster, FilledLayer(2, Qt::blue, m_area.features, 10)});
    EXPECT_THAT(Drawn(), ElementsAre(2));
    EXPECT_EQ(At(20, 80), QColor(Qt::blue));
}

TEST_F(RasterPictureTest, IsNotDrawnAgainForAnotherPriorityLineOrFill)
{
    Show({m_raster, m_area});
    m_raster.priority = 1;
    m_raster.values.color = 255;
    Set({m_raster, m_area});
    EXPECT_THAT(Drawn(), IsEmpty());
    EXPECT_EQ(At(20, 80), QColor(Qt::green));
}

TEST_F(RasterPictureTest, AnotherRasterOfTheLayerIsDrawn)
{
    Show({m_raster});
    Set({Raster(1)});
    EXPECT_THAT(Drawn(), ElementsAre(1));
}

TEST_F(RasterPictureTest, OneThatIsDamagedIsToldOnceAndLeftOut)
{
    ASSERT_TRUE(QFile::resize(m_path, 300000));
    Show({Raster(1), m_area});
    ASSERT_EQ(m_failed.count(), 1);
    EXPECT_EQ(m_failed[0][0].toInt(), 1);
    EXPECT_TRUE(m_failed[0][1].toString().contains("photo.tif"));
    EXPECT_EQ(At(20, 80), QColor(Qt::red));
    m_picture.SetView(View.Panned({10, 0}), Scale, 1);
    Wait();
    EXPECT_EQ(m_failed.count(), 1);
}

TEST_F(RasterPictureTest, ManyLayersAndRastersAreDrawnInTheirOrder)
{
    std::vector<MapLayer> layers;
    for (qint32 layerID = 10; layerID < 200; ++layerID)
        layers.push_back(FilledLayer(layerID, Qt::blue, Area(0, 0, 1, 1)));
    layers.push_back(m_raster);
    layers.push_back(m_area);
    Show(layers);
    EXPECT_EQ(At(5, 95), QColor(Qt::red));
    EXPECT_EQ(At(80, 20), QColor(Qt::green));
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "mapkit/drawing/RasterPainter.h"

#include "mapkit/DataFolder.h"
#include "mapkit/RasterFile.h"
#include "mapkit/data/SourceReader.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QFile>
#include <QPainter>

namespace Orvane {

using namespace Testing;

namespace {

class RasterPainterTest : public testing::Test
{
protected:
    void Write(const RasterSpec& spec = {.bands = 3}) const
    {
        WriteRaster(m_path, spec, [](int, int, int band) { return band == 2 ? 255 : 0; });
    }

    LayerSource Source() const { return {1, m_path, {}, {}}; }

    QImage Painted(const MapView& view, int scale = 1, double opacity = 1) const
    {
        QImage paper(view.Size() * scale, QImage::Format_ARGB32);
        paper.fill(Qt::white);
        QPainter painter(&paper);
        painter.setOpacity(opacity);
        painter.scale(scale, scale);
        PaintRaster(painter, MapRaster(Source(), "EPSG:4326"), view, m_cancelled);
        return paper;
    }

    DataFolder m_folder;
    const QString m_path = m_folder.Path("photo.tif");
    std::atomic<bool> m_cancelled = false;
};

const MapView AroundWestEdge({0, 5}, 0.1, {100, 100});

} // namespace

TEST_F(RasterPainterTest, IsPaintedAsFineAsThePaper)
{
    Write();
    const QImage paper = Painted(AroundWestEdge, 4);
    EXPECT_EQ(paper.pixelColor(190, 200), QColor(Qt::white));
    EXPECT_EQ(paper.pixelColor(210, 200), QColor(Qt::green));
    EXPECT_EQ(paper.pixelColor(300, 200), QColor(Qt::green));
}

TEST_F(RasterPainterTest, IsAsPaleAsThePainter)
{
    Write();
    EXPECT_NEAR(Painted(AroundWestEdge, 1, 0.5).pixelColor(80, 50).red(), 128, 2);
}

TEST_F(RasterPainterTest, NothingIsPaintedBesideTheRasterOrWhenItIsCancelled)
{
    Write();
    const MapView elsewhere({100, 50}, 0.1, {100, 100});
    EXPECT_EQ(Painted(elsewhere).pixelColor(50, 50), QColor(Qt::white));
    m_cancelled = true;
    EXPECT_EQ(Painted(AroundWestEdge).pixelColor(80, 50), QColor(Qt::white));
}

TEST_F(RasterPainterTest, LiesWhereTheChosenSystemPutsIt)
{
    Write({.bands = 3, .transform = {0, 1000, 0, 100000, 0, -1000}, .system = nullptr});
    LayerSource source = Source();
    source.system = "EPSG:3857";
    const MapRaster raster(source, "EPSG:4326");
    EXPECT_NEAR(raster.Extent().maxX, 0.898, 0.01);
    EXPECT_EQ(raster.SourceSystem(), "EPSG:3857");
    EXPECT_EQ(raster.Source().System(), "");
}

TEST_F(RasterPainterTest, DamagedDataAreAnError)
{
    Write({.width = 1000, .height = 1000, .bands = 3, .transform = {0, 0.01, 0, 10, 0, -0.01}});
    ASSERT_TRUE(QFile::resize(m_path, 300000));
    EXPECT_THROW(Painted(MapView({5, 5}, 0.1, {100, 100})), RunTimeError);
}

} // namespace Orvane

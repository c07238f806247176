// SPDX-License-Identifier: MIT
// Rasters as layers of a map: kept in the file, drawn among the others.
#include "mapkit/DataFolder.h"
#include "mapkit/RasterFile.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/DataImport.h"
#include "shell/map/MapSession.h"
#include "store/ILayerStore.h"

#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class RasterLayersTest : public testing::Test
{
protected:
    RasterLayersTest()
    {
        m_canvas.resize(200, 200);
        m_canvas.show();
        WriteRaster(m_photo, {.bands = 3}, [](int, int, int band) { return band == 2 ? 255 : 0; });
    }

    void Show(std::unique_ptr<MapDocument> document)
    {
        m_session.reset();
        m_session = std::make_unique<MapSession>(std::move(document), m_canvas, m_canvas, nullptr);
        m_problems = m_session->ReadAndShow();
        m_canvas.ZoomToAll();
    }

    static std::vector<qint32> Add(MapDocument& document, const QString& path)
    {
        Progress progress;
        return AddToMap(document, LookInto({path}, progress));
    }

    // A map of a red square from 0 to 10 degrees, which has no fill.
    std::unique_ptr<MapDocument> Square(const QString& name)
    {
        auto document = MapDocument::Create(m_folder.Path(name));
        Add(*document, m_folder.WriteSquare("square.geojson"));
        document->Database().Execute("UPDATE Layers SET FillStyle = 15, Color = 255, LineThickness = -5");
        return document;
    }

    // The same over a green photo.
    std::unique_ptr<MapDocument> SquareOnPhoto(const QString& name)
    {
        auto document = Square(name);
        Add(*document, m_photo);
        return document;
    }

    const MapLayer& RasterLayer() const { return m_session->Layers().back(); }
    void Change(const QString& assignment)
    {
        const QString sql = "UPDATE Layers SET %1 WHERE LayerID = %2";
        m_session->Document().Database().Execute(sql.arg(assignment).arg(RasterLayer().layerID));
        m_session->DrawAgain({RasterLayer().layerID});
    }

    QImage Drawn()
    {
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return !m_canvas.Picture().IsBusy() && m_canvas.Picture().ImageView() == m_canvas.View();
        }));
        return m_canvas.grab().toImage();
    }
    // Until the raster is left out because of its damage.
    bool WaitForMarks()
    {
        return QTest::qWaitFor([&] { return !m_canvas.Picture().IsBusy() && !RasterLayer().raster; });
    }
    QColor Middle() { return Drawn().pixelColor(100, 100); }

    DataFolder m_folder;
    const QString m_photo = m_folder.Path("photo.tif");
    MapCanvas m_canvas;
    std::unique_ptr<MapSession> m_session;
    QString m_problems;
};

} // namespace

TEST_F(RasterLayersTest, LieUnderTheOtherLayersAtFirst)
{
    Show(SquareOnPhoto("map.orvane"));
    const QImage image = Drawn();
    EXPECT_EQ(image.pixelColor(100, 100), QColor(Qt::green));
    const Box bounds = m_canvas.Layers()[0].features->Bounds();
    const QPoint edge = m_canvas.View().ToPixel({bounds.minX, bounds.maxY / 2}).toPoint();
    EXPECT_EQ(image.pixelColor(edge), QColor(Qt::red));
}

TEST_F(RasterLayersTest, ArePutOverOthersByTheirPriority)
{
    auto document = Square("map.orvane");
    document->Database().Execute("UPDATE Layers SET FillStyle = 0, FillForeColor = 255");
    Add(*document, m_photo);
    Show(std::move(document));
    EXPECT_EQ(Middle(), QColor(Qt::red));
    Change("Priority = 1");
    EXPECT_EQ(Middle(), QColor(Qt::green));
}

TEST_F(RasterLayersTest, AreHiddenAndShownByThemselves)
{
    Show(SquareOnPhoto("map.orvane"));
    Change("Visible = 0");
    EXPECT_EQ(Middle(), QColor(Qt::white));
    Change("Visible = 1, OverrideMode = 2");
    EXPECT_EQ(Middle(), QColor(Qt::white));
    Change("OverrideMode = 0");
    EXPECT_EQ(Middle(), QColor(Qt::green));
}

TEST_F(RasterLayersTest, AreDrawnPaleInTheModeBackdrop)
{
    Show(SquareOnPhoto("map.orvane"));
    Change("OverrideMode = 1");
    const QColor pale = Middle();
    EXPECT_EQ(pale.green(), 255);
    EXPECT_GT(pale.red(), 120);
    EXPECT_LT(pale.red(), 255);
}

TEST_F(RasterLayersTest, AreDrawnWithinTheirScalesOnly)
{
    Show(SquareOnPhoto("map.orvane"));
    Change("MaxVisScale = 1000");
    EXPECT_EQ(Middle(), QColor(Qt::white));
    m_canvas.ZoomToScale(900);
    EXPECT_EQ(Middle(), QColor(Qt::green));
}

TEST_F(RasterLayersTest, SeveralLieOverEachOther)
{
    auto document = SquareOnPhoto("map.orvane");
    const QString second = m_folder.Path("second.tif");
    WriteRaster(second, {.bands = 3, .transform = {0, 0.05, 0, 5, 0, -0.05}}, [](int, int, int band) {
        return band == 3 ? 255 : 0;
    });
    Add(*document, second);
    Show(std::move(document));
    const QImage image = Drawn();
    EXPECT_EQ(image.pixelColor(60, 140), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(60, 60), QColor(Qt::green));
}

TEST_F(RasterLayersTest, AreKeptWithTheMapAndMoveAlong)
{
    QDir(m_folder.Path("")).mkpath("old");
    QFile::rename(m_photo, m_folder.Path("old/photo.tif"));
    Add(*Square("old/map.orvane"), m_folder.Path("old/photo.tif"));
    ASSERT_TRUE(QDir(m_folder.Path("")).rename("old", "new"));
    Show(MapDocument::Open(m_folder.Path("new/map.orvane")));
    EXPECT_EQ(m_problems, "");
    EXPECT_EQ(Middle(), QColor(Qt::green));
}

TEST_F(RasterLayersTest, FollowTheSystemOfTheMap)
{
    Show(SquareOnPhoto("map.orvane"));
    EXPECT_NEAR(RasterLayer().Bounds().maxX, 1113194.9, 10000);
    m_session->Document().SetSystem("EPSG:4326");
    EXPECT_EQ(m_session->ReadAndShow(), "");
    EXPECT_NEAR(RasterLayer().Bounds().maxX, 10, 0.1);
    EXPECT_EQ(Middle(), QColor(Qt::green));
}

TEST_F(RasterLayersTest, FollowTheSystemThatIsChosenForThem)
{
    Show(SquareOnPhoto("map.orvane"));
    LayerSource source = *m_session->Document().SourceOf(RasterLayer().layerID);
    source.system = "EPSG:3857"; // ten metres
    m_session->Document().SetSource(source);
    EXPECT_EQ(m_session->ReadAndShow(), "");
    EXPECT_NEAR(RasterLayer().Bounds().maxX, 10, 0.1);
    EXPECT_EQ(RasterLayer().SourceSystem(), "EPSG:3857");
}

TEST_F(RasterLayersTest, AnotherMapDoesNotShowThem)
{
    Show(SquareOnPhoto("map.orvane"));
    Show(Square("other.orvane"));
    EXPECT_EQ(Middle(), QColor(Qt::white));
}

TEST_F(RasterLayersTest, AreEnoughForAMap)
{
    auto document = MapDocument::Untitled();
    Add(*document, m_photo);
    Show(std::move(document));
    EXPECT_EQ(m_session->Document().System(), "EPSG:3857");
    EXPECT_EQ(Middle(), QColor(Qt::green));
    m_canvas.SetView(MapView({5e6, 5e6}, 1, m_canvas.size()));
    m_session->ZoomTo({RasterLayer().layerID});
    EXPECT_EQ(Middle(), QColor(Qt::green));
}

TEST_F(RasterLayersTest, OneThatIsGoneIsNamedWhenTheMapIsOpened)
{
    SquareOnPhoto("map.orvane").reset();
    ASSERT_TRUE(QFile::remove(m_photo));
    Show(MapDocument::Open(m_folder.Path("map.orvane")));
    EXPECT_TRUE(m_problems.contains("photo.tif"));
}

TEST_F(RasterLayersTest, AreReadAgainWhenTheFileChanges)
{
    Show(SquareOnPhoto("map.orvane"));
    EXPECT_EQ(Middle(), QColor(Qt::green));
    QFile::remove(m_photo);
    WriteRaster(m_photo, {.bands = 3}, [](int, int, int band) { return band == 3 ? 255 : 0; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return Middle() == QColor(Qt::blue); }));
}

TEST_F(RasterLayersTest, OneThatIsDamagedIsToldOnceAndTheOthersAreDrawn)
{
    WriteDamagedRaster(m_photo);
    Show(SquareOnPhoto("map.orvane"));
    QSignalSpy failed(m_session.get(), &MapSession::DataFailed);
    ASSERT_TRUE(WaitForMarks());
    m_canvas.ZoomIn();
    Drawn();
    ASSERT_EQ(failed.count(), 1);
    EXPECT_TRUE(failed[0][0].toString().contains("photo.tif"));
    m_canvas.ZoomToAll();
    const Box bounds = m_canvas.Layers()[0].features->Bounds();
    const QPoint edge = m_canvas.View().ToPixel({bounds.minX, bounds.maxY / 2}).toPoint();
    EXPECT_EQ(Drawn().pixelColor(edge), QColor(Qt::red));
}

TEST_F(RasterLayersTest, SeveralThatAreDamagedAreToldTogether)
{
    WriteDamagedRaster(m_photo);
    auto document = SquareOnPhoto("map.orvane");
    for (const char* name : {"second.tif", "third.tif"}) {
        WriteDamagedRaster(m_folder.Path(name));
        Add(*document, m_folder.Path(name));
    }
    Show(std::move(document));
    QSignalSpy failed(m_session.get(), &MapSession::DataFailed);
    ASSERT_TRUE(WaitForMarks());
    ASSERT_EQ(failed.count(), 1);
    for (const char* name : {"photo.tif", "second.tif", "third.tif"})
        EXPECT_TRUE(failed[0][0].toString().contains(name)) << name;
}

TEST_F(RasterLayersTest, OneThatIsDamagedIsNotToldAgainWhenTheMapIsReadAgain)
{
    WriteDamagedRaster(m_photo);
    Show(SquareOnPhoto("map.orvane"));
    QSignalSpy failed(m_session.get(), &MapSession::DataFailed);
    ASSERT_TRUE(WaitForMarks());
    m_session->ReadAndShow();
    EXPECT_FALSE(RasterLayer().raster) << "it is not drawn again in vain";
    m_session->Document().SetSystem("EPSG:4326");
    m_session->ReadAndShow();
    EXPECT_TRUE(RasterLayer().raster) << "it may be whole in the other system's view";
    m_canvas.ZoomToAll();
    ASSERT_TRUE(WaitForMarks());
    EXPECT_EQ(failed.count(), 1);
}

TEST_F(RasterLayersTest, DamageInTheMapBeforeIsNotToldOfTheNextOne)
{
    WriteDamagedRaster(m_photo);
    Show(SquareOnPhoto("map.orvane"));
    m_session.reset();
    auto other = Square("other.orvane");
    WriteRaster(m_folder.Path("whole.tif"), {}, [](int, int, int) { return 9; });
    Add(*other, m_folder.Path("whole.tif")); // with the ID of the damaged one
    m_session = std::make_unique<MapSession>(std::move(other), m_canvas, m_canvas, nullptr);
    QSignalSpy drawn(&m_canvas.Picture(), &MapPicture::LayerFailed);
    QSignalSpy failed(m_session.get(), &MapSession::DataFailed);
    ASSERT_TRUE(QTest::qWaitFor([&] { return drawn.count() == 1 && !m_canvas.Picture().IsBusy(); }));
    m_session->ReadAndShow();
    Drawn();
    QApplication::processEvents();
    EXPECT_EQ(failed.count(), 0);
}

TEST_F(RasterLayersTest, APageStillHasTheDamagedOnes)
{
    WriteDamagedRaster(m_photo);
    Show(SquareOnPhoto("map.orvane"));
    ASSERT_TRUE(WaitForMarks());
    EXPECT_FALSE(m_session->Layers().back().raster);
    EXPECT_TRUE(m_session->LayersForPage().back().raster);
}

TEST_F(RasterLayersTest, OneThatHasNoPlaceInTheMapsSystemIsNamed)
{
    Show(SquareOnPhoto("map.orvane"));
    m_session->Document().SetSystem("+proj=ortho +lat_0=-5 +lon_0=-175");
    m_session->ReadAndShow();
    EXPECT_TRUE(m_session->LayersWithoutPlace().contains("photo"));
}

} // namespace Orvane

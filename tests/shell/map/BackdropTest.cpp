// SPDX-License-Identifier: MIT
// A picture under the map: kept in the file, drawn under the layers.
#include "mapkit/DataFolder.h"
#include "mapkit/RasterFile.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/DataImport.h"
#include "shell/map/MapSession.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class BackdropTest : public testing::Test
{
protected:
    BackdropTest()
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

    // A map of a red square from 0 to 10 degrees, which has no fill.
    std::unique_ptr<MapDocument> Square(const QString& name)
    {
        auto document = MapDocument::Create(m_folder.Path(name));
        Progress progress;
        AddToMap(*document, LookInto({m_folder.WriteSquare("square.geojson")}, progress));
        document->Database().Execute("UPDATE Layers SET FillStyle = 15, Color = 255, LineThickness = -5");
        return document;
    }

    QImage Drawn()
    {
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return !m_canvas.Picture().IsBusy() && m_canvas.Picture().ImageView() == m_canvas.View();
        }));
        return m_canvas.grab().toImage();
    }

    DataFolder m_folder;
    const QString m_photo = m_folder.Path("photo.tif");
    MapCanvas m_canvas;
    std::unique_ptr<MapSession> m_session;
    QString m_problems;
};

} // namespace

TEST_F(BackdropTest, LiesUnderTheLayers)
{
    Show(Square("map.orvane"));
    EXPECT_EQ(Drawn().pixelColor(100, 100), QColor(Qt::white));
    m_session->SetBackdrop(m_photo);
    const QImage image = Drawn();
    EXPECT_EQ(image.pixelColor(100, 100), QColor(Qt::green));
    const Box bounds = m_canvas.Layers()[0].features->Bounds();
    const QPoint edge = m_canvas.View().ToPixel({bounds.minX, bounds.maxY / 2}).toPoint();
    EXPECT_EQ(image.pixelColor(edge), QColor(Qt::red));
}

TEST_F(BackdropTest, IsKeptWithTheMapAndMovesAlong)
{
    QDir(m_folder.Path("")).mkpath("old");
    QFile::rename(m_photo, m_folder.Path("old/photo.tif"));
    Show(Square("old/map.orvane"));
    m_session->SetBackdrop(m_folder.Path("old/photo.tif"));
    m_session.reset();
    ASSERT_TRUE(QDir(m_folder.Path("")).rename("old", "new"));
    Show(MapDocument::Open(m_folder.Path("new/map.orvane")));
    EXPECT_EQ(m_problems, "");
    EXPECT_EQ(Drawn().pixelColor(100, 100), QColor(Qt::green));
}

TEST_F(BackdropTest, CanBeTakenAway)
{
    Show(Square("map.orvane"));
    m_session->SetBackdrop(m_photo);
    m_session->SetBackdrop({});
    EXPECT_EQ(Drawn().pixelColor(100, 100), QColor(Qt::white));
    EXPECT_EQ(m_session->Document().Backdrop(), "");
}

TEST_F(BackdropTest, FollowsTheSystemOfTheMap)
{
    Show(Square("map.orvane"));
    m_session->SetBackdrop(m_photo);
    EXPECT_NEAR(m_canvas.Picture().Backdrop()->Extent().maxX, 1113194.9, 10000);
    m_session->Document().SetSystem("EPSG:4326");
    EXPECT_EQ(m_session->ReadAndShow(), "");
    EXPECT_NEAR(m_canvas.Picture().Backdrop()->Extent().maxX, 10, 0.1);
    EXPECT_EQ(Drawn().pixelColor(100, 100), QColor(Qt::green));
}

TEST_F(BackdropTest, AnotherMapDoesNotShowIt)
{
    Show(Square("map.orvane"));
    m_session->SetBackdrop(m_photo);
    Show(Square("other.orvane"));
    EXPECT_EQ(Drawn().pixelColor(100, 100), QColor(Qt::white));
}

TEST_F(BackdropTest, IsEnoughForAMap)
{
    Show(MapDocument::Untitled());
    m_session->SetBackdrop(m_photo);
    EXPECT_EQ(m_session->Document().System(), "EPSG:3857");
    EXPECT_EQ(Drawn().pixelColor(100, 100), QColor(Qt::green));
}

TEST_F(BackdropTest, AFileThatIsNoPictureChangesNothing)
{
    Show(MapDocument::Untitled());
    EXPECT_THROW(m_session->SetBackdrop(m_folder.Write("text.tif", "text")), RunTimeError);
    EXPECT_EQ(m_session->Document().Backdrop(), "");
    EXPECT_EQ(m_session->Document().System(), "");
}

TEST_F(BackdropTest, APictureThatIsGoneIsNamedWhenTheMapIsOpened)
{
    Show(Square("map.orvane"));
    m_session->SetBackdrop(m_photo);
    m_session.reset();
    ASSERT_TRUE(QFile::remove(m_photo));
    Show(MapDocument::Open(m_folder.Path("map.orvane")));
    EXPECT_TRUE(m_problems.contains("photo.tif"));
}

TEST_F(BackdropTest, ADamagedPictureIsToldOnce)
{
    WriteRaster(
        m_photo, {.width = 1000, .height = 1000, .bands = 3, .transform = {0, 0.01, 0, 10, 0, -0.01}},
        [](int, int, int) { return 9; });
    ASSERT_TRUE(QFile::resize(m_photo, 300000));
    Show(Square("map.orvane"));
    QSignalSpy failed(m_session.get(), &MapSession::DataFailed);
    m_session->SetBackdrop(m_photo);
    Drawn();
    m_canvas.ZoomIn();
    Drawn();
    ASSERT_EQ(failed.count(), 1);
    EXPECT_TRUE(failed[0][0].toString().contains("photo.tif"));
}

TEST_F(BackdropTest, IsPaintedAsFineAsThePaper)
{
    const RasterBackdrop backdrop(m_photo, "EPSG:4326");
    QImage paper(400, 400, QImage::Format_ARGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.scale(4, 4);
    backdrop.Paint(painter, MapView({0, 5}, 0.1, {100, 100}), false);
    painter.end();
    EXPECT_EQ(paper.pixelColor(190, 200), QColor(Qt::white));
    EXPECT_EQ(paper.pixelColor(210, 200), QColor(Qt::green));
    EXPECT_EQ(paper.pixelColor(300, 200), QColor(Qt::green));
}

} // namespace Orvane

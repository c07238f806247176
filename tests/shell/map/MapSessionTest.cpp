// SPDX-License-Identifier: MIT
#include "shell/map/MapSession.h"

#include "hostkit/undo/UndoHistory.h"
#include "mapkit/DataFolder.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/looks/RendererStyles.h"
#include "shell/map/DataImport.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "support/MessageBoxRobot.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

class MapSessionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_canvas.resize(200, 200);
        m_canvas.show();
        m_session = SessionOf({m_folder.WriteSquare("a.geojson"), m_folder.WriteSquare("b.geojson")});
        EXPECT_EQ(m_session->ReadAndShow(), "");
        m_canvas.ZoomToAll();
        WaitForPicture();
        m_drawn = std::make_unique<QSignalSpy>(&m_canvas.Picture(), &MapPicture::LayerDrawn);
    }

    std::unique_ptr<MapSession> SessionOf(const QStringList& files)
    {
        auto document = MapDocument::Untitled();
        Progress progress;
        AddToMap(*document, LookInto(files, progress));
        document->Database().Execute("UPDATE Layers SET OutlineStyle = 15, FillForeColor = 255");
        return std::make_unique<MapSession>(std::move(document), m_canvas, m_canvas, nullptr);
    }

    void WaitForPicture()
    {
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return !m_canvas.Picture().IsBusy() && m_canvas.Picture().ImageView() == m_canvas.View();
        }));
    }

    // As the component applies a change.
    void Apply(qint32 layerID, const char* column, qint32 value)
    {
        IStyleEditorClient& client = m_session->Client();
        const auto layers = client.LayersTable();
        layers->Index("LayerIDIDX");
        layers->Seek("=", layerID);
        client.BeginLayerEdit(*layers);
        layers->SetField(column, value);
        client.LayerChanged(layerID);
        layers->Update();
        client.RedrawMap();
    }

    QColor Middle() { return m_canvas.grab().toImage().pixelColor(100, 100); }

    DataFolder m_folder;
    MapCanvas m_canvas;
    std::unique_ptr<MapSession> m_session;
    std::unique_ptr<QSignalSpy> m_drawn;
};

} // namespace

TEST_F(MapSessionTest, ZoomsToALayerFromTheLayerControlsMenu)
{
    auto& commands = dynamic_cast<INodeCommands&>(m_session->Client());
    const MapView all = m_canvas.View();
    m_canvas.SetView(all.ZoomedAt({0, 0}, 8));
    ASSERT_EQ(commands.Commands(nullptr).size(), 1U);
    const QString id = commands.Commands(nullptr).front().id;
    EXPECT_EQ(commands.WhyNot(id, {1}), QString());
    commands.Run(nullptr, id, {1});
    EXPECT_EQ(m_canvas.View(), all);
    EXPECT_EQ(commands.WhyNot(id, {77}), QStringLiteral("The map has no features of these layers."));
    commands.Run(nullptr, id, {77});
    EXPECT_EQ(m_canvas.View(), all);
}

TEST_F(MapSessionTest, TellsTheLayerControlWhereTheDataAre)
{
    auto& sources = dynamic_cast<ILayerSource&>(m_session->Client());
    EXPECT_EQ(sources.Source(1), QFileInfo(m_folder.Path("a.geojson")).absoluteFilePath());
    EXPECT_EQ(sources.Source(77), QString());
}

TEST_F(MapSessionTest, ShowsTheDataOfTheMap)
{
    EXPECT_EQ(m_canvas.Layers().size(), 2u);
    EXPECT_EQ(Middle(), QColor(Qt::red));
}

TEST_F(MapSessionTest, FollowsSomebodyElseWhoChangesALayer)
{
    QSignalSpy followed(m_session.get(), &MapSession::OthersFollowed);
    m_session->Document().Database().Execute(
        "UPDATE Layers SET FillForeColor = 16711680, Name = 'Other' WHERE LayerID = 2");
    EXPECT_TRUE(m_session->FollowOthers({2}));
    WaitForPicture();
    EXPECT_EQ(m_drawn->count(), 1);
    EXPECT_EQ(Middle(), QColor(Qt::blue));
    EXPECT_EQ(followed.count(), 1);
    EXPECT_EQ(m_session->Client().LayerDisplayName(2), "Other");
}

TEST_F(MapSessionTest, WantsToBeReadAgainWhenSomebodyElseAddsOrDeletesALayer)
{
    ILayerStore& database = m_session->Document().Database();
    database.Execute("INSERT INTO Layers (LayerID, Name) VALUES (3, 'New')");
    EXPECT_FALSE(m_session->FollowOthers({2, 3}));
    m_session->ReadAndShow();
    EXPECT_TRUE(m_session->FollowOthers({2, 3}));
    database.Execute("DELETE FROM Layers WHERE LayerID = 3");
    EXPECT_FALSE(m_session->FollowOthers({3}));
}

TEST_F(MapSessionTest, AChangedLayerIsDrawnAgainAlone)
{
    Apply(2, "FillForeColor", 0xff0000);
    WaitForPicture();
    ASSERT_EQ(m_drawn->size(), 1);
    EXPECT_EQ((*m_drawn)[0][0].toInt(), 2);
    EXPECT_EQ(Middle(), QColor(Qt::blue));
}

TEST_F(MapSessionTest, AnInvisibleLayerLeavesTheMapWithoutDrawing)
{
    Apply(2, "FillForeColor", 0xff0000);
    WaitForPicture();
    m_drawn->clear();
    Apply(2, "Visible", 0);
    WaitForPicture();
    EXPECT_TRUE(m_drawn->isEmpty());
    EXPECT_EQ(Middle(), QColor(Qt::red));
}

TEST_F(MapSessionTest, AHiddenLayerLeavesTheMap)
{
    Apply(1, "OverrideMode", 2);
    Apply(2, "OverrideMode", 2);
    WaitForPicture();
    EXPECT_EQ(Middle(), QColor(Qt::white));
}

TEST_F(MapSessionTest, NothingIsReadBeforeTheMapIsToBeRedrawn)
{
    m_session->Document().Database().Execute("UPDATE Layers SET FillForeColor = 0 WHERE LayerID = 2");
    m_session->Client().LayerChanged(2);
    WaitForPicture();
    EXPECT_TRUE(m_drawn->isEmpty());
    m_session->Client().RedrawMap();
    WaitForPicture();
    EXPECT_EQ(m_drawn->size(), 1);
}

TEST_F(MapSessionTest, ADeletedLayerLeavesTheMap)
{
    MessageBoxRobot user{BoxKey::Yes};
    m_session->Client().DeleteLayer(2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_canvas.Layers().size() == 1u; }));
    EXPECT_EQ(m_canvas.Layers()[0].layerID, 1);
}

TEST_F(MapSessionTest, ReadsTheMapOnceWhenTheDeletionOfSeveralLayersIsUndone)
{
    MessageBoxRobot user{BoxKey::Yes};
    ShellClient& client = m_session->Shell();
    client.DeleteLayers({1, 2});
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_canvas.Layers().empty(); }));
    const QSignalSpy read(m_session.get(), &MapSession::LayersRead);
    client.History().Undo();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_canvas.Layers().size() == 2u; }));
    QApplication::processEvents();
    EXPECT_EQ(read.count(), 1);
}

TEST_F(MapSessionTest, ALoadedSchemeIsDrawn)
{
    IStyleEditorClient& client = m_session->Client();
    const QString before = client.GetCurrentScheme();
    client.CreateScheme("Blue");
    Apply(2, "FillForeColor", 0xff0000);
    client.SaveScheme("Blue");
    client.LoadScheme(before);
    WaitForPicture();
    EXPECT_EQ(Middle(), QColor(Qt::red));
    client.LoadScheme("Blue");
    WaitForPicture();
    EXPECT_EQ(Middle(), QColor(Qt::blue));
}

TEST_F(MapSessionTest, DataThatAreGoneAreNamedOnce)
{
    auto document = MapDocument::Untitled();
    for (const char* name : {"One", "Two"}) {
        NewLayer layer;
        layer.name = name;
        layer.path = m_folder.Path("gone.gpkg");
        document->AddLayer(layer);
    }
    MapSession session(std::move(document), m_canvas, m_canvas, nullptr);
    EXPECT_EQ(session.ReadAndShow().count("gone.gpkg"), 1);
}

TEST_F(MapSessionTest, AStyleThatNeedsAttributesIsDrawnOnceTheyAreRead)
{
    const QImage before = m_canvas.grab().toImage();
    Apply(2, "Style", RendererStyles::Labelled);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_canvas.Layers()[1].labels != nullptr; }));
    WaitForPicture();
    EXPECT_EQ(m_canvas.Layers()[1].labels->attribute, "type");
    EXPECT_NE(m_canvas.grab().toImage(), before);
    Apply(2, "Style", 0);
    WaitForPicture();
    EXPECT_EQ(m_canvas.grab().toImage(), before);
}

TEST_F(MapSessionTest, EndingWhileAttributesAreReadIsHarmless)
{
    Apply(2, "Style", RendererStyles::Labelled);
    m_session.reset();
}

TEST_F(MapSessionTest, AWholeMapIsDrawnOnce)
{
    m_session.reset();
    m_canvas.SetLayers({}, 1);
    WaitForPicture();
    QSignalSpy drawn(&m_canvas.Picture(), &MapPicture::LayerDrawn);
    QSignalSpy viewChanges(&m_canvas, &MapCanvas::ViewChanged);
    m_session
        = SessionOf({m_folder.WriteSquare("c.geojson", 40, 40), m_folder.WriteSquare("d.geojson", 40, 40)});
    m_session->ReadAndShow(MapSession::View::All);
    WaitForPicture();
    EXPECT_EQ(drawn.size(), 2);
    EXPECT_EQ(viewChanges.size(), 1);
    EXPECT_NEAR(m_canvas.View().Centre().x(), 5009377, 1) << "45 degrees east, in metres";
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/view/MapMenu.h"

#include "mapkit/RasterFile.h"
#include "mapkit/canvas/MapCanvas.h"
#include "shell/MainWindowTest.h"
#include "support/MessageBoxRobot.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The map shows a square from 0 to 10 degrees.
class MapMenuTest : public MainWindowTest
{
protected:
    MapMenuTest() { m_window->OpenMap(MakeMap("map.orvane")); }
    ~MapMenuTest() override
    {
        if (m_menu)
            m_menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    MapCanvas& Canvas() { return m_window->Canvas(); }

    void RightClick(QPointF map)
    {
        const QPoint pixel = Canvas().View().ToPixel(map).toPoint();
        QTest::mouseClick(
            m_window->windowHandle(), Qt::RightButton, {}, Canvas().mapTo(m_window.get(), pixel));
    }
    QMenu& OpenMenu(QPointF map)
    {
        RightClick(map);
        m_menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!m_menu)
            throw std::runtime_error("no menu");
        return *m_menu;
    }
    static QAction& Entry(const QMenu& menu, const QString& name)
    {
        for (QAction* action : menu.actions()) {
            if (action->objectName() == name)
                return *action;
        }
        throw std::runtime_error("no " + name.toStdString());
    }
    // Goes to the entry by the keys and chooses it.
    static void Pick(QMenu& menu, const QString& name)
    {
        menu.setActiveAction(&Entry(menu, name));
        QTest::keyClick(&menu, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    static QStringList Texts(const QMenu& menu)
    {
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator())
                texts << action->text().remove(QLatin1Char('&'));
        }
        return texts;
    }

    QPointer<QMenu> m_menu;
};

// Takes the folders that the program opens.
class FolderOpener : public QObject
{
    Q_OBJECT
public:
    FolderOpener() { QDesktopServices::setUrlHandler("file", this, "Open"); }
    ~FolderOpener() override { QDesktopServices::unsetUrlHandler("file"); }

    QStringList folders;

public slots:
    void Open(const QUrl& url) { folders << url.toLocalFile(); }
};

} // namespace

TEST_F(MapMenuTest, OffersTheCommandsOfTheLayerOnAFeature)
{
    EXPECT_THAT(
        Texts(OpenMenu({5, 5})),
        ElementsAre(
            "Square", "Zoom to Layer", "Attribute Table", "Layer Rendering...", "Layer Properties...",
            "Open Folder", "Remove", "Zoom to All", "Previous View", "Centre Here", "Copy Coordinates"));
}

TEST_F(MapMenuTest, OffersTheCommandsOfTheMapAloneBesideFeatures)
{
    const QPointF corner = Canvas().View().ToMap({3, 3});
    EXPECT_THAT(
        Texts(OpenMenu(corner)),
        ElementsAre("Zoom to All", "Previous View", "Centre Here", "Copy Coordinates"));
}

TEST_F(MapMenuTest, HasAnEntryForEachLayerBelow)
{
    m_window->AddData({m_folder.WriteSquare("meadow.geojson")});
    const QMenu& menu = OpenMenu({5, 5});
    QStringList texts = Texts(menu);
    EXPECT_EQ(texts.size(), 12);
    EXPECT_TRUE(texts.contains("Square") && texts.contains("meadow"));
    QStringList below;
    for (const QAction* action : menu.actions()) {
        if (action->menu() && action->menu()->objectName() != "mnuCopyCoordinates")
            below = Texts(*action->menu());
    }
    EXPECT_THAT(
        below,
        ElementsAre(
            "Zoom to Layer", "Attribute Table", "Layer Rendering...", "Layer Properties...", "Open Folder",
            "Remove"));
}

TEST_F(MapMenuTest, OffersTheCommandsOfARasterBesideFeatures)
{
    const QString photo = m_folder.Path("photo.tif");
    WriteRaster(photo, {.transform = {0, 0.2, 0, 20, 0, -0.2}}, [](int, int, int) { return 9; });
    m_window->AddData({photo});
    Canvas().ZoomToAll();
    const QMenu& menu = OpenMenu({15, 15});
    EXPECT_EQ(Texts(menu).value(0), "photo");
    EXPECT_FALSE(Entry(menu, "AttributeTable").isEnabled());
    EXPECT_NE(Entry(menu, "AttributeTable").toolTip(), "");
    EXPECT_TRUE(Entry(menu, "ZoomToLayer").isEnabled());
}

TEST_F(MapMenuTest, DoesNotOfferALayerThatIsHidden)
{
    m_window->Document().Database().Execute("UPDATE Layers SET OverrideMode = 2");
    m_window->Session().DrawAgain({Canvas().Layers().front().layerID});
    EXPECT_FALSE(Texts(OpenMenu({5, 5})).contains("Square"));
}

TEST_F(MapMenuTest, ZoomsToTheLayer)
{
    const MapView all = Canvas().View();
    Canvas().SetView(all.ZoomedAt({10, 10}, 0.5));
    Pick(OpenMenu({5, 5}), "ZoomToLayer");
    EXPECT_EQ(Canvas().View(), all);
}

TEST_F(MapMenuTest, ShowsTheFolderOfTheData)
{
    FolderOpener desktop;
    Pick(OpenMenu({5, 5}), "OpenFolder");
    EXPECT_THAT(desktop.folders, ElementsAre(QFileInfo(m_folder.Path("square.geojson")).absolutePath()));
}

TEST_F(MapMenuTest, RemovesTheLayerAfterAQuestionAndUndoBringsItBack)
{
    MessageBoxRobot user{BoxKey::Yes};
    Pick(OpenMenu({5, 5}), "Remove");
    EXPECT_TRUE(user.Only().text.contains("Square"));
    EXPECT_EQ(Count("Layers"), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Canvas().Layers().empty(); }));
    Action("actUndo")->trigger();
    EXPECT_EQ(Count("Layers"), 1);
}

TEST_F(MapMenuTest, KeepsTheLayerIfTheUserSaysNo)
{
    MessageBoxRobot user{BoxKey::Escape};
    Pick(OpenMenu({5, 5}), "Remove");
    EXPECT_EQ(Count("Layers"), 1);
}

TEST_F(MapMenuTest, MovesThePlaceToTheMiddle)
{
    Pick(OpenMenu({2, 3}), "CentreHere");
    const MapView& view = Canvas().View();
    EXPECT_NEAR(view.Centre().x(), 2, view.UnitsPerPixel());
    EXPECT_NEAR(view.Centre().y(), 3, view.UnitsPerPixel());
}

TEST_F(MapMenuTest, CopiesLongitudeAndLatitude)
{
    QMenu& menu = OpenMenu({5, 5});
    auto* copies = menu.findChild<QMenu*>("mnuCopyCoordinates");
    ASSERT_NE(copies, nullptr);
    ASSERT_EQ(copies->actions().size(), 1) << "the map is in degrees itself";
    copies->actions().first()->trigger();
    const QStringList numbers = QApplication::clipboard()->text().split(", ");
    ASSERT_EQ(numbers.size(), 2);
    EXPECT_NEAR(numbers.at(0).toDouble(), 5, 0.1);
    EXPECT_NEAR(numbers.at(1).toDouble(), 5, 0.1);
}

TEST_F(MapMenuTest, CopiesAlsoTheCoordinatesOfTheMap)
{
    m_window->Document().SetSystem("EPSG:3857");
    QMenu& menu = OpenMenu({5, 5});
    const auto copies = menu.findChild<QMenu*>("mnuCopyCoordinates")->actions();
    ASSERT_EQ(copies.size(), 2);
    copies.at(1)->trigger();
    EXPECT_NEAR(QApplication::clipboard()->text().section(", ", 0, 0).toDouble(), 5, 0.1);
}

TEST_F(MapMenuTest, StaysAwayWhileALineIsMeasured)
{
    Action("actMeasureLine")->trigger();
    QTest::mouseClick(&Canvas(), Qt::LeftButton, {}, {50, 50});
    RightClick({5, 5});
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    OpenMenu({5, 5}); // the line has ended
}

} // namespace Orvane

#include "MapMenuTest.moc"

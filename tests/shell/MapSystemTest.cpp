// SPDX-License-Identifier: MIT
// The map's coordinate system in the window: shown, chosen, undone; and data that name none.
#include "hostkit/undo/UndoHistory.h"
#include "mapkit/UnnamedFile.h"
#include "mapkit/canvas/MapCanvas.h"
#include "shell/MainWindowTest.h"
#include "shell/systems/SystemChooser.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace Orvane {

using namespace Testing;

namespace {

const Box Utm{500000, 5500000, 510000, 5510000};

class MapSystemTest : public MainWindowTest
{
protected:
    MapSystemTest() { m_window->OpenMap(MakeMap("map.orvane")); }

    QToolButton* Button() const { return m_window->findChild<QToolButton*>("cmdMapSystem"); }
    QString Notice() const
    {
        auto* label = m_window->findChild<QLabel*>("lblNotice");
        return label->isVisible() ? label->text() : QString();
    }
    QString System() const { return m_window->Document().System(); }

    // Runs act, which opens a window, in which the user then does something.
    template <typename Dialog, typename Act, typename User> static void InWindow(Act act, User user)
    {
        bool isShown = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (!dialog || isShown)
                return;
            isShown = true;
            user(*dialog);
        });
        look.start(5);
        act();
        EXPECT_TRUE(isShown);
    }

    static void Type(QDialog& dialog, const QString& system)
    {
        auto* text = dialog.findChild<QLineEdit*>("edtSystem");
        text->selectAll();
        QTest::keyClicks(text, system);
        QTest::keyClick(text, Qt::Key_Return);
    }

    void Choose(const QString& system)
    {
        InWindow<SystemChooser>(
            [this] { QTest::mouseClick(Button(), Qt::LeftButton); },
            [&](QDialog& dialog) { Type(dialog, system); });
    }
};

} // namespace

TEST_F(MapSystemTest, TheStatusBarShowsTheSystem)
{
    EXPECT_EQ(Button()->text(), "WGS 84 (EPSG:4326)");
    EXPECT_TRUE(Button()->toolTip().contains("degree"));
    Choose("EPSG:32632");
    EXPECT_TRUE(Button()->toolTip().contains("WGS 84 / UTM zone 32N (EPSG:32632)"));
    EXPECT_TRUE(Button()->toolTip().contains("metre"));
}

TEST_F(MapSystemTest, AnotherSystemKeepsThePlaceAndEveryLayer)
{
    MapCanvas& canvas = m_window->Canvas();
    canvas.SetView(MapView({5, 5}, 0.001, canvas.size()));
    Choose("EPSG:3857");
    EXPECT_EQ(System(), "EPSG:3857");
    EXPECT_NEAR(canvas.View().Centre().x(), 5 * 111319.49, 1);
    EXPECT_NEAR(canvas.View().UnitsPerPixel(), 111.3, 1);
    EXPECT_NEAR(canvas.Layers().at(0).features->Bounds().maxX, 1113194.9, 1);
    EXPECT_EQ(Notice(), "");
}

TEST_F(MapSystemTest, UndoAndRedoChangeTheSystemAndTheLayers)
{
    Choose("EPSG:3857");
    Action("actUndo")->trigger();
    EXPECT_EQ(System(), "EPSG:4326");
    const auto right = [this] { return m_window->Canvas().Layers().at(0).features->Bounds().maxX; };
    EXPECT_TRUE(QTest::qWaitFor([&] { return right() == 10; }));
    EXPECT_EQ(Button()->text(), "WGS 84 (EPSG:4326)");
    Action("actRedo")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return right() > 1e6; }));
    EXPECT_TRUE(Button()->toolTip().contains("EPSG:3857"));
}

TEST_F(MapSystemTest, WhatHasNoPlaceInTheSystemIsNamedAndComesBack)
{
    m_window->AddData({m_folder.WriteSquare("behind.geojson", -170, -50)});
    Choose("+proj=ortho +lat_0=5 +lon_0=5");
    EXPECT_TRUE(Notice().contains("behind")) << qPrintable(Notice());
    EXPECT_FALSE(Notice().contains("Square"));
    Choose("EPSG:4326");
    EXPECT_EQ(Notice(), "");
    EXPECT_EQ(m_window->Canvas().Layers().at(1).features->Bounds().minY, -50);
}

TEST_F(MapSystemTest, WhatIsAssumedAboutDataIsToldWithoutAQuestion)
{
    m_window->AddData({WriteUnnamed(m_folder.Path("places.shp"), {1, 1, 2, 2})});
    EXPECT_TRUE(Notice().contains("places.shp")) << qPrintable(Notice());
    EXPECT_TRUE(Notice().contains("EPSG:4326"));
    EXPECT_EQ(m_window->Document().Sources().at(1).system, "EPSG:4326");
    QTest::mouseClick(m_window->findChild<QToolButton*>("cmdCloseNotice"), Qt::LeftButton);
    EXPECT_EQ(Notice(), "");
}

TEST_F(MapSystemTest, TheUserIsAskedOnceForDataThatFitNothing)
{
    const QStringList paths{
        WriteUnnamed(m_folder.Path("a.shp"), Utm), WriteUnnamed(m_folder.Path("b.shp"), Utm)};
    InWindow<SystemChooser>(
        [&] { m_window->AddData(paths); },
        [](QDialog& dialog) {
            EXPECT_TRUE(dialog.findChild<QLabel*>("lblQuestion")->text().contains("a.shp, b.shp"));
            Type(dialog, "EPSG:32632");
        });
    EXPECT_EQ(m_window->Document().Sources().at(1).system, "EPSG:32632");
    EXPECT_EQ(m_window->Document().Sources().at(2).system, "EPSG:32632");
    EXPECT_NEAR(m_window->Canvas().Layers().at(1).features->Bounds().minX, 9, 0.01);
}

TEST_F(MapSystemTest, CancelAddsDataOfUnknownPlaceAndSaysSo)
{
    InWindow<SystemChooser>(
        [&] { m_window->AddData({WriteUnnamed(m_folder.Path("a.shp"), Utm)}); },
        [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(m_window->Document().Sources().at(1).system, "");
    EXPECT_EQ(m_window->Canvas().Layers().at(1).features->Bounds().minX, Utm.minX);
    EXPECT_TRUE(Notice().contains("a.shp"));
}

TEST_F(MapSystemTest, LayerPropertiesChangeTheSystemOfDataAndUndoTakesItBack)
{
    InWindow<QDialog>(
        [this] { Action("actLayerProperties")->trigger(); },
        [](QDialog& dialog) {
            EXPECT_TRUE(dialog.findChild<QLabel*>("lblSource")->text().endsWith("square.geojson"));
            EXPECT_EQ(dialog.findChild<QLabel*>("lblFormat")->text(), "GeoJSON");
            EXPECT_EQ(dialog.findChild<QLabel*>("lblCount")->text(), "1");
            EXPECT_EQ(dialog.findChild<QLabel*>("lblSystem")->text(), "WGS 84 (EPSG:4326)");
            InWindow<SystemChooser>(
                [&] { QTest::mouseClick(dialog.findChild<QPushButton*>("cmdChange"), Qt::LeftButton); },
                [](QDialog& chooser) { Type(chooser, "EPSG:3857"); });
            EXPECT_TRUE(dialog.findChild<QLabel*>("lblSystem")->text().contains("EPSG:3857"));
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
    EXPECT_EQ(m_window->Document().Sources().at(0).system, "EPSG:3857");
    const auto right = [this] { return m_window->Canvas().Layers().at(0).features->Bounds().maxX; };
    EXPECT_LT(right(), 0.001);
    Action("actUndo")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return right() == 10; }));
    EXPECT_EQ(m_window->Document().Sources().at(0).system, "");
}

TEST_F(MapSystemTest, LayerPropertiesOfAPartShowWhatTheLayerShows)
{
    m_window->AddData({m_folder.WriteGeometries(
        "plan.geojson",
        {R"({"type":"Point","coordinates":[1,2]})", R"({"type":"Point","coordinates":[3,4]})",
         R"({"type":"LineString","coordinates":[[50,60],[55,65]]})"})});
    QStringList shown;
    InWindow<QDialog>(
        [this] { Action("actLayerProperties")->trigger(); },
        [&](QDialog& dialog) {
            QTest::keyClicks(dialog.findChild<QComboBox*>("cmbLayer"), "plan (points)");
            shown << dialog.findChild<QLabel*>("lblCount")->text()
                  << dialog.findChild<QLabel*>("lblExtent")->text();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    EXPECT_EQ(shown.value(0), "2");
    EXPECT_TRUE(shown.value(1).contains("1.0000 to 3.0000")) << qPrintable(shown.value(1));
}

TEST_F(MapSystemTest, LayerPropertiesSayWhenTheSourceCannotBeRead)
{
    LayerSource source = m_window->Document().Sources().at(0);
    source.system = "EPSG:4326";
    m_window->Document().SetSource(source);
    m_folder.Write("square.geojson", "broken");
    QString origin;
    InWindow<QDialog>(
        [this] { Action("actLayerProperties")->trigger(); },
        [&](QDialog& dialog) {
            origin = dialog.findChild<QLabel*>("lblOrigin")->text();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    EXPECT_EQ(origin, "It was assumed or chosen; the source cannot be read.");
}

TEST_F(MapSystemTest, AMapWithoutDataHasNoSystem)
{
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    EXPECT_EQ(Button()->text(), "No coordinate system");
    m_window->AddData({m_folder.WriteSquare("a.geojson", 5, 45)});
    EXPECT_TRUE(Button()->toolTip().contains("EPSG:3857"));
    Action("actUndo")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Button()->text() == "No coordinate system"; }));
}

TEST_F(MapSystemTest, AMapThatShowsEverythingGoesOnDoingSoUntilItIsMoved)
{
    MapCanvas& canvas = m_window->Canvas();
    const auto showsAll = [&] {
        const Box shown = canvas.View().Extent();
        return shown.minX <= 0 && shown.maxX >= 10 && shown.minY <= 0 && shown.maxY >= 10;
    };
    const QSize size = m_window->size();
    m_window->resize(size.width() / 2, size.height() / 2);
    EXPECT_TRUE(showsAll());
    EXPECT_LT(canvas.View().Extent().Height(), 11);
    canvas.ZoomIn();
    const double scale = canvas.View().UnitsPerPixel();
    m_window->resize(size);
    EXPECT_EQ(canvas.View().UnitsPerPixel(), scale);
}

TEST_F(MapSystemTest, ViewsOfTheFormerSystemCannotBeGoneBackTo)
{
    m_window->Canvas().ZoomIn();
    ASSERT_TRUE(Action("actPreviousView")->isEnabled());
    Choose("EPSG:3857");
    EXPECT_FALSE(Action("actPreviousView")->isEnabled());
}

} // namespace Orvane

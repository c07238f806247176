// SPDX-License-Identifier: MIT
#include "shell/map/TableQuestions.h"

#include "mapkit/common/Progress.h"
#include "shell/MainWindowTest.h"
#include "shell/dialogs/TableColumnsDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace Orvane {

namespace {

using Testing::MainWindowTest;

class TableQuestionsTest : public MainWindowTest
{
protected:
    // Lets act do something in the window for tables when it is open; Enter or Escape must end it.
    void WhenAsked(const std::function<void(QWidget& window)>& act)
    {
        QTimer::singleShot(0, m_window.get(), [this, act] {
            QWidget* window = QApplication::activeWindow();
            if (!qobject_cast<TableColumnsDialog*>(window))
                return WhenAsked(act);
            ++m_questions;
            act(*window);
        });
    }
    static void PressEnter(QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); }

    // As the menu shows it when it is opened.
    QAction* FileCommand(const char* name)
    {
        auto* menu = m_window->findChild<QMenu*>("menuFile");
        emit menu->aboutToShow();
        for (QAction* action : menu->actions()) {
            if (action->objectName() == QLatin1String(name))
                return action;
        }
        ADD_FAILURE() << name;
        return menu->menuAction();
    }

    QString WriteTowns(const QString& name)
    {
        return m_folder.Write(name, "name,lon,lat,x,y\nA,13,52,1,2\nB,14,53,3,4\n");
    }
    Box Bounds() { return m_window->Session().Layers().at(0).features->Bounds(); }

    int m_questions = 0;
};

} // namespace

TEST_F(TableQuestionsTest, ATableIsAddedWithTheColumnsThatAreShown)
{
    m_window->Document().SetSystem("EPSG:4326");
    WhenAsked(PressEnter);
    m_window->AddData({WriteTowns("towns.csv")});
    EXPECT_EQ(m_questions, 1);
    ASSERT_EQ(Count("Layers"), 1);
    EXPECT_EQ(Bounds(), (Box{13, 52, 14, 53}));
}

TEST_F(TableQuestionsTest, SeveralTablesAreAskedAboutOnce)
{
    WhenAsked(PressEnter);
    m_window->AddData({WriteTowns("a.csv"), WriteTowns("b.csv"), m_folder.WriteSquare("c.geojson")});
    EXPECT_EQ(m_questions, 1);
    EXPECT_EQ(Count("Layers"), 3);
}

TEST_F(TableQuestionsTest, EscapeAddsNothing)
{
    WhenAsked([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    EXPECT_THROW(m_window->AddData({WriteTowns("a.csv"), m_folder.WriteSquare("c.geojson")}), Cancelled);
    EXPECT_EQ(Count("Layers"), 0);
}

TEST_F(TableQuestionsTest, TheColumnsAreChangedLaterAndThatIsUndone)
{
    m_window->Document().SetSystem("EPSG:4326");
    EXPECT_FALSE(FileCommand("actTableColumns")->isEnabled());
    WhenAsked(PressEnter);
    m_window->AddData({WriteTowns("towns.csv")});
    ASSERT_TRUE(FileCommand("actTableColumns")->isEnabled());
    WhenAsked([](QWidget& window) {
        QTest::keyClicks(window.findChild<QComboBox*>("cmbX"), "x");
        QTest::keyClicks(window.findChild<QComboBox*>("cmbY"), "y");
        PressEnter(window);
    });
    FileCommand("actTableColumns")->trigger();
    EXPECT_EQ(Bounds(), (Box{1, 2, 3, 4}));
    Action("actUndo")->trigger();
    EXPECT_EQ(m_window->Document().Sources().at(0).choice.columns.x, "lon");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Bounds() == Box{13, 52, 14, 53}; })) << "the map follows";
}

TEST_F(TableQuestionsTest, TheLayersOfOneTableAreAskedAboutOnce)
{
    const QString path = m_folder.Write(
        "sites.csv", "geom;x;y\n\"LINESTRING (0 0,1 1)\";5;6\n\"POLYGON ((0 0,4 0,4 4,0 0))\";7;8\n");
    WhenAsked([](QWidget& window) {
        window.findChild<QRadioButton*>("optGeometry")->click();
        QTest::keyClicks(window.findChild<QComboBox*>("cmbGeometry"), "geom");
        PressEnter(window);
    });
    m_window->AddData({path});
    ASSERT_EQ(Count("Layers"), 2);
    int tables = 0;
    WhenAsked([&](QWidget& window) {
        tables = window.findChild<QListWidget*>("lstTables")->count();
        PressEnter(window);
    });
    FileCommand("actTableColumns")->trigger();
    EXPECT_EQ(tables, 1);
}

TEST_F(TableQuestionsTest, ALayerOfLinesShowsThePointsOfOtherColumns)
{
    LayerSource lines;
    lines.layerID = m_window->Document().AddLayer(NewLayer());
    lines.path = m_folder.Write("sites.csv", "geom;x;y\n\"LINESTRING (0 0,1 1)\";5;6\n");
    lines.ogrLayer = "sites";
    lines.choice = {{{}, {}, "geom"}, {FeatureKind::Line}};
    m_window->Document().SetSource(lines);
    WhenAsked([](QWidget& window) {
        window.findChild<QRadioButton*>("optNumbers")->click();
        QTest::keyClicks(window.findChild<QComboBox*>("cmbX"), "x");
        QTest::keyClicks(window.findChild<QComboBox*>("cmbY"), "y");
        PressEnter(window);
    });
    FileCommand("actTableColumns")->trigger();
    const GeometryChoice choice = m_window->Document().Sources().at(0).choice;
    EXPECT_EQ(choice.columns.x, "x");
    EXPECT_TRUE(choice.Takes(FeatureKind::Point));
}

} // namespace Orvane

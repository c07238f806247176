// SPDX-License-Identifier: MIT
#include "shell/table/AttributeTables.h"

#include "mapkit/canvas/MapCanvas.h"
#include "shell/MainWindowTest.h"
#include "shell/table/AttributeTable.h"
#include "support/MessageBoxRobot.h"

#include <QApplication>
#include <QComboBox>
#include <QInputDialog>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::UnorderedElementsAre;

namespace {

class AttributeTablesTest : public MainWindowTest
{
protected:
    AttributeTablesTest()
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == m_window.get(); }));
    }

    void OpenMap() { m_window->OpenMap(MakeMap("map.orvane")); }

    void AddSquare(const QString& name)
    {
        NewLayer layer;
        layer.name = name;
        layer.path = m_folder.WriteSquare(name + ".geojson", 20, 20);
        layer.ogrLayer = name;
        m_window->Document().AddLayer(layer);
        m_window->Session().ReadAndShow();
    }

    void PressF6() { QTest::keyClick(m_window.get(), Qt::Key_F6); }
    QList<AttributeTable*> Tables() const { return m_window->findChildren<AttributeTable*>(); }
    // The value of the first row and column, as soon as it is read.
    QString FirstValue(const AttributeTable& table) const
    {
        const QAbstractItemModel& model = *table.findChild<QTableView*>("tblRows")->model();
        const auto value = [&] { return model.index(0, 0).data().toString(); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return model.rowCount() > 0 && value() != "..."; }));
        return value();
    }
    void SelectFirstRow(const AttributeTable& table) const
    {
        QTableView& view = *table.findChild<QTableView*>("tblRows");
        FirstValue(table);
        QTest::mouseClick(
            view.viewport(), Qt::LeftButton, {}, view.visualRect(view.model()->index(0, 0)).center());
    }
    // Does this in the next dialog that asks for a layer.
    template <typename Act> void InDialog(Act act)
    {
        QTimer::singleShot(0, m_window.get(), [act] {
            auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
        });
    }
};

} // namespace

TEST_F(AttributeTablesTest, OpensTheTableOfTheOnlyLayerByItsKey)
{
    OpenMap();
    PressF6();
    ASSERT_EQ(Tables().size(), 1);
    EXPECT_TRUE(Tables()[0]->isVisible());
    EXPECT_EQ(Tables()[0]->windowTitle(), "Attributes of Square");
    EXPECT_EQ(FirstValue(*Tables()[0]), "a");
    PressF6();
    EXPECT_EQ(Tables().size(), 1);
}

TEST_F(AttributeTablesTest, AsksForTheLayerIfThereAreSeveral)
{
    OpenMap();
    AddSquare("Field");
    InDialog([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QComboBox*>()->count(), 2);
        QTest::keyClick(dialog.findChild<QComboBox*>(), Qt::Key_Down);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    PressF6();
    ASSERT_EQ(Tables().size(), 1);
    EXPECT_EQ(Tables()[0]->windowTitle(), "Attributes of Square");
}

TEST_F(AttributeTablesTest, TellsLayersOfTheSameNameApartByANumber)
{
    OpenMap();
    for (const char* name : {"Square", "Square", "Square (2)"})
        AddSquare(name);
    InDialog([](QInputDialog& dialog) {
        EXPECT_THAT(
            dialog.comboBoxItems(),
            UnorderedElementsAre("Square", "Square (2)", "Square (3)", "Square (2) (2)"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    PressF6();
    EXPECT_TRUE(Tables().isEmpty());
}

TEST_F(AttributeTablesTest, OpensTheTableOfTheLayerThatIsSelectedOnTheMap)
{
    OpenMap();
    AddSquare("Field");
    m_window->Canvas().ZoomToAll();
    Action("actSelect")->trigger();
    MapCanvas& canvas = m_window->Canvas();
    QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.View().ToPixel({25, 25}).toPoint());
    PressF6();
    ASSERT_EQ(Tables().size(), 1);
    EXPECT_EQ(Tables()[0]->windowTitle(), "Attributes of Field");
}

TEST_F(AttributeTablesTest, TellsThatAMapHasNoData)
{
    MessageBoxRobot user{BoxKey::Escape};
    PressF6();
    EXPECT_EQ(user.Only().text, "The map has no layer with data.");
    EXPECT_TRUE(Tables().isEmpty());
}

TEST_F(AttributeTablesTest, IsACommandOfTheLayerControlForLayersWithData)
{
    OpenMap();
    NewLayer bare;
    bare.name = "Bare";
    const qint32 withoutData = m_window->Document().AddLayer(bare);
    m_window->Document().Database().Execute("DELETE FROM LayerSources WHERE LayerID = 2");
    INodeCommands& commands = m_window->Session().Shell();
    const std::vector<NodeCommand> all = commands.Commands(nullptr);
    const auto table = std::find_if(
        all.begin(), all.end(), [](const NodeCommand& command) { return command.text == "Attribute Table"; });
    ASSERT_NE(table, all.end());
    EXPECT_EQ(commands.WhyNot(table->id, {1}), "");
    EXPECT_EQ(commands.WhyNot(table->id, {withoutData}), "This layer has no data, and so no attributes.");
    commands.Run(nullptr, table->id, {1});
    ASSERT_EQ(Tables().size(), 1);
}

TEST_F(AttributeTablesTest, ShowsTheSelectionOnTheMap)
{
    OpenMap();
    PressF6();
    AddSquare("Field");
    SelectFirstRow(*Tables()[0]);
    m_window->Canvas().SetView(MapView({100, 100}, 1, m_window->Canvas().size()));
    QTest::mouseClick(Tables()[0]->findChild<QToolButton*>("btnZoom"), Qt::LeftButton);
    const Box shown = m_window->Canvas().View().Extent();
    EXPECT_TRUE(shown.Intersects({0, 0, 10, 10}));
    EXPECT_FALSE(shown.Intersects({20, 20, 30, 30}));
}

TEST_F(AttributeTablesTest, ClosesWithItsLayerAndWithTheMap)
{
    OpenMap();
    PressF6();
    m_window->Document().Database().Execute("DELETE FROM Layers");
    m_window->Session().ReadAndShow();
    EXPECT_TRUE(Tables().isEmpty());
    m_window->OpenMap(MakeMap("other.orvane"));
    PressF6();
    EXPECT_EQ(Tables().size(), 1);
    m_window->OpenMap(MakeMap("third.orvane"));
    EXPECT_TRUE(Tables().isEmpty());
}

TEST_F(AttributeTablesTest, ReadsAFileAgainThatHasChanged)
{
    OpenMap();
    PressF6();
    const AttributeTable& table = *Tables()[0];
    EXPECT_EQ(FirstValue(table), "a");
    m_folder.Write(
        "square.geojson",
        R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{"type":"changed"},)"
        R"("geometry":{"type":"Point","coordinates":[1,2]}}]})");
    EXPECT_TRUE(QTest::qWaitFor([&] { return FirstValue(table) == "changed"; }));
}

TEST_F(AttributeTablesTest, HasTheNewNameOfALayer)
{
    OpenMap();
    PressF6();
    m_window->Document().Database().Execute("UPDATE Layers SET Name = 'Plot'");
    m_window->Session().ReadAndShow();
    EXPECT_EQ(Tables()[0]->windowTitle(), "Attributes of Plot");
}

} // namespace Orvane

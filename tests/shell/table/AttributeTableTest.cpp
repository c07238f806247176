// SPDX-License-Identifier: MIT
#include "shell/table/AttributeTableTest.h"

#include <QClipboard>
#include <QComboBox>
#include <QToolButton>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(AttributeTableTest, ShowsAllRowsWithTheirNumber)
{
    OpenAndWait();
    EXPECT_EQ(m_table->windowTitle(), "Attributes of Towns");
    EXPECT_EQ(Count(), "Rows: 4");
    EXPECT_EQ(Cell(1, 1), "40");
    EXPECT_EQ(View().model()->headerData(2, Qt::Horizontal).toString(), "area");
    EXPECT_EQ(View().model()->headerData(2, Qt::Vertical).toInt(), 3);
}

TEST_F(AttributeTableTest, ShowsDotsUntilARowIsRead)
{
    Open();
    std::vector<QString> first;
    QObject::connect(View().model(), &QAbstractItemModel::rowsInserted, [&] {
        if (first.empty())
            first = Shown();
    });
    EXPECT_TRUE(WaitFor(FileOrder));
    EXPECT_THAT(first, ElementsAre("...", "...", "...", "..."));
}

TEST_F(AttributeTableTest, ShowsNullPaleAndInItalicsAndNumbersAtTheRight)
{
    OpenAndWait();
    const QModelIndex null = View().model()->index(1, 2);
    EXPECT_EQ(null.data().toString(), "NULL");
    EXPECT_TRUE(null.data(Qt::FontRole).value<QFont>().italic());
    EXPECT_EQ(
        null.data(Qt::ForegroundRole).value<QBrush>().color(),
        QApplication::palette().color(QPalette::Disabled, QPalette::Text));
    EXPECT_TRUE(null.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_FALSE(View().model()->index(1, 0).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

TEST_F(AttributeTableTest, IsSortedByClicksOnAColumnUpDownAndBack)
{
    OpenAndWait();
    ClickHeader(1);
    EXPECT_TRUE(WaitFor({"Aue", Brueck, "Ober", "Zell"}));
    EXPECT_EQ(View().horizontalHeader()->sortIndicatorSection(), 1);
    ClickHeader(1);
    EXPECT_TRUE(WaitFor({"Zell", "Ober", "Aue", Brueck}));
    ClickHeader(1);
    EXPECT_TRUE(WaitFor(FileOrder));
    EXPECT_NE(View().horizontalHeader()->sortIndicatorSection(), 1);
}

TEST_F(AttributeTableTest, ShowsOnlyTheRowsThatAreFound)
{
    OpenAndWait();
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "by the");
    EXPECT_TRUE(WaitFor({"Aue", Brueck}));
    EXPECT_EQ(Count(), "Rows: 2 of 4");
    Key(Qt::Key_Escape);
    EXPECT_TRUE(WaitFor(FileOrder));
    EXPECT_EQ(Count(), "Rows: 4");
}

TEST_F(AttributeTableTest, FindsInTheChosenColumnOnly)
{
    OpenAndWait();
    auto& column = Part<QComboBox>("cmbFindIn");
    column.setFocus();
    Key(Qt::Key_Down); // the first column
    EXPECT_EQ(column.currentText(), "name");
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "e");
    EXPECT_TRUE(WaitFor({"Ober", "Aue", "Zell"}));
}

TEST_F(AttributeTableTest, GoesFromFoundRowToFoundRowByF3)
{
    OpenAndWait();
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "by the");
    ASSERT_TRUE(WaitFor({"Aue", Brueck}));
    Key(Qt::Key_F3);
    EXPECT_THAT(m_features.Keys(), ElementsAre(FeatureKey{1, 2}));
    Key(Qt::Key_F3);
    EXPECT_THAT(m_features.Keys(), ElementsAre(FeatureKey{1, 4}));
    Key(Qt::Key_F3);
    EXPECT_THAT(m_features.Keys(), ElementsAre(FeatureKey{1, 2}));
    Key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_THAT(m_features.Keys(), ElementsAre(FeatureKey{1, 4}));
}

TEST_F(AttributeTableTest, SelectsOnTheMapWhatIsSelectedInItAndLeavesOtherLayersAlone)
{
    m_features.Set({{7, 1}});
    OpenAndWait();
    ClickRow(0);
    ClickRow(2, Qt::ControlModifier);
    EXPECT_THAT(m_features.Keys(), ElementsAre(FeatureKey{1, 1}, FeatureKey{1, 3}, FeatureKey{7, 1}));
    EXPECT_EQ(Count(), "Rows: 4    Selected: 2");
}

TEST_F(AttributeTableTest, SelectsWhatIsSelectedOnTheMapAlsoAfterSorting)
{
    m_features.Set({{1, 4}});
    OpenAndWait();
    EXPECT_TRUE(View().selectionModel()->isRowSelected(3, {}));
    ClickHeader(1);
    ASSERT_TRUE(WaitFor({"Aue", Brueck, "Ober", "Zell"}));
    EXPECT_TRUE(View().selectionModel()->isRowSelected(1, {}));
    m_features.Set({{1, 3}, {2, 4}});
    EXPECT_TRUE(View().selectionModel()->isRowSelected(3, {}));
    EXPECT_FALSE(View().selectionModel()->isRowSelected(1, {}));
}

TEST_F(AttributeTableTest, KeepsAHiddenRowSelected)
{
    m_features.Set({{1, 1}});
    OpenAndWait();
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "by the");
    ASSERT_TRUE(WaitFor({"Aue", Brueck}));
    EXPECT_THAT(m_features.Keys(), ElementsAre(FeatureKey{1, 1}));
}

TEST_F(AttributeTableTest, ShowsOnlySelectedRowsAndFollowsTheMapThen)
{
    m_features.Set({{1, 1}, {1, 3}});
    OpenAndWait();
    QTest::mouseClick(&Part<QToolButton>("btnOnlySelected"), Qt::LeftButton);
    EXPECT_TRUE(WaitFor({"Ober", "Zell"}));
    m_features.Set({{1, 2}});
    EXPECT_TRUE(WaitFor({"Aue"}));
    QTest::mouseClick(&Part<QToolButton>("btnOnlySelected"), Qt::LeftButton);
    EXPECT_TRUE(WaitFor(FileOrder));
}

TEST_F(AttributeTableTest, SelectsNothingOnTheMapIfTheLayerIsNotSelectable)
{
    OpenAndWait(false);
    ClickRow(0);
    EXPECT_THAT(m_features.Keys(), IsEmpty());
    const QString selected = "Rows: 4    Selected: 1    The layer is not selectable on the map.";
    EXPECT_EQ(Count(), selected);
    m_features.Set({{7, 1}}); // in another layer
    EXPECT_EQ(Count(), selected);
}

TEST_F(AttributeTableTest, AsksTheMapToShowTheSelectedFeatures)
{
    OpenAndWait();
    std::set<qint64> wanted;
    QObject::connect(
        m_table, &AttributeTable::ZoomWanted, [&](const std::set<qint64>& ids) { wanted = ids; });
    EXPECT_FALSE(Part<QToolButton>("btnZoom").isEnabled());
    ClickRow(2);
    QTest::mouseClick(&Part<QToolButton>("btnZoom"), Qt::LeftButton);
    EXPECT_THAT(wanted, ElementsAre(3));
}

TEST_F(AttributeTableTest, CopiesTheSelectedRowsWithTheNamesOfTheColumns)
{
    OpenAndWait();
    ClickRow(2);
    View().setFocus();
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(
        QApplication::clipboard()->text(),
        "name\tpeople\tarea\tsince\tnote\nZell\t7000\t" + CellText(10.0, QLocale()) + "\t\t\n");
}

TEST_F(AttributeTableTest, CopiesOneValue)
{
    OpenAndWait();
    ClickRow(1);
    View().setFocus();
    Key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Aue");
}

// Each is a range of its own; to compare each with each would take minutes.

} // namespace Orvane

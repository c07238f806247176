// SPDX-License-Identifier: MIT
#include "shell/table/AttributeTableTest.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QStackedWidget>

namespace Orvane {

using namespace Testing;

TEST_F(AttributeTableTest, KeepsOrderFindAndCurrentRowWhenItIsReadAgain)
{
    OpenAndWait();
    ClickHeader(1);
    ASSERT_TRUE(WaitFor({"Aue", Brueck, "Ober", "Zell"}));
    ClickRow(2);
    WriteTowns(m_folder, "other.gpkg", "GPKG");
    ASSERT_TRUE(QFile::remove(m_source.path));
    ASSERT_TRUE(QFile::rename(m_folder.Path("other.gpkg"), m_source.path));
    m_table->ReadAgain();
    QSignalSpy order(View().model(), &QAbstractItemModel::modelReset);
    ASSERT_TRUE(QTest::qWaitFor([&] { return order.size() >= 2; }));
    EXPECT_TRUE(WaitFor({"Aue", Brueck, "Ober", "Zell"}));
    EXPECT_EQ(View().currentIndex().row(), 2);
    EXPECT_TRUE(View().selectionModel()->isRowSelected(2, {}));
}

TEST_F(AttributeTableTest, TellsThatTheDataAreMissingAndShowsThemWhenTheyAreBack)
{
    const QString away = m_folder.Path("away.gpkg");
    ASSERT_TRUE(QFile::rename(m_source.path, away));
    Open();
    auto& pages = Part<QStackedWidget>("pages");
    ASSERT_TRUE(QTest::qWaitFor([&] { return pages.currentIndex() == 1; }));
    EXPECT_TRUE(Part<QLabel>("lblMessage").text().contains("towns.gpkg"));
    ASSERT_TRUE(QFile::rename(away, m_source.path));
    m_table->ReadAgain();
    EXPECT_TRUE(WaitFor(FileOrder));
    EXPECT_EQ(pages.currentIndex(), 0);
}

TEST_F(AttributeTableTest, KeepsItsRowsAndTellsWhyWhenTheyCannotBeSorted)
{
    OpenAndWait();
    SpoilData();
    ClickHeader(1);
    auto& failure = Part<QLabel>("lblFailure");
    ASSERT_TRUE(QTest::qWaitFor([&] { return failure.isVisible(); }));
    EXPECT_TRUE(failure.text().contains("towns.gpkg")) << qPrintable(failure.text());
    EXPECT_EQ(Shown(), FileOrder);
    EXPECT_TRUE(View().isVisible());
    EXPECT_NE(View().horizontalHeader()->sortIndicatorSection(), 1);
}

TEST_F(AttributeTableTest, KeepsItsRowsAndTellsWhyWhenTheyCannotBeSearched)
{
    OpenAndWait();
    const QByteArray content = SpoilData();
    Key(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "by");
    auto& failure = Part<QLabel>("lblFailure");
    ASSERT_TRUE(QTest::qWaitFor([&] { return failure.isVisible(); }));
    EXPECT_EQ(Shown(), FileOrder);
    Write(content);
    m_table->ReadAgain();
    EXPECT_TRUE(WaitFor({"Aue", Brueck}));
    EXPECT_FALSE(failure.isVisible());
}

TEST_F(AttributeTableTest, FollowsTheMapFromManySingleRowsToOthers)
{
    constexpr int Count = 60000;
    QByteArray rows = "number,name\n";
    FeatureKeys even;
    FeatureKeys odd;
    for (int id = 1; id <= Count; ++id) {
        rows += QByteArray::number(id) + ",a\n";
        (id % 2 == 0 ? even : odd).insert({1, id});
    }
    m_source.path = m_folder.Write("many.csv", rows);
    m_source.ogrLayer = "many";
    m_features.Set(even);
    Open();
    const QItemSelectionModel& selected = *View().selectionModel();
    ASSERT_TRUE(QTest::qWaitFor([&] { return selected.model()->rowCount() == Count; }));
    EXPECT_EQ(selected.selection().size(), Count / 2);
    EXPECT_TRUE(selected.isRowSelected(Count - 1, {}));
    m_features.Set(odd);
    EXPECT_EQ(selected.selection().size(), Count / 2);
    EXPECT_TRUE(selected.isRowSelected(Count - 2, {}));
    EXPECT_FALSE(selected.isRowSelected(Count - 1, {}));
    EXPECT_EQ(m_features.Keys(), odd);
}

TEST_F(AttributeTableTest, ShowsTheRowsOfTheKindsThatItsLayerShowsNow)
{
    OpenAndWait();
    m_source.choice.kinds = {FeatureKind::Line};
    m_table->Follow({"Towns", m_source, true});
    EXPECT_TRUE(QTest::qWaitFor([&] { return View().model()->rowCount() == 0; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Count() == "Rows: 0"; })) << qPrintable(Count());
    m_source.choice.kinds = {FeatureKind::Point};
    m_table->Follow({"Towns", m_source, true});
    EXPECT_TRUE(WaitFor(FileOrder));
}

TEST_F(AttributeTableTest, TellsThatThereAreNoAttributes)
{
    m_source.path = m_folder.Write(
        "bare.geojson",
        R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{},)"
        R"("geometry":{"type":"Point","coordinates":[1,2]}}]})");
    m_source.ogrLayer = "bare";
    Open();
    auto& pages = Part<QStackedWidget>("pages");
    ASSERT_TRUE(QTest::qWaitFor([&] { return pages.currentIndex() == 1; }));
    EXPECT_EQ(Part<QLabel>("lblMessage").text(), "The features of this layer have no attributes.");
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "shell/table/AttributeTable.h"

#include "mapkit/attributes/TableFile.h"
#include "shell/features/FeatureSelection.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString Brueck = QStringLiteral("Br\u00fcck");

class AttributeTableTest : public testing::Test
{
protected:
    AttributeTableTest()
    {
        QSettings().clear();
        m_source = WriteTowns(m_folder, "towns.gpkg", "GPKG");
    }

    ~AttributeTableTest() override { delete m_table; }

    void Open(bool isSelectable = true)
    {
        m_table = new AttributeTable({"Towns", m_source, isSelectable}, m_features, nullptr);
        m_table->show();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == m_table; }));
    }

    void OpenAndWait(bool isSelectable = true)
    {
        Open(isSelectable);
        m_tester = std::make_unique<QAbstractItemModelTester>(View().model());
        EXPECT_THAT(Names(), ElementsAre("Ober", "Aue", "Zell", Brueck));
    }

    template <typename Widget> Widget& Part(const char* name) const
    {
        return *m_table->findChild<Widget*>(QLatin1String(name));
    }
    QTableView& View() const { return Part<QTableView>("tblRows"); }
    QString Cell(int row, int column) const { return View().model()->index(row, column).data().toString(); }

    // The first column, as soon as the table is at rest.
    std::vector<QString> Names() const
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return IsAtRest(); }));
        return Shown();
    }
    bool IsAtRest() const
    {
        const std::vector<QString> names = Shown();
        return !names.empty() && std::find(names.begin(), names.end(), "...") == names.end();
    }
    std::vector<QString> Shown() const
    {
        std::vector<QString> names;
        for (int row = 0; row < View().model()->rowCount(); ++row)
            names.push_back(Cell(row, 0));
        return names;
    }
    bool WaitFor(const std::vector<QString>& names) const
    {
        return QTest::qWaitFor([&] { return Shown() == names; });
    }

    void ClickHeader(int column) const
    {
        const QHeaderView& header = *View().horizontalHeader();
        QTest::mouseClick(
            header.viewport(), Qt::LeftButton, {},
            {header.sectionViewportPosition(column) + 8, header.height() / 2});
    }
    void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(
            View().viewport(), Qt::LeftButton, modifiers,
            View().visualRect(View().model()->index(row, 0)).center());
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    // Writes over the data while they are open; returns what was there.
    QByteArray SpoilData() const
    {
        QFile file(m_source.path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        Write(QByteArray(content.size(), 'x'));
        return content;
    }
    void Write(const QByteArray& content) const
    {
        QFile file(m_source.path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_EQ(file.write(content), content.size());
    }
    QString Count() const { return Part<QLabel>("lblCount").text(); }

    DataFolder m_folder;
    LayerSource m_source;
    FeatureSelection m_features;
    AttributeTable* m_table = nullptr;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

const std::vector<QString> FileOrder = {"Ober", "Aue", "Zell", Brueck};

} // namespace

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

// Each is a range of its own; to compare each with each would take minutes.
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

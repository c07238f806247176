// SPDX-License-Identifier: MIT
#include "mapkit/attributes/TableSource.h"

#include "mapkit/attributes/TableFile.h"
#include "mapkit/attributes/TableText.h"
#include "mapkit/common/Progress.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDate>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Format {
    const char* driver;
    const char* file;
    qint64 firstID;
};

void PrintTo(const Format& format, std::ostream* stream)
{
    *stream << format.driver;
}

// With random access, in order only, and with SQL of its own.
class TableSourceTest : public testing::TestWithParam<Format>
{
protected:
    static constexpr int People = 1;
    static constexpr int Since = 3;

    std::vector<qint64> IDs(TableSource& table)
    {
        std::vector<qint64> all;
        table.ReadIDs(m_progress, [&](const std::vector<qint64>& ids) {
            all.insert(all.end(), ids.begin(), ids.end());
        });
        return all;
    }

    // The numbers that the towns have in a GeoPackage.
    std::vector<qint64> Numbers(std::vector<qint64> ids) const
    {
        for (qint64& id : ids)
            id += 1 - GetParam().firstID;
        return ids;
    }

    std::vector<qint64> Found(const QString& words, int column = -1)
    {
        TableSource table(m_source);
        return Numbers(table.Find({words, column, QLocale(QLocale::German)}, m_progress));
    }

    std::vector<qint64> Sorted(int column, Qt::SortOrder direction)
    {
        TableSource table(m_source);
        return Numbers(table.Sorted(column, direction, QLocale(QLocale::German), m_progress));
    }

    DataFolder m_folder;
    LayerSource m_source = WriteTowns(m_folder, GetParam().file, GetParam().driver);
    Progress m_progress;
};

} // namespace

TEST_P(TableSourceTest, KnowsItsColumnsAndRows)
{
    TableSource table(m_source);
    ASSERT_EQ(table.Columns().size(), 5u);
    EXPECT_EQ(table.Columns()[People].name, "people");
    EXPECT_EQ(Numbers(IDs(table)), (std::vector<qint64>{1, 2, 3, 4}));
}

TEST_P(TableSourceTest, ReadsRowsInAnyOrder)
{
    TableSource table(m_source);
    const qint64 first = GetParam().firstID;
    for (const qint64 id : {first + 2, first, first + 3}) {
        const auto rows = table.Rows({id}, m_progress);
        ASSERT_EQ(rows.count(id), 1u) << id;
    }
    const auto rows = table.Rows({first + 3, first}, m_progress);
    EXPECT_EQ(rows.at(first)[0].toString(), "Ober");
    EXPECT_EQ(CellText(rows.at(first + 3)[2], QLocale(QLocale::German)), "0,25");
}

TEST_P(TableSourceTest, LeavesOutRowsThatAreGone)
{
    TableSource table(m_source);
    EXPECT_THAT(table.Rows({4711}, m_progress), IsEmpty());
    EXPECT_EQ(table.Rows({GetParam().firstID, 4711}, m_progress).size(), 1u);
}

TEST_P(TableSourceTest, SortsNumbersByTheirSizeAndKeepsTheOrderAmongEqualOnes)
{
    EXPECT_THAT(Sorted(People, Qt::AscendingOrder), ElementsAre(2, 4, 1, 3));
    EXPECT_THAT(Sorted(People, Qt::DescendingOrder), ElementsAre(3, 1, 2, 4));
}

TEST_P(TableSourceTest, SortsNullLastInBothDirections)
{
    EXPECT_THAT(Sorted(Since, Qt::AscendingOrder), ElementsAre(4, 1, 2, 3));
    EXPECT_THAT(Sorted(Since, Qt::DescendingOrder), ElementsAre(2, 1, 4, 3));
}

TEST_P(TableSourceTest, SortsTextsAsTheLanguageDoes)
{
    EXPECT_THAT(Sorted(0, Qt::AscendingOrder), ElementsAre(2, 4, 1, 3));
}

TEST_P(TableSourceTest, FindsRowsThatContainAllWordsInAnyColumnAndCase)
{
    EXPECT_THAT(Found("BY"), ElementsAre(2, 4));
    EXPECT_THAT(Found("river  br\u00fc"), ElementsAre(4));
    EXPECT_THAT(Found("by", 0), IsEmpty());
    EXPECT_THAT(Found("desert"), IsEmpty());
}

TEST_P(TableSourceTest, FindsANumberAsItIsShownAndAsTheSourceWritesIt)
{
    EXPECT_THAT(Found("0,25"), ElementsAre(4));
    EXPECT_THAT(Found("0.25"), ElementsAre(4));
    EXPECT_THAT(Found("18.01.1871"), ElementsAre(1));
}

TEST_P(TableSourceTest, HasOnlyTheRowsOfTheFilter)
{
    m_source.filter = "people > 100";
    TableSource table(m_source);
    EXPECT_THAT(Numbers(IDs(table)), ElementsAre(1, 3));
    EXPECT_THAT(Sorted(People, Qt::DescendingOrder), ElementsAre(3, 1));
    EXPECT_THAT(Found("e"), ElementsAre(1, 3));
}

TEST_P(TableSourceTest, EndsWhenTheUserCancels)
{
    TableSource table(m_source);
    m_progress.Cancel();
    EXPECT_THROW(table.Rows({GetParam().firstID}, m_progress), Cancelled);
    EXPECT_THROW(table.Sorted(0, Qt::AscendingOrder, QLocale(), m_progress), Cancelled);
}

TEST_P(TableSourceTest, WritesRowsAsTextInTheGivenOrder)
{
    const qint64 first = GetParam().firstID;
    const QString text = TableText(m_source, {first + 2, first}, QLocale::c(), m_progress);
    EXPECT_EQ(
        text,
        "name\tpeople\tarea\tsince\tnote\n"
        "Zell\t7000\t10\t\t\n"
            + ("Ober\t500\t2.5\t" + CellText(QDate(1871, 1, 18), QLocale::c())) + "\t\n");
}

INSTANTIATE_TEST_SUITE_P(
    Formats, TableSourceTest,
    testing::Values(
        Format{"GPKG", "towns.gpkg", 1}, Format{"GeoJSON", "towns.geojson", 0},
        Format{"MapInfo File", "towns.tab", 1}, Format{"ESRI Shapefile", "towns.shp", 0}));

TEST(TableSource, NamesAFileThatIsMissing)
{
    const DataFolder folder;
    LayerSource source;
    source.path = folder.Path("gone.gpkg");
    source.ogrLayer = "gone";
    try {
        const TableSource table(source);
        FAIL() << "nothing raised";
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Description().contains("gone.gpkg")) << qPrintable(error.Description());
    }
}

TEST(TableSource, ReadsAFileWithoutRandomAccessInPasses)
{
    const DataFolder folder;
    LayerSource source;
    source.path = folder.Write("towns.csv", "name,people\nOber,500\nAue,40\nZell,7000\n");
    source.ogrLayer = "towns";
    TableSource table(source);
    Progress progress;
    const auto late = table.Rows({3}, progress);
    EXPECT_EQ(late.at(3)[0].toString(), "Zell");
    const auto both = table.Rows({2, 1}, progress);
    EXPECT_EQ(both.at(1)[0].toString(), "Ober");
    EXPECT_EQ(both.at(2)[0].toString(), "Aue");
    EXPECT_THAT(table.Rows({4}, progress), IsEmpty());
}

namespace {

constexpr auto MixedRows = "name,shape\n"
                           "tree,POINT (1 2)\n"
                           "road,\"LINESTRING (1 2,3 4)\"\n"
                           "nowhere,\n"
                           "park,\"GEOMETRYCOLLECTION (POINT (5 6),POLYGON ((0 0,1 0,1 1,0 0)))\"\n"
                           "bush,POINT (3 4)\n";

// Rows of several kinds, of which a layer shows only some.
class DividedTableTest : public testing::Test
{
protected:
    DividedTableTest()
    {
        m_source.path = m_folder.Write("mixed.csv", MixedRows);
        m_source.ogrLayer = "mixed";
        m_source.choice.columns.wkt = "shape";
    }

    std::vector<qint64> IDs(std::vector<FeatureKind> kinds)
    {
        m_source.choice.kinds = std::move(kinds);
        TableSource table(m_source);
        std::vector<qint64> all;
        table.ReadIDs(m_progress, [&](const std::vector<qint64>& ids) {
            all.insert(all.end(), ids.begin(), ids.end());
        });
        return all;
    }

    DataFolder m_folder;
    LayerSource m_source;
    Progress m_progress;
};

} // namespace

TEST_F(DividedTableTest, HasOnlyTheRowsOfTheKindsThatTheLayerShows)
{
    EXPECT_THAT(IDs({FeatureKind::Point}), ElementsAre(1, 4, 5));
    EXPECT_THAT(IDs({FeatureKind::Line}), ElementsAre(2));
    EXPECT_THAT(IDs({FeatureKind::Line, FeatureKind::Area}), ElementsAre(2, 4));
    EXPECT_THAT(IDs({}), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(DividedTableTest, SortsAndFindsOnlyTheseRows)
{
    m_source.choice.kinds = {FeatureKind::Point};
    TableSource table(m_source);
    EXPECT_EQ(table.KnownCount(), -1);
    EXPECT_THAT(table.Sorted(0, Qt::AscendingOrder, QLocale::c(), m_progress), ElementsAre(5, 4, 1));
    EXPECT_THAT(table.Find({"r", 0, QLocale::c()}, m_progress), ElementsAre(1, 4));
}

TEST_F(DividedTableTest, ADatabaseThatSortsItselfHasOnlyTheseRowsToo)
{
    m_source = WriteTowns(m_folder, "towns.gpkg", "GPKG");
    m_source.choice.kinds = {FeatureKind::Line};
    TableSource lines(m_source);
    EXPECT_THAT(lines.Sorted(1, Qt::AscendingOrder, QLocale::c(), m_progress), IsEmpty());
    m_source.choice.kinds = {FeatureKind::Point};
    TableSource points(m_source);
    EXPECT_THAT(points.Sorted(1, Qt::AscendingOrder, QLocale::c(), m_progress), ElementsAre(2, 4, 1, 3));
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "mapkit/DataFolder.h"
#include "mapkit/ZipFile.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/AttributeColumn.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/SourceEditor.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

/// Tables without geometry, read as layers.
class DataSourceTablesTest : public testing::Test
{
protected:
    FeatureSet ReadFirst(const QString& path)
    {
        const DataSource source(path);
        const std::vector<SourceLayer> layers = source.Layers();
        if (layers.empty())
            return {};
        return source.Read(layers[0].name, {}, {}, m_progress, layers[0].choice);
    }

    DataFolder m_folder;
    Progress m_progress;
};

} // namespace

TEST_F(DataSourceTablesTest, RowsBecomePoints)
{
    const FeatureSet points
        = ReadFirst(m_folder.Write("places.csv", "name,lat,lon\nA,52,13\nB,53,14\nnowhere,,\n"));
    ASSERT_EQ(points.Features().size(), 2u);
    EXPECT_EQ(points.Features()[0].kind, FeatureKind::Point);
    EXPECT_EQ(points.Bounds(), (Box{13, 52, 14, 53}));
}

TEST_F(DataSourceTablesTest, SemicolonsTabsAndDecimalCommasAreUnderstood)
{
    const Box place = {13.5, 52.25, 13.5, 52.25};
    EXPECT_EQ(ReadFirst(m_folder.Write("a.csv", "lon;lat\n13,5;52,25\n")).Bounds(), place);
    EXPECT_EQ(ReadFirst(m_folder.Write("b.tsv", "lon\tlat\n13,5\t52,25\n")).Bounds(), place);
    EXPECT_EQ(ReadFirst(m_folder.Write("c.txt", "lon;lat\n13.5;52.25\n")).Bounds(), place);
    EXPECT_EQ(ReadFirst(m_folder.Write("d.csv", "lon,lat\n\"13,5\",\"52,25\"\n")).Bounds(), place);
}

TEST_F(DataSourceTablesTest, GeometriesAsTextBecomeLinesAndAreas)
{
    const QString path = m_folder.Write(
        "shapes.csv", "id;geom\n1;\"LINESTRING (0 0,1 1)\"\n2;\"SRID=4326;POLYGON ((0 0,4 0,4 4,0 0))\"\n");
    const FeatureSet shapes = ReadFirst(path);
    ASSERT_EQ(shapes.Features().size(), 2u);
    EXPECT_EQ(shapes.Features()[0].kind, FeatureKind::Line);
    EXPECT_EQ(shapes.Features()[1].kind, FeatureKind::Area);
    EXPECT_THAT(
        DataSource(path).Layers().at(0).kinds, testing::ElementsAre(FeatureKind::Line, FeatureKind::Area));
}

TEST_F(DataSourceTablesTest, TheExtentOfATableIsKnown)
{
    const QString path = m_folder.Write("places.csv", "x,y\n1,2\n3,8\n");
    EXPECT_EQ(DataSource(path).Layers().at(0).extent, (Box{1, 2, 3, 8}));
}

TEST_F(DataSourceTablesTest, NumbersInATextTableAreNumbersForClasses)
{
    const QString path = m_folder.Write("towns.csv", "name,people,x,y\nA,700,1,2\nB,90,3,4\n");
    const std::vector<SourceField> fields = DataSource(path).Fields("towns");
    EXPECT_EQ(BestAttribute(fields, AttributeUse::Classes), "people");
    EXPECT_EQ(BestAttribute(fields, AttributeUse::Labels), "name");
}

TEST_F(DataSourceTablesTest, NumbersThatMeanMoreThanTheirValueStayText)
{
    const QString path = m_folder.Write(
        "towns.csv",
        "code,key,people,share,x,y\n"
        "1067,12345678901234567890,700,0.5,1,2\n"
        "01234,12345678901234567891,90,0,3,4\n");
    const DataSource source(path);
    QStringList texts;
    for (const SourceField& field : source.Fields("towns"))
        texts << (field.isText ? field.name : QString());
    EXPECT_EQ(texts, QStringList({"code", "key", "", "", "", ""}));
    EXPECT_EQ(source.Tables().at(0).rows.at(1).at(0), "01234");
    EXPECT_EQ(source.Attributes("towns", 1).at(1).value, "12345678901234567890");
    EXPECT_EQ(source.Attributes("towns", 2).at(0).value, "01234");
}

TEST_F(DataSourceTablesTest, TelephoneNumbersAndCodesStayText)
{
    const QString path = m_folder.Write(
        "towns.csv",
        "telephone,code,warmer,people,share,x,y\n"
        "+4930123456,1E5,+2,1.0E5,1e-05,1,2\n"
        "+4940123456,2E3,-1,2.5E3,2e+03,3,4\n");
    const DataSource source(path);
    QStringList texts;
    for (const SourceField& field : source.Fields("towns"))
        texts << (field.isText ? field.name : QString());
    EXPECT_EQ(texts, QStringList({"telephone", "code", "", "", "", "", ""}));
    EXPECT_EQ(source.Attributes("towns", 1).at(0).value, "+4930123456");
    EXPECT_EQ(source.Attributes("towns", 2).at(1).value, "2E3");
}

TEST_F(DataSourceTablesTest, CoordinatesWithLeadingZerosAreCoordinates)
{
    EXPECT_EQ(
        ReadFirst(m_folder.Write("a.csv", "lon,lat\n007.5,01.25\n")).Bounds(), (Box{7.5, 1.25, 7.5, 1.25}));
}

TEST_F(DataSourceTablesTest, TheFirstRowsAreShown)
{
    const DataSource source(m_folder.Write("towns.csv", "name,x,y\nA,1,2\n"));
    ASSERT_EQ(source.Tables().size(), 1u);
    EXPECT_EQ(source.Tables()[0].layer, "towns");
    EXPECT_EQ(source.Tables()[0].columns, QStringList({"name", "x", "y"}));
    EXPECT_EQ(source.Tables()[0].rows.at(0), QStringList({"A", "1", "2"}));
}

TEST_F(DataSourceTablesTest, ASourceWithGeometryHasNoTables)
{
    EXPECT_TRUE(DataSource(m_folder.WriteSquare("square.geojson")).Tables().empty());
}

TEST_F(DataSourceTablesTest, AMissingColumnIsTold)
{
    const DataSource source(m_folder.Write("places.csv", "x,y\n1,2\n"));
    GeometryChoice choice;
    choice.columns = {"lon", "lat", {}};
    EXPECT_THROW(source.Read("places", {}, {}, m_progress, choice), RunTimeError);
    EXPECT_THROW(source.Measure("places", m_progress, choice), RunTimeError);
}

TEST_F(DataSourceTablesTest, SpreadsheetsAreTables)
{
    GDALAllRegister();
    for (const char* format : {"XLSX", "ODS"}) {
        GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(format);
        if (!driver)
            continue;
        const QString path = m_folder.Path(QString("book.") + QString(format).toLower());
        {
            const std::unique_ptr<GDALDataset> book(
                driver->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
            OGRLayer* sheet = book->CreateLayer("Shops", nullptr, wkbNone, nullptr);
            for (const char* name : {"Lon", "Lat"}) {
                OGRFieldDefn field(name, OFTReal);
                sheet->CreateField(&field);
            }
            OGRFeature row(sheet->GetLayerDefn());
            row.SetField(0, 13.5);
            row.SetField(1, 52.5);
            ASSERT_EQ(sheet->CreateFeature(&row), OGRERR_NONE);
        }
        EXPECT_EQ(ReadFirst(path).Bounds(), (Box{13.5, 52.5, 13.5, 52.5})) << format;
    }
}

TEST_F(DataSourceTablesTest, ThePointsOfATableAreNotMoved)
{
    LayerSource source;
    source.path = m_folder.Write("places.csv", "x,y\n1,2\n");
    source.ogrLayer = "places";
    source.choice.columns = {"x", "y", {}};
    EXPECT_THROW(SourceEditor{source}, RunTimeError);
}

} // namespace Orvane

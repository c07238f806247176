// SPDX-License-Identifier: MIT
#include "mapkit/data/LeftOutParts.h"

#include "mapkit/DataFolder.h"
#include "mapkit/common/GdalErrors.h"
#include "mapkit/files/GdalSetup.h"

#include <gdal_priv.h>
#include <map>
#include <ogrsf_frmts.h>
#include <string>

namespace Orvane {

using namespace Testing;

namespace {

struct LineFormat {
    const char* driver;
    const char* suffix;
};

// The geometries by ID, as text, and how many attributes were read.
struct LinesRead {
    std::map<GIntBig, std::string> lines;
    int attributes = 0;
};

LinesRead ReadLines(OGRLayer& layer)
{
    LinesRead read;
    layer.ResetReading();
    while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
        if (const OGRGeometry* geometry = feature->GetGeometryRef())
            read.lines[feature->GetFID()] = geometry->exportToWkt();
        for (int i = 0; i < feature->GetFieldCount(); ++i)
            read.attributes += feature->IsFieldSetAndNotNull(i);
    }
    return read;
}

class LeftOutPartsTest : public testing::TestWithParam<LineFormat>
{
protected:
    LeftOutPartsTest()
    {
        PrepareGdal();
        m_path = m_folder.Path(QLatin1String("lines.") + QLatin1String(GetParam().suffix)).toUtf8();
    }

    void WriteLines()
    {
        GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(GetParam().driver);
        const std::unique_ptr<GDALDataset> file(
            driver->Create(m_path.constData(), 0, 0, 0, GDT_Unknown, nullptr));
        ASSERT_TRUE(file);
        OGRLayer* layer = file->CreateLayer("lines", nullptr, wkbLineString);
        ASSERT_TRUE(layer);
        OGRFieldDefn field("name", OFTString);
        layer->CreateField(&field);
        for (int i = 0; i < 5; ++i) {
            OGRFeature feature(layer->GetLayerDefn());
            OGRLineString line;
            for (int vertex = 0; vertex < 3 + i; ++vertex)
                line.addPoint(vertex / 3.0, i);
            feature.SetGeometry(&line);
            feature.SetField(0, "some name");
            ASSERT_EQ(layer->CreateFeature(&feature), OGRERR_NONE);
        }
    }

    const GdalErrors m_quiet;
    DataFolder m_folder;
    QByteArray m_path;
};

} // namespace

TEST_P(LeftOutPartsTest, GeometriesAreTheSameWithoutAttributes)
{
    if (!GetGDALDriverManager()->GetDriverByName(GetParam().driver))
        GTEST_SKIP() << "This GDAL cannot write the format.";
    ASSERT_NO_FATAL_FAILURE(WriteLines());
    const std::unique_ptr<GDALDataset> file(GDALDataset::Open(m_path.constData(), GDAL_OF_VECTOR));
    ASSERT_TRUE(file);
    OGRLayer& layer = *file->GetLayer(0);
    const LinesRead all = ReadLines(layer);
    EXPECT_EQ(all.lines.size(), 5u);
    EXPECT_GE(all.attributes, 5);
    {
        const LeftOutParts sparing(layer, LeftOutParts::AttributesOf(GetParam().driver));
        const LinesRead some = ReadLines(layer);
        EXPECT_EQ(some.lines, all.lines);
        EXPECT_EQ(some.attributes, 0);
    }
    EXPECT_EQ(ReadLines(layer).attributes, all.attributes);
}

INSTANTIATE_TEST_SUITE_P(
    All, LeftOutPartsTest,
    testing::Values(
        LineFormat{"GPKG", "gpkg"}, LineFormat{"ESRI Shapefile", "shp"}, LineFormat{"FlatGeobuf", "fgb"},
        LineFormat{"OpenFileGDB", "gdb"}),
    [](const testing::TestParamInfo<LineFormat>& info) { return std::string(info.param.suffix); });

TEST(LeftOutParts, OtherFormatsAreReadWhole)
{
    EXPECT_EQ(LeftOutParts::AttributesOf("CSV"), LeftOutParts::Nothing);
    EXPECT_EQ(LeftOutParts::AttributesOf(""), LeftOutParts::Nothing);
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "mapkit/document/EarlierBackdrop.h"

#include "mapkit/DataFolder.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/document/MapSettings.h"
#include "store/ILayerStore.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QDir>

namespace Orvane::Testing {
namespace {

/// A map of an earlier version, with a picture under its one layer.
class EarlierBackdropTest : public testing::Test
{
protected:
    EarlierBackdropTest()
    {
        NewLayer layer;
        layer.name = "Roads";
        layer.path = m_folder.WriteSquare("roads.geojson");
        MapDocument::Create(m_path)->AddLayer(layer);
        m_folder.Write("relief.tif", "");
        StoreBackdrop("relief.tif", "relief.tif");
    }

    void StoreBackdrop(const QString& path, const QString& relative)
    {
        const auto database = SqliteLayerDatabase::Open(m_path);
        MapSettings::Write(*database, "Backdrop", path);
        MapSettings::Write(*database, "BackdropRelative", relative);
    }

    const DataFolder m_folder;
    const QString m_path = m_folder.Path("old.orvane");
};

TEST_F(EarlierBackdropTest, BecomesARasterLayerBelowTheOthers)
{
    const auto map = MapDocument::Open(m_path);
    const std::vector<LayerSource> sources = map->Sources();
    ASSERT_EQ(sources.size(), 2u);
    EXPECT_EQ(sources[1].kind, DataKind::Raster);
    EXPECT_EQ(sources[1].path, m_folder.Path("relief.tif"));
    const auto rows = map->Database().OpenRecordset("SELECT Name, Priority FROM Layers ORDER BY Priority");
    rows->MoveNext();
    EXPECT_EQ(ToTextOrNone(rows->Field("Name")), "relief");
    EXPECT_EQ(ToInt32(rows->Field("Priority")), 255);
}

TEST_F(EarlierBackdropTest, BecomesOneLayerHoweverOftenTheMapIsOpened)
{
    MapDocument::Open(m_path).reset();
    EXPECT_EQ(MapDocument::Open(m_path)->Sources().size(), 2u);
}

TEST_F(EarlierBackdropTest, IsFoundInTheFileUntilThen)
{
    EXPECT_EQ(EarlierBackdrop::Find(*SqliteLayerDatabase::Open(m_path), m_path), m_folder.Path("relief.tif"));
    MapDocument::Open(m_path).reset();
    EXPECT_EQ(EarlierBackdrop::Find(*SqliteLayerDatabase::Open(m_path), m_path), "");
}

TEST_F(EarlierBackdropTest, OneWhoseFileIsMissingKeepsItsWholePlace)
{
    StoreBackdrop("/gone/relief.tif", "../pictures/relief.tif");
    QFile::remove(m_folder.Path("relief.tif"));
    const auto map = MapDocument::Open(m_path);
    ASSERT_EQ(map->Sources().size(), 2u);
    EXPECT_EQ(map->Sources()[1].path, "/gone/relief.tif");
    const auto row = map->Database().OpenRecordset("SELECT RelativePath FROM LayerSources ORDER BY LayerID");
    row->MoveNext();
    EXPECT_EQ(ToTextOrNone(row->Field("RelativePath")), "../pictures/relief.tif");
}

TEST_F(EarlierBackdropTest, AMapWithoutOneGetsNoLayer)
{
    StoreBackdrop("", "");
    EXPECT_EQ(MapDocument::Open(m_path)->Sources().size(), 1u);
}

} // namespace
} // namespace Orvane::Testing

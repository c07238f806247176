// SPDX-License-Identifier: MIT
#include "mapkit/data/PackageReader.h"

#include "mapkit/DataFolder.h"
#include "mapkit/PackageFile.h"
#include "mapkit/SameFeatures.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/OpenSource.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/files/ReadingBound.h"
#include "support/Dice.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <array>

namespace Orvane {

using namespace Testing;

namespace {

QByteArray RandomVertex(Dice& dice, const QByteArray& dimension)
{
    static const QByteArrayList odd = {"1e999", "-1e999", "180", "-180", "0", "90", "1e300"};
    QByteArrayList values;
    const int count = dimension.isEmpty() ? 2 : dimension == "ZM" ? 4 : 3;
    for (int i = 0; i < count; ++i) {
        const double value = (dice.Below(4'000'000) - 2'000'000) / (i == 1 ? 22'000.0 : 10'000.0);
        values << (dice.Chance(1) ? dice.OneOf(odd) : QByteArray::number(value, 'g', 17));
    }
    return values.join(' ');
}

QByteArray RandomVertices(Dice& dice, const QByteArray& dimension, int least)
{
    QByteArrayList vertices;
    for (int i = least + dice.Below(8); i > 0; --i)
        vertices << RandomVertex(dice, dimension);
    return '(' + vertices.join(", ") + ')';
}

QByteArray RandomPolygon(Dice& dice, const QByteArray& dimension)
{
    QByteArrayList rings;
    for (int i = 1 + dice.Below(3); i > 0; --i)
        rings << RandomVertices(dice, dimension, 3);
    return '(' + rings.join(", ") + ')';
}

QByteArray RandomGeometry(Dice& dice, const QByteArray& dimension, int nesting = 0)
{
    static const QByteArrayList types = {"POINT",           "LINESTRING",   "POLYGON",           "MULTIPOINT",
                                         "MULTILINESTRING", "MULTIPOLYGON", "GEOMETRYCOLLECTION"};
    const QByteArray& type = dice.OneOf(types);
    const QByteArray start = type + ' ' + dimension + ' ';
    if (dice.Chance(8) || (type == "GEOMETRYCOLLECTION" && nesting > 2))
        return start + "EMPTY";
    if (type == "POINT")
        return start + '(' + RandomVertex(dice, dimension) + ')';
    if (type == "LINESTRING" || type == "MULTIPOINT")
        return start + RandomVertices(dice, dimension, 2);
    if (type == "POLYGON")
        return start + RandomPolygon(dice, dimension);
    QByteArrayList members;
    for (int i = 1 + dice.Below(3); i > 0; --i)
        members
            << (type == "MULTILINESTRING"    ? RandomVertices(dice, dimension, 2)
                    : type == "MULTIPOLYGON" ? RandomPolygon(dice, dimension)
                                             : RandomGeometry(dice, dimension, nesting + 1));
    return start + '(' + members.join(", ") + ')';
}

PackageSpec RandomLayer(Dice& dice, const QByteArray& name)
{
    PackageSpec spec;
    spec.name = name;
    spec.system = dice.OneOf(std::array{4326, 4326, 3857, 32632, 25832, 4258, 31468, 3035});
    const QByteArray dimension = dice.OneOf(QByteArrayList{"", "", "Z", "M", "ZM"});
    spec.geometries.clear();
    for (int i = dice.Below(12); i > 0; --i)
        spec.geometries << (dice.Chance(5) ? QByteArray() : RandomGeometry(dice, dimension));
    return spec;
}

class PackageReaderTest : public testing::Test
{
protected:
    std::optional<FeatureSet> ReadOwn(const LayerSource& source, const QString& mapSystem = "EPSG:3857")
    {
        return PackageReader(source.path).Read(source, mapSystem, m_progress);
    }

    FeatureSet ReadByGdal(const LayerSource& source, const QString& mapSystem = "EPSG:3857")
    {
        return DataSource(source.path)
            .Read(source.ogrLayer, source.filter, mapSystem, m_progress, source.choice, source.system);
    }

    // What reading gives, or the error as the user sees it.
    template <typename Reading> static QString ErrorOf(const Reading& read, FeatureSet& features)
    {
        try {
            features = read();
            return {};
        } catch (const RunTimeError& error) {
            return error.Description();
        }
    }

    // A GeoPackage with one layer "roads".
    QString Roads(const PackageSpec& spec = {})
    {
        const QString path = m_folder.Path(QStringLiteral("roads%1.gpkg").arg(++m_files));
        AddToPackage(path, spec);
        return path;
    }

    bool IsReadByOwn(const QString& path, const QString& layer = "roads")
    {
        return ReadOwn({1, path, layer, {}}).has_value();
    }

    // Whether GDAL is asked after a change of a layer that is read past it before.
    bool IsLeftAfter(const QByteArray& sql)
    {
        const QString path = Roads();
        EXPECT_TRUE(IsReadByOwn(path));
        ChangePackage(path, sql);
        return !IsReadByOwn(path);
    }

    DataFolder m_folder;
    Progress m_progress;
    int m_files = 0;
};

} // namespace

TEST_F(PackageReaderTest, ReadsRandomTablesAsGdalDoes)
{
    static const QStringList mapSystems
        = {"EPSG:3857", "EPSG:4326", "EPSG:8857", "EPSG:32633", "EPSG:3031", {}};
    Dice dice(7);
    size_t read = 0;
    for (int file = 0; file < 6; ++file) {
        const QString path = m_folder.Path(QStringLiteral("random%1.gpkg").arg(file));
        for (int layer = 0; layer < 12; ++layer)
            AddToPackage(path, RandomLayer(dice, "layer" + QByteArray::number(layer)));
        PackageReader reader(path);
        for (int layer = 0; layer < 12; ++layer) {
            LayerSource source{1, path, QStringLiteral("layer%1").arg(layer), {}};
            if (dice.Chance(20))
                source.system = dice.OneOf(QStringList{"EPSG:32633", "no system"});
            if (dice.Chance(30))
                source.choice.kinds = {dice.OneOf(std::array{FeatureKind::Line, FeatureKind::Area})};
            const QString mapSystem = dice.OneOf(mapSystems);
            SCOPED_TRACE(qPrintable(QStringLiteral("%1 in %2").arg(source.ogrLayer).arg(file)));
            const std::optional<FeatureSet> own = reader.Read(source, mapSystem, m_progress);
            ASSERT_TRUE(own);
            EXPECT_TRUE(AreSame(*own, ReadByGdal(source, mapSystem)));
            read += own->Features().size();
        }
    }
    EXPECT_GT(read, 300u);
}

TEST_F(PackageReaderTest, TreatsDamagedGeometriesAsGdalDoes)
{
    Dice dice(11);
    const QString path = Roads({"roads", wkbUnknown, 4326, {"LINESTRING (1 2, 3 4)", "POINT (1 2)"}});
    int damaged = 0;
    for (int round = 0; round < 120; ++round) {
        QByteArray blob = QByteArray::fromHex(
            "47500003E6100000000000000000F03F0000000000000840000000000000004000000000000010400102000000"
            "02000000000000000000F03F000000000000004000000000000008400000000000001040");
        const int place = dice.Below(int(blob.size()));
        if (dice.Chance(20))
            blob.truncate(place);
        else if (dice.Chance(20)) // no number as a coordinate
            blob.replace(49 + 8 * dice.Below(4), 8, QByteArray::fromHex("000000000000f87f"));
        else
            blob[place] = char(dice.OneOf(std::array{0, 1, 3, 7, 17, 128, 255}));
        ChangePackage(path, "UPDATE roads SET geom = x'" + blob.toHex() + "' WHERE fid = 1");
        const LayerSource source{1, path, "roads", {}};
        FeatureSet ours;
        FeatureSet theirs;
        const QString error
            = ErrorOf([&] { return OpenSource().Read(source, "EPSG:3857", m_progress); }, ours);
        EXPECT_EQ(error, ErrorOf([&] { return ReadByGdal(source); }, theirs)) << blob.toHex().constData();
        EXPECT_TRUE(AreSame(ours, theirs)) << blob.toHex().constData();
        damaged += error.isEmpty() ? 0 : 1;
    }
    EXPECT_GT(damaged, 20);
}

TEST_F(PackageReaderTest, LeavesOtherTypesOfGeometriesToGdal)
{
    for (const char* geometry :
         {"CIRCULARSTRING (0 0, 1 1, 2 0)", "COMPOUNDCURVE ((0 0, 1 1))",
          "CURVEPOLYGON ((0 0, 1 1, 2 0, 0 0))", "MULTICURVE ((0 0, 1 1))", "TIN (((0 0, 0 1, 1 1, 0 0)))",
          "TRIANGLE ((0 0, 0 1, 1 1, 0 0))"}) {
        SCOPED_TRACE(geometry);
        const LayerSource source{1, Roads({"roads", wkbUnknown, 4326, {geometry}}), "roads", {}};
        EXPECT_FALSE(ReadOwn(source));
        EXPECT_TRUE(AreSame(OpenSource().Read(source, "EPSG:3857", m_progress), ReadByGdal(source)));
    }
}

TEST_F(PackageReaderTest, LeavesFiltersToGdal)
{
    const QString path = Roads();
    EXPECT_FALSE(ReadOwn({1, path, "roads", "fid = 1"}));
    EXPECT_EQ(OpenSource().Read({1, path, "roads", "fid = 2"}, {}, m_progress).Features().size(), 0u);
}

TEST_F(PackageReaderTest, LeavesUnknownLayersToGdal)
{
    const QString path = Roads();
    EXPECT_FALSE(IsReadByOwn(path, "rivers"));
    EXPECT_FALSE(IsReadByOwn(path, "ROADS"));
    EXPECT_FALSE(IsReadByOwn(path, "gpkg_contents"));
}

TEST_F(PackageReaderTest, LeavesOtherFilesToGdal)
{
    EXPECT_FALSE(IsReadByOwn(m_folder.WriteSquare("a.geojson"), "a"));
    EXPECT_FALSE(IsReadByOwn(m_folder.Write("a.gpkg", "no database"), "a"));
    EXPECT_FALSE(IsReadByOwn(m_folder.Path("missing.gpkg")));
    const QString renamed = m_folder.Path("roads.db");
    ASSERT_TRUE(QFile::copy(Roads(), renamed));
    EXPECT_FALSE(IsReadByOwn(renamed));
}

TEST_F(PackageReaderTest, LeavesFilesWithAWriteAheadLogToGdal)
{
    EXPECT_TRUE(IsLeftAfter("PRAGMA journal_mode = WAL"));
}

TEST_F(PackageReaderTest, LeavesOtherVersionsToGdal)
{
    EXPECT_TRUE(IsLeftAfter("PRAGMA user_version = 20000"));
    EXPECT_TRUE(IsLeftAfter("PRAGMA application_id = 17"));
}

TEST_F(PackageReaderTest, LeavesUnknownExtensionsToGdal)
{
    EXPECT_TRUE(
        IsLeftAfter("INSERT INTO gpkg_extensions VALUES ('Roads', 'geom', 'gpkg_other', '', 'read-write')"));
    EXPECT_TRUE(IsLeftAfter("INSERT INTO gpkg_extensions VALUES (NULL, NULL, 'other', '', 'read-write')"));
    EXPECT_FALSE(
        IsLeftAfter("INSERT INTO gpkg_extensions VALUES ('rivers', 'geom', 'gpkg_other', '', 'read-write')"));
}

TEST_F(PackageReaderTest, LeavesOtherSystemsToGdal)
{
    EXPECT_TRUE(IsLeftAfter("UPDATE gpkg_geometry_columns SET srs_id = 0"));
    EXPECT_TRUE(IsLeftAfter("UPDATE gpkg_geometry_columns SET srs_id = 777"));
    EXPECT_TRUE(IsLeftAfter("UPDATE gpkg_spatial_ref_sys SET organization = 'own' WHERE srs_id = 4326"));
    EXPECT_TRUE(
        IsLeftAfter("UPDATE gpkg_spatial_ref_sys SET organization_coordsys_id = 4258 WHERE srs_id = 4326"));
}

TEST_F(PackageReaderTest, LeavesViewsAndComputedColumnsToGdal)
{
    EXPECT_TRUE(IsLeftAfter("ALTER TABLE roads ADD COLUMN twice TEXT AS (name || name)"));
    EXPECT_TRUE(IsLeftAfter("ALTER TABLE roads RENAME TO other; CREATE VIEW roads AS SELECT * FROM other"));
}

TEST_F(PackageReaderTest, LeavesUnusualTablesToGdal)
{
    EXPECT_TRUE(IsLeftAfter("ALTER TABLE roads ADD COLUMN place POINT"));
    EXPECT_TRUE(IsLeftAfter("CREATE INDEX by_place ON roads (name, geom)"));
    EXPECT_FALSE(IsLeftAfter("CREATE INDEX by_name ON roads (name)"));
    EXPECT_TRUE(IsLeftAfter("ALTER TABLE roads RENAME COLUMN geom TO place"));
    EXPECT_TRUE(IsLeftAfter("CREATE TABLE other (fid TEXT PRIMARY KEY, geom POINT); DROP TABLE roads;"
                            " ALTER TABLE other RENAME TO roads"));
}

TEST_F(PackageReaderTest, LeavesGeometriesThatAreNoBlobsToGdal)
{
    const QString path = Roads();
    ChangePackage(path, "UPDATE roads SET geom = 'POINT (1 2)'");
    EXPECT_FALSE(IsReadByOwn(path));
}

TEST_F(PackageReaderTest, MakesNoFilesBesideTheData)
{
    const QString path = Roads();
    const QStringList before = QFileInfo(path).dir().entryList();
    EXPECT_TRUE(IsReadByOwn(path));
    EXPECT_EQ(QFileInfo(path).dir().entryList(), before);
}

TEST_F(PackageReaderTest, IsEndedByTheUser)
{
    PackageSpec many;
    for (int i = 0; i < 200; ++i)
        many.geometries << "POINT (1 2)";
    const LayerSource source{1, Roads(many), "roads", {}};
    m_progress.Cancel();
    EXPECT_THROW(ReadOwn(source), Cancelled);
}

TEST_F(PackageReaderTest, ReadingThatTakesTooLongIsAnErrorThatNamesTheFile)
{
    const LayerSource source{1, Roads(), "roads", {}};
    PackageReader reader(source.path);
    EXPECT_TRUE(reader.Read(source, {}, m_progress));
    // Costs SQLite more steps than it takes between two questions.
    ChangePackage(
        source.path,
        "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9000)"
        " INSERT INTO roads (geom) SELECT NULL FROM n");
    const ReadingBound over(std::chrono::milliseconds(0));
    try {
        reader.Read(source, {}, m_progress);
        ADD_FAILURE() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), SourceUnreadable);
        EXPECT_TRUE(error.Description().contains(QFileInfo(source.path).fileName()));
    }
}

} // namespace Orvane

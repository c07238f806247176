// SPDX-License-Identifier: MIT
// Files that are damaged, that contain false values, or that try to cause other accesses.
#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/SourceEditor.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/files/GdalSetup.h"
#include "support/ProcessorTime.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>

#include <cerrno>
#include <cmath>
#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <ogrsf_frmts.h>
#include <optional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Orvane {

using namespace Testing;

namespace {

class HostileDataTest : public testing::Test
{
protected:
    // The features of all layers, or nothing when reading raised an error that names the file.
    std::optional<size_t> Features(const QString& path)
    {
        try {
            const DataSource source(path);
            size_t count = 0;
            for (const SourceLayer& layer : source.Layers())
                count += source.Read(layer.name, {}, "EPSG:4326", m_progress).Features().size();
            return count;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), SourceUnreadable);
            EXPECT_TRUE(error.Description().contains(path.section('/', -1)))
                << qPrintable(error.Description());
            return {};
        }
    }

    // A file of fifty points in that format.
    QByteArray Points(const char* driverName, const QString& name)
    {
        GDALAllRegister();
        const QString path = m_folder.Path(name);
        {
            const std::unique_ptr<GDALDataset> file(
                GetGDALDriverManager()
                    ->GetDriverByName(driverName)
                    ->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
            OGRLayer* layer = file->CreateLayer("points", nullptr, wkbPoint, nullptr);
            for (int i = 0; i < 50; ++i) {
                const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer->GetLayerDefn()));
                const OGRPoint point(i, i);
                feature->SetGeometry(&point);
                EXPECT_EQ(layer->CreateFeature(feature.get()), OGRERR_NONE);
            }
        }
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QString Vrt(const QString& name, const QByteArray& source, const QByteArray& layer = "points")
    {
        return m_folder.Write(
            name,
            "<OGRVRTDataSource><OGRVRTLayer name=\"" + layer + "\"><SrcDataSource>" + source
                + "</SrcDataSource><SrcLayer>" + layer + "</SrcLayer></OGRVRTLayer></OGRVRTDataSource>");
    }

    const ProcessorTime m_time{std::chrono::seconds(30)};
    DataFolder m_folder;
    Progress m_progress;
};

// A server on this computer that only records whether a client connects.
class Listener
{
public:
    Listener() : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* name = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(bind(m_socket, name, size), 0);
        EXPECT_EQ(listen(m_socket, 5), 0);
        EXPECT_EQ(getsockname(m_socket, name, &size), 0);
        m_port = ntohs(address.sin_port);
    }
    ~Listener() { close(m_socket); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    QByteArray Port() const { return QByteArray::number(m_port); }
    bool WasCalled() const { return accept(m_socket, nullptr, nullptr) >= 0 || errno != EAGAIN; }

private:
    int m_socket;
    int m_port = 0;
};

QByteArray Nested(const QByteArray& before, const QByteArray& inside, const QByteArray& after, int depth)
{
    return before.repeated(depth) + inside + after.repeated(depth);
}

} // namespace

TEST_F(HostileDataTest, FilesCutAnywhereEndWell)
{
    struct Format {
        const char* driver;
        const char* name;
    };
    for (const Format& format :
         {Format{"GPKG", "p.gpkg"}, Format{"ESRI Shapefile", "p.shp"}, Format{"FlatGeobuf", "p.fgb"},
          Format{"GeoJSON", "p.geojson"}, Format{"KML", "p.kml"}}) {
        const QByteArray whole = Points(format.driver, format.name);
        ASSERT_FALSE(whole.isEmpty()) << format.name;
        for (qsizetype size = 0; size < whole.size(); size += std::max<qsizetype>(1, whole.size() / 12)) {
            const auto features = Features(m_folder.Write("cut-" + QString(format.name), whole.left(size)));
            EXPECT_LE(features.value_or(0), 50u) << format.name << " cut to " << size;
        }
    }
}

TEST_F(HostileDataTest, FilesWithFlippedBytesEndWell)
{
    struct Format {
        const char* driver;
        const char* name;
    };
    for (const Format& format : {Format{"GPKG", "w.gpkg"}, Format{"FlatGeobuf", "w.fgb"}}) {
        const QByteArray whole = Points(format.driver, format.name);
        for (qsizetype at = 8; at < whole.size(); at += whole.size() / 40) {
            QByteArray damaged = whole;
            for (qsizetype i = at; i < std::min(at + 6, damaged.size()); ++i)
                damaged[i] = char(~damaged[i]);
            Features(m_folder.Write("damaged", damaged));
        }
    }
}

TEST_F(HostileDataTest, AClaimOfBillionsOfFeaturesTakesNoMemory)
{
    QByteArray shape = Points("ESRI Shapefile", "claim.shp");
    shape.replace(24, 4, QByteArray::fromHex("7fffffff")); // length of the file
    m_folder.Write("claim.shp", shape);
    QFile index(m_folder.Path("claim.shx"));
    ASSERT_TRUE(index.open(QIODevice::ReadWrite));
    index.seek(24);
    index.write(QByteArray::fromHex("7fffffff"));
    index.close();
    EXPECT_LE(Features(m_folder.Path("claim.shp")).value_or(0), 50u);
}

TEST_F(HostileDataTest, DeepNestingEndsWell)
{
    Features(m_folder.Write("deep.geojson", QByteArray("[").repeated(100000)));
    Features(m_folder.Write(
        "collections.geojson",
        R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{},"geometry":)"
            + Nested(
                R"({"type":"GeometryCollection","geometries":[)", R"({"type":"Point","coordinates":[1,2]})",
                "]}", 5000)
            + "}]}"));
    Features(m_folder.Write(
        "deep.csv", "WKT,name\n\"" + Nested("GEOMETRYCOLLECTION(", "POINT(1 2)", ")", 20000) + "\",a\n"));
    Features(m_folder.Write("deep.kml", "<kml>" + Nested("<Folder>", "<a/>", "</Folder>", 20000) + "</kml>"));
}

TEST_F(HostileDataTest, EntitiesThatMultiplyEndWell)
{
    QByteArray bomb = "<?xml version=\"1.0\"?><!DOCTYPE gpx [<!ENTITY a0 \"lol\">";
    for (int i = 1; i < 30; ++i) {
        bomb += "<!ENTITY a" + QByteArray::number(i) + " \""
            + ("&a" + QByteArray::number(i - 1) + ";").repeated(10) + "\">";
    }
    bomb += "]><gpx version=\"1.1\"><wpt lat=\"1\" lon=\"2\"><name>&a29;</name></wpt></gpx>";
    Features(m_folder.Write("bomb.gpx", bomb));
}

TEST_F(HostileDataTest, AVirtualFileThatReadsItselfEndsWell)
{
    Features(Vrt("self.vrt", m_folder.Path("self.vrt").toUtf8()));
    Vrt("one.vrt", m_folder.Path("two.vrt").toUtf8());
    Features(Vrt("two.vrt", m_folder.Path("one.vrt").toUtf8()));
}

TEST_F(HostileDataTest, NoFileReachesTheNetwork)
{
    const Listener server;
    const QByteArray place = "127.0.0.1:" + server.Port();
    for (const QByteArray& source :
         {"/vsicurl/http://" + place + "/a.geojson", "/vsicurl_streaming/http://" + place + "/a.geojson",
          "http://" + place + "/a.geojson", "WFS:http://" + place + "/",
          "PG:host=127.0.0.1 port=" + server.Port(), "OAPIF:http://" + place + "/",
          "/vsizip/{/vsicurl/http://" + place + "/a.zip}/a.shp"})
        EXPECT_FALSE(Features(Vrt("net.vrt", source)).value_or(0)) << source.constData();
    EXPECT_FALSE(server.WasCalled());
}

TEST_F(HostileDataTest, NamesThatAreNoFilesAreNotOpened)
{
    for (const char* name : {"/vsicurl/http://127.0.0.1/a.geojson", "PG:dbname=a", "/vsistdin/", ""})
        EXPECT_THROW(DataSource{QString(name)}, RunTimeError) << name;
}

TEST_F(HostileDataTest, APipeIsNotWaitedFor)
{
    const QString path = m_folder.Path("pipe");
    ASSERT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0);
    EXPECT_FALSE(Features(path).has_value());
}

TEST_F(HostileDataTest, APipeThatAccompaniesAFileIsNotWaitedFor)
{
    const QString path = m_folder.WriteSquare("roads.geojson");
    EXPECT_TRUE(Features(path).has_value());
    ASSERT_EQ(mkfifo(m_folder.Path("roads.dbf").toUtf8().constData(), 0600), 0);
    EXPECT_FALSE(Features(path).has_value());
    EXPECT_TRUE(WhyNotOpened(path).contains("roads.dbf"));
}

TEST_F(HostileDataTest, APipeInAFolderIsNotWaitedFor)
{
    ASSERT_TRUE(QDir().mkpath(m_folder.Path("folder")));
    EXPECT_TRUE(WhyNotOpened(m_folder.Path("folder")).isEmpty());
    ASSERT_EQ(mkfifo(m_folder.Path("folder/roads.shp").toUtf8().constData(), 0600), 0);
    EXPECT_TRUE(WhyNotOpened(m_folder.Path("folder")).contains("roads.shp"));
}

TEST_F(HostileDataTest, APipeIsNotWaitedForWhenItIsToBeChanged)
{
    const QString path = m_folder.Path("pipe");
    ASSERT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0);
    EXPECT_THROW(SourceEditor({1, path, "pipe", {}}), RunTimeError);
}

TEST_F(HostileDataTest, CoordinatesThatAreNoNumbersAreLeftOut)
{
    const QString path = m_folder.Write(
        "wild.csv",
        "WKT,name\n\"LINESTRING (0 0,nan 1,inf 2,1e308 1e308,3 3)\",a\n\"POINT EMPTY\",b\n"
        "\"POLYGON EMPTY\",c\n\"MULTIPOLYGON EMPTY\",d\n\"POLYGON ((0 0))\",e\n\"POINT (nan nan)\",f\n");
    const DataSource source(path);
    const FeatureSet set = source.Read("wild", {}, "EPSG:3857", m_progress);
    for (const FeatureSet::Feature& feature : set.Features()) {
        for (quint32 part = feature.firstPart; part < feature.endPart; ++part) {
            for (const QPointF& point : set.Part(part))
                EXPECT_TRUE(std::isfinite(point.x()) && std::isfinite(point.y()));
        }
    }
    EXPECT_TRUE(set.Bounds().IsEmpty() || std::isfinite(set.Bounds().Width()));
}

TEST_F(HostileDataTest, TextInTheWrongEncodingIsRead)
{
    EXPECT_EQ(Features(m_folder.Write("latin.csv", "WKT,name\n\"POINT (1 2)\",M\xfcnchen \xff\xfe\n")), 1u);
    EXPECT_EQ(
        Features(m_folder.Write(
            "latin.geojson",
            "{\"type\":\"FeatureCollection\",\"features\":[{\"type\":\"Feature\",\"properties\":{\"n\":"
            "\"M\xfc"
            "\"},\"geometry\":{\"type\":\"Point\",\"coordinates\":[1,2]}}]}")),
        1u);
}

TEST_F(HostileDataTest, AnEmptyFileOfEachKindIsOneSentence)
{
    for (const char* name :
         {"a.gpkg", "a.shp", "a.geojson", "a.kml", "a.gml", "a.gpx", "a.dxf", "a.tab", "a.fgb", "a.csv",
          "a.vrt", "a"})
        EXPECT_FALSE(Features(m_folder.Write(name, "")).value_or(0)) << name;
}

} // namespace Orvane

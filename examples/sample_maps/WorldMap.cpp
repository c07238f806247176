// SPDX-License-Identifier: MIT
#include "examples/sample_maps/GeoPackageWriter.h"
#include "examples/sample_maps/SampleLayers.h"
#include "examples/sample_maps/SampleMap.h"
#include "mapkit/document/MapDocument.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace Orvane {

namespace {

constexpr auto WorldSystem = "EPSG:8857";
constexpr auto GeneratedSystem = "EPSG:4326";
constexpr auto GeneratedFile = "";
constexpr double DegreesBetweenVertices = 1;

constexpr auto Map = "world_map.gpkg";
constexpr auto Cities = "naturalearth_cities.shp";
constexpr auto Countries = "naturalearth_lowres.shp";
constexpr QRgb StateLine = 0xffc9b8a4;
constexpr double StatesUpTo = 60e6;

constexpr auto Africa
    = "iso_a2 IN "
      "('DZ','AO','BJ','BW','BF','BI','CV','CM','CF','TD','KM','CD','CG','CI','DJ','EG','GQ','ER','ET',"
      "'GA','GM','GH','GN','GW','KE','LS','LR','LY','MG','MW','ML','MR','MU','YT','MA','MZ','NA','NE','NG','"
      "RE',"
      "'RW','SH','ST','SN','SC','SL','SO','ZA','SS','SD','SZ','TZ','TG','TN','UG','EH','ZM','ZW')"
      " OR NAME LIKE 'Somaliland'";
constexpr auto Europe
    = "iso_a2 IN "
      "('AL','AD','AT','AX','BY','BE','BA','BG','HR','CZ','DK','EE','FO','FI','FR','DE','GI','GR','GG',"
      "'HU','IS','IE','IM','IT','JE','XK','LV','LI','LT','LU','MK','MT','MD','MC','ME','NL','NO','PL','PT','"
      "RO',"
      "'RU','SM','RS','SK','SI','ES','SE','CH','UA','GB','VA')";
constexpr auto Asia
    = "iso_a2 IN "
      "('AF','AM','AZ','BH','BD','BT','BN','KH','CN','CY','GE','HK','IN','ID','IR','IQ','IL','JP','JO',"
      "'KZ','KW','KG','LA','LB','MO','MY','MV','MN','MM','NP','KP','OM','PK','PH','PS','QA','SA','SG','KR','"
      "LK',"
      "'SY','TW','TJ','TH','TL','TR','TM','AE','UZ','VN','YE','IO') OR NAME LIKE '%Cyprus%' OR NAME LIKE "
      "'Siachen%'";
constexpr auto NorthAmerica
    = "iso_a2 IN "
      "('AI','AG','AW','BS','BB','BZ','BM','VG','CA','KY','CR','CU','CW','DM','DO','SV','GL','GD','GP',"
      "'GT','HT','HN','JM','MQ','MX','MS','NI','PA','PR','BL','KN','LC','MF','PM','VC','SX','TT','TC','US','"
      "VI')";
constexpr auto SouthAmerica
    = "iso_a2 IN ('AR','BO','BR','CL','CO','EC','FK','GF','GY','PY','PE','SR','UY','VE','GS')";
constexpr auto Oceania
    = "iso_a2 IN "
      "('AS','AU','CK','FJ','PF','GU','KI','MH','FM','NR','NC','NZ','NU','NF','MP','PW','PG','PN','WS',"
      "'SB','TK','TO','TV','UM','VU','WF') OR NAME LIKE '%Coral Sea%'";
constexpr auto Antarctica = "iso_a2 IN ('AQ','BV','HM','TF')";
constexpr auto Largest
    = "name IN ('Tokyo','Delhi','Shanghai','Mumbai','Cairo','Beijing','Dhaka','Karachi','Istanbul','Kolkata',"
      "'Lagos','Kinshasa','Moscow','Paris','London','New York','Los Angeles','Chicago','Mexico City','Lima',"
      "'Buenos Aires','Rio de Janeiro','São Paulo','Jakarta','Manila','Seoul','Bangkok','Hong Kong','Sydney',"
      "'Johannesburg','Nairobi','Singapore')";

// Each group's layers are listed top first.
// clang-format off
constexpr auto WorldLayers = std::to_array<SampleLayer>({
    {"Places", "Largest cities", Cities, "naturalearth_cities", 0xff8c2f2b, 0, 20, -5, 0, 0, 0, true, Largest},
    {"Places", "Capitals and cities", Cities, "naturalearth_cities", 0xff5b4a42, 0, 25, -2, 0, 0, 90e6},
    {"Boundaries", "Disputed borders", Map, "disputed_borders", 0xffb0524a, 0, 40, -1, 1},
    {"Boundaries", "Country borders", Map, "countries", 0xffb09c88, 0, 50},
    {"States and provinces", "States of Australia", Map, "states_provinces", StateLine, 0, 60, 0, 0, 0, StatesUpTo, true, "admin = 'Australia'"},
    {"States and provinces", "States of Brazil", Map, "states_provinces", StateLine, 0, 60, 0, 0, 0, StatesUpTo, true, "admin = 'Brazil'"},
    {"States and provinces", "Provinces of Canada", Map, "states_provinces", StateLine, 0, 60, 0, 0, 0, StatesUpTo, true, "admin = 'Canada'"},
    {"States and provinces", "Provinces of China", Map, "states_provinces", StateLine, 0, 60, 0, 0, 0, StatesUpTo, true, "admin = 'China'"},
    {"States and provinces", "States of India", Map, "states_provinces", StateLine, 0, 60, 0, 0, 0, StatesUpTo, true, "admin = 'India'"},
    {"States and provinces", "Regions of Russia", Map, "states_provinces", StateLine, 0, 60, 0, 0, 0, StatesUpTo, true, "admin = 'Russia'"},
    {"States and provinces", "States of the USA", Map, "states_provinces", StateLine, 0, 60, 0, 0, 0, StatesUpTo, true, "admin = 'United States of America'"},
    {"States and provinces", "Other states and provinces", Map, "states_provinces", StateLine, 0, 61, 0, 2, 0, 15e6, true,
     "admin NOT IN ('Australia','Brazil','Canada','China','India','Russia','United States of America')"},
    {"Population", "Population over 500 million", Countries, "naturalearth_lowres", 0xffffffff, 0xff7f3b2d, 90, 0, 0, 0, 0, false, "pop_est >= 500000000"},
    {"Population", "Population 100 to 500 million", Countries, "naturalearth_lowres", 0xffffffff, 0xffb1583a, 90, 0, 0, 0, 0, false, "pop_est >= 100000000 AND pop_est < 500000000"},
    {"Population", "Population 50 to 100 million", Countries, "naturalearth_lowres", 0xffffffff, 0xffd5825a, 90, 0, 0, 0, 0, false, "pop_est >= 50000000 AND pop_est < 100000000"},
    {"Population", "Population 20 to 50 million", Countries, "naturalearth_lowres", 0xffffffff, 0xffe8ac86, 90, 0, 0, 0, 0, false, "pop_est >= 20000000 AND pop_est < 50000000"},
    {"Population", "Population 5 to 20 million", Countries, "naturalearth_lowres", 0xffffffff, 0xfff3cfb3, 90, 0, 0, 0, 0, false, "pop_est >= 5000000 AND pop_est < 20000000"},
    {"Population", "Population under 5 million", Countries, "naturalearth_lowres", 0xffffffff, 0xfffaeadb, 90, 0, 0, 0, 0, false, "pop_est < 5000000"},
    {"Continents", "Africa", Map, "countries", 0xfff0dfbd, 0xfff0dfbd, 150, 0, 0, 0, 0, true, Africa},
    {"Continents", "Antarctica", Map, "countries", 0xfff5f7f8, 0xfff5f7f8, 150, 0, 0, 0, 0, true, Antarctica},
    {"Continents", "Asia", Map, "countries", 0xfff3e6d0, 0xfff3e6d0, 150, 0, 0, 0, 0, true, Asia},
    {"Continents", "Europe", Map, "countries", 0xffe6e6cd, 0xffe6e6cd, 150, 0, 0, 0, 0, true, Europe},
    {"Continents", "North America", Map, "countries", 0xffdde6cc, 0xffdde6cc, 150, 0, 0, 0, 0, true, NorthAmerica},
    {"Continents", "Oceania", Map, "countries", 0xffefdccb, 0xffefdccb, 150, 0, 0, 0, 0, true, Oceania},
    {"Continents", "South America", Map, "countries", 0xffd5e3c4, 0xffd5e3c4, 150, 0, 0, 0, 0, true, SouthAmerica},
    {"Sea and grid", "Equator", GeneratedFile, "equator", 0xff7f9fb2, 0, 180, 0, 1},
    {"Sea and grid", "Tropics and polar circles", GeneratedFile, "circles", 0xff8fadbd, 0, 181, 0, 2},
    {"Sea and grid", "Graticule", GeneratedFile, "graticule", 0xffbcd0dc, 0, 185},
    {"Sea and grid", "Coastal waters", Map, "countries", 0xffc4dbe7, 0, 200, -6},
    {"Sea and grid", "Ocean", GeneratedFile, "ocean", 0xff9db6c4, 0xffdbe8f0, 250},
});
// clang-format on

std::vector<QPointF> Parallel(double latitude)
{
    std::vector<QPointF> points;
    for (double longitude = -180; longitude <= 180; longitude += DegreesBetweenVertices)
        points.emplace_back(longitude, latitude);
    return points;
}

std::vector<QPointF> Meridian(double longitude)
{
    std::vector<QPointF> points;
    for (double latitude = -90; latitude <= 90; latitude += DegreesBetweenVertices)
        points.emplace_back(longitude, latitude);
    return points;
}

FeatureSet Lines(std::initializer_list<std::vector<QPointF>> lines)
{
    FeatureSet set;
    for (const std::vector<QPointF>& line : lines) {
        set.BeginFeature(FeatureKind::Line);
        set.AddPart(line);
    }
    return set;
}

FeatureSet Graticule()
{
    FeatureSet set;
    for (int longitude = -180; longitude <= 180; longitude += 15) {
        set.BeginFeature(FeatureKind::Line);
        set.AddPart(Meridian(longitude));
    }
    for (int latitude = -75; latitude <= 75; latitude += 15) {
        set.BeginFeature(FeatureKind::Line);
        set.AddPart(Parallel(latitude));
    }
    return set;
}

FeatureSet Ocean()
{
    std::vector<QPointF> ring = Meridian(-180);
    const std::vector<QPointF> north = Parallel(90);
    ring.insert(ring.end(), north.begin(), north.end());
    const std::vector<QPointF> east = Meridian(180);
    ring.insert(ring.end(), east.rbegin(), east.rend());
    const std::vector<QPointF> south = Parallel(-90);
    ring.insert(ring.end(), south.rbegin(), south.rend());
    FeatureSet set;
    set.BeginFeature(FeatureKind::Area);
    set.AddPart(ring);
    return set;
}

void WriteGenerated(const QString& path)
{
    constexpr double tropic = 23.4365;
    GeoPackageWriter writer(path, QLatin1String(GeneratedSystem));
    writer.AddLayer(QStringLiteral("ocean"), Ocean());
    writer.AddLayer(QStringLiteral("graticule"), Graticule());
    writer.AddLayer(QStringLiteral("equator"), Lines({Parallel(0)}));
    writer.AddLayer(
        QStringLiteral("circles"),
        Lines({Parallel(tropic), Parallel(-tropic), Parallel(90 - tropic), Parallel(tropic - 90)}));
}

} // namespace

void MakeWorldMap(const QString& mapPath, const QString& dataFolder)
{
    const QString generated = GeneratedDataPath(mapPath);
    WriteGenerated(generated);
    const auto document = MapDocument::Create(mapPath);
    document->SetSystem(QLatin1String(WorldSystem));
    AddSampleLayers(*document, WorldLayers, [&](const QString& file) {
        const QString path = file.isEmpty() ? generated : QDir(dataFolder).filePath(file);
        return QFileInfo::exists(path) ? path : QString();
    });
}

} // namespace Orvane

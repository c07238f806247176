// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/DataFolder.h"
#include "mapkit/common/GdalErrors.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/files/GdalSetup.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

namespace Orvane::Testing {

/// Towns with attributes of each kind, whose sizes are not in the order of their names:
///
///     ID  name    people  area  since       note
///     1   Ober    500     2.5   1871-01-18  NULL
///     2   Aue     40      NULL  1990-10-03  by the sea
///     3   Zell    7000    10    NULL        NULL
///     4   Brück   40      0.25  1648-10-24  by the river
inline LayerSource WriteTowns(const DataFolder& folder, const QString& name, const char* driver)
{
    PrepareGdal();
    const GdalErrors quiet;
    const QString path = folder.Path(name);
    std::unique_ptr<GDALDataset> file(GetGDALDriverManager()->GetDriverByName(driver)->Create(
        path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
    OGRLayer* layer = file->CreateLayer("towns", nullptr, wkbPoint);
    const std::pair<const char*, OGRFieldType> fields[]
        = {{"name", OFTString},
           {"people", OFTInteger},
           {"area", OFTReal},
           {"since", OFTDate},
           {"note", OFTString}};
    for (const auto& [fieldName, type] : fields) {
        OGRFieldDefn field(fieldName, type);
        EXPECT_EQ(layer->CreateField(&field), OGRERR_NONE);
    }
    struct Town {
        const char* name;
        int people;
        const char* area;
        const char* since;
        const char* note;
    };
    const Town towns[]
        = {{"Ober", 500, "2.5", "1871/01/18", nullptr},
           {"Aue", 40, nullptr, "1990/10/03", "by the sea"},
           {"Zell", 7000, "10", nullptr, nullptr},
           {"Br\xc3\xbc"
            "ck",
            40, "0.25", "1648/10/24", "by the river"}};
    for (const Town& town : towns) {
        OGRFeature feature(layer->GetLayerDefn());
        feature.SetField(0, town.name);
        feature.SetField(1, town.people);
        const char* texts[] = {town.area, town.since, town.note};
        for (int i = 0; i < 3; ++i) {
            if (texts[i])
                feature.SetField(2 + i, texts[i]);
            else
                feature.SetFieldNull(2 + i);
        }
        OGRPoint place(town.people / 1000.0, town.people % 7);
        feature.SetGeometry(&place);
        EXPECT_EQ(layer->CreateFeature(&feature), OGRERR_NONE);
    }
    LayerSource source;
    source.layerID = 1;
    source.path = path;
    source.ogrLayer = QString::fromUtf8(layer->GetName());
    return source;
}

} // namespace Orvane::Testing

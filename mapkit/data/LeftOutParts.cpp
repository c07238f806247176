// SPDX-License-Identifier: MIT
#include "mapkit/data/LeftOutParts.h"

#include <QStringList>

#include <ogrsf_frmts.h>
#include <vector>

namespace Orvane {

LeftOutParts::Part LeftOutParts::AttributesOf(const QString& format)
{
    static const QStringList known
        = {QStringLiteral("GPKG"), QStringLiteral("ESRI Shapefile"), QStringLiteral("FlatGeobuf"),
           QStringLiteral("OpenFileGDB")};
    return known.contains(format) ? Attributes : Nothing;
}

LeftOutParts::LeftOutParts(OGRLayer& layer, Part part) : m_layer(layer), m_part(part)
{
    if (part == Nothing)
        return;
    std::vector<const char*> names;
    const OGRFeatureDefn& definition = *layer.GetLayerDefn();
    if (part == Geometry)
        names.push_back("OGR_GEOMETRY");
    for (int i = 0; part == Attributes && i < definition.GetFieldCount(); ++i)
        names.push_back(definition.GetFieldDefn(i)->GetNameRef());
    names.push_back(nullptr);
    m_layer.SetIgnoredFields(names.data());
}

LeftOutParts::~LeftOutParts()
{
    if (m_part != Nothing)
        m_layer.SetIgnoredFields(nullptr);
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class OGRLayer;

namespace Orvane {

/// Has GDAL leave out a part of each feature of a layer while this object lives, which makes reading several
/// times as fast if the driver supports it.
class LeftOutParts
{
public:
    enum Part {
        Nothing,
        Geometry,
        Attributes,
    };

    /// Attributes for the formats whose geometries are known to be the same without them; Nothing for others.
    /// format: GDAL's name.
    static Part AttributesOf(const QString& format);

    /// layer: not owned; outlives this object.
    LeftOutParts(OGRLayer& layer, Part part);
    ~LeftOutParts();
    LeftOutParts(const LeftOutParts&) = delete;
    LeftOutParts& operator=(const LeftOutParts&) = delete;

private:
    OGRLayer& m_layer;
    Part m_part;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "mapkit/data/MapRaster.h"

#include "mapkit/common/Progress.h"
#include "mapkit/data/SourceReader.h"

namespace Orvane {

MapRaster::MapRaster(const LayerSource& source, const QString& mapSystem)
    : m_source(source.path, source.ogrLayer, source.system), m_mapSystem(mapSystem),
      m_sourceSystem(source.system.isEmpty() ? m_source.System() : source.system),
      m_extent(m_source.ExtentIn(mapSystem))
{
}

QImage MapRaster::Draw(const Box& extent, QSize pixels, const std::atomic<bool>& cancelled) const
{
    try {
        return m_source.Draw(m_mapSystem, extent, pixels, cancelled);
    } catch (const Cancelled&) {
        if (!cancelled) // then something around the drawing was
            throw;
        return {};
    }
}

} // namespace Orvane

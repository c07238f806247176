// SPDX-License-Identifier: MIT
#include "mapkit/data/MapRaster.h"

#include "mapkit/common/Progress.h"

namespace Orvane {

MapRaster::MapRaster(const QString& path, const QString& mapSystem, const QString& chosenSystem)
    : m_source(path, chosenSystem), m_mapSystem(mapSystem),
      m_sourceSystem(chosenSystem.isEmpty() ? m_source.System() : chosenSystem),
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

// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleFilter.h>

#include <QSet>

namespace Orvane {

/// What the flat list of a theme's editor shows: the layers of the theme, and nothing else. The editor opens
/// on the list of layers, since groups do not belong to a theme.
class ThemeFilter final : public IStyleFilter
{
public:
    explicit ThemeFilter(QSet<qint32> layerIDs) : m_layerIDs(std::move(layerIDs)) { }

private:
    bool IStyleFilter_ShowsGroups() const override { return false; }
    bool IStyleFilter_IsLayerShown(qint32 layerID, bool) const override
    {
        return m_layerIDs.contains(layerID);
    }

    const QSet<qint32> m_layerIDs;
};

} // namespace Orvane

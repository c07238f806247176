// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/trees/LayerTreesFixture.h"

#include <OrvaneShellLib/IStyleFilter.h>
#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

/// Two trees over a map that may be large.
class LayerTreesLoadTest : public Testing::LayerTreesTest
{
protected:
    void AddManyLayers(int count)
    {
        for (qint32 number = 0; number < count; ++number)
            host.AddLayer(
                {.id = 1000 + number, .name = QStringLiteral("Many %1").arg(number, 4, 10, QChar('0'))});
    }

    QString TopOf(const QTreeView& view) const { return view.indexAt(QPoint(0, 0)).data().toString(); }
};

/// Hides one layer, or raises an error when asked about it.
class FilterOnOne : public IStyleFilter
{
public:
    explicit FilterOnOne(qint32 layerID) : m_layerID(layerID) { }
    bool raises = false;

private:
    bool IStyleFilter_ShowsGroups() const override { return false; }
    bool IStyleFilter_IsLayerShown(qint32 layerID, bool) const override
    {
        if (layerID == m_layerID && raises)
            throw RunTimeError(7, "filter");
        return layerID != m_layerID;
    }

    qint32 m_layerID;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

/// Decides which layers an editor's flat list shows, and whether the editor opens on its groups. Implemented
/// by the host, which keeps it alive as long as an editor holds it. Called on the user-interface thread.
/// Errors that a member raises are passed on, and the list stays as it was.
class IStyleFilter
{
public:
    virtual ~IStyleFilter() = default;
    IStyleFilter(const IStyleFilter&) = delete;
    IStyleFilter& operator=(const IStyleFilter&) = delete;

    /// True when the editor should open on its Groups tab.
    bool ShowsGroups() const { return IStyleFilter_ShowsGroups(); }

    /// True when the flat list shows the layer. pseudo is the layer's Pseudo column. Called once per row each
    /// time the list is loaded.
    bool IsLayerShown(qint32 layerID, bool pseudo) const
    {
        return IStyleFilter_IsLayerShown(layerID, pseudo);
    }

protected:
    IStyleFilter() = default;

private:
    virtual bool IStyleFilter_ShowsGroups() const = 0;
    virtual bool IStyleFilter_IsLayerShown(qint32 layerID, bool pseudo) const = 0;
};

} // namespace Orvane

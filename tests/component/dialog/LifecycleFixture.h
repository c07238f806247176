// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/IStyleFilter.h>

namespace Orvane::Testing {

MATCHER_P(Mentions, part, "mentions " + std::string(part))
{
    return arg.contains(QLatin1String(part));
}

/// Opens on the groups if asked to, and shows layers with odd numbers only.
class OddLayers : public IStyleFilter
{
public:
    explicit OddLayers(bool showsGroups = false) : m_showsGroups(showsGroups) { }

private:
    bool IStyleFilter_ShowsGroups() const override { return m_showsGroups; }
    bool IStyleFilter_IsLayerShown(qint32 layerID, bool) const override { return layerID % 2 == 1; }

    bool m_showsGroups;
};

/// An editor over the town, from its creation to its end.
class Lifecycle : public EditorFixture
{
protected:
    void SetUp() override { AddTown(); }

    bool IsExpanded() { return Find("picLayerStyle").isVisibleTo(Form()); }
    int Nodes(const char* tree) { return Find<QTreeView>(tree).model()->rowCount(); }
};

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "shell/features/FeatureSelection.h"

#include "shell/tools/ToolCanvas.h"

#include <QSignalSpy>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;

TEST(FeatureSelection, DropsWhatCanNoLongerBeSelected)
{
    FeatureSelection selection;
    selection.Set({{1, 1}, {2, 1}, {3, 1}, {4, 1}});
    QSignalSpy changed(&selection, &FeatureSelection::Changed);
    std::vector<MapLayer> layers
        = {NamedLayer(1, "Plain", nullptr), NamedLayer(2, "Not selectable", nullptr),
           NamedLayer(3, "Not hitable", nullptr)}; // the fourth does not exist
    layers[0].visible = false;
    layers[1].flags.selectable = false;
    layers[2].flags.hitable = false;
    selection.Keep(layers);
    EXPECT_THAT(selection.Keys(), ElementsAre(FeatureKey{1, 1}));
    selection.Keep(layers);
    EXPECT_EQ(changed.size(), 1);
}

TEST(FeatureSelection, TellsOnlyRealChanges)
{
    FeatureSelection selection;
    QSignalSpy changed(&selection, &FeatureSelection::Changed);
    selection.Clear();
    selection.Set({{1, 1}});
    selection.Add({{1, 1}});
    EXPECT_EQ(changed.size(), 1);
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "qgis/project/GroupMirror.h"

#include "hostkit/lists/StoredList.h"
#include "qgis/project/ProjectFixture.h"

namespace Orvane::Testing {

namespace {

class GroupMirrorTest : public ProjectFixture
{
protected:
    std::vector<ListedGroup> Groups()
    {
        mirror.ReadAll();
        return StoredList::Groups(*store);
    }
};

TEST_F(GroupMirrorTest, ANestedGroupHasTheNamesOfBothAndTheOuterAllLayers)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    QgsVectorLayer* trams = AddLayer("Trams");
    QgsLayerTreeGroup* town = project.layerTreeRoot()->addGroup("Town");
    town->addLayer(roads);
    town->addGroup("Rails")->addLayer(trams);
    const auto groups = Groups();
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups[0].name, "Town");
    EXPECT_EQ(groups[0].layers, (std::vector<qint32>{mirror.IDOf(*roads), mirror.IDOf(*trams)}));
    EXPECT_EQ(groups[1].name, "Town / Rails");
    EXPECT_EQ(groups[1].layers, (std::vector<qint32>{mirror.IDOf(*trams)}));
}

TEST_F(GroupMirrorTest, AGroupKeepsItsIDWhenItIsRenamedAndMoved)
{
    QgsLayerTreeGroup* first = project.layerTreeRoot()->addGroup("First");
    project.layerTreeRoot()->addGroup("Second");
    const qint32 firstID = Groups()[0].id;
    first->setName("Moved");
    project.layerTreeRoot()->addChildNode(first->clone());
    project.layerTreeRoot()->removeChildNode(first);
    const auto groups = Groups();
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups[1].name, "Moved");
    EXPECT_EQ(groups[1].id, firstID);
}

TEST_F(GroupMirrorTest, ACopiedGroupGetsAnIDOfItsOwn)
{
    QgsLayerTreeGroup* first = project.layerTreeRoot()->addGroup("First");
    Groups();
    project.layerTreeRoot()->addChildNode(first->clone());
    const auto groups = Groups();
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_NE(groups[0].id, groups[1].id);
}

TEST_F(GroupMirrorTest, ANewNameIsGivenWithoutThoseOfTheGroupsAround)
{
    QgsLayerTreeGroup* rails = project.layerTreeRoot()->addGroup("Town")->addGroup("Rails");
    const qint32 railsID = Groups()[1].id;
    mirror.WriteGroupName(railsID, "Town / Tracks");
    EXPECT_EQ(rails->name(), "Tracks");
    mirror.WriteGroupName(railsID, "Lines");
    EXPECT_EQ(rails->name(), "Lines");
}

TEST_F(GroupMirrorTest, ALayerThatIsTwiceInAGroupIsListedOnce)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    QgsLayerTreeGroup* town = project.layerTreeRoot()->addGroup("Town");
    town->addLayer(roads);
    town->addLayer(roads);
    EXPECT_EQ(Groups()[0].layers.size(), 1u);
}

} // namespace

} // namespace Orvane::Testing

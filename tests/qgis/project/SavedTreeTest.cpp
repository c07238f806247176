// SPDX-License-Identifier: MIT
#include "qgis/project/SavedTree.h"

#include "qgis/layers/LayerSnap.h"
#include "qgis/layers/LayerTick.h"
#include "qgis/project/ProjectFixture.h"

#include <QTemporaryDir>
#include <qgsproject.h>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

using Testing::ProjectFixture;

/// A project whose layer changes while it is being saved.
class SavedTreeTest : public ProjectFixture, public testing::WithParamInterface<const char*>
{
protected:
    void SaveWhileItChanges()
    {
        QgsVectorLayer* roads = AddLayer("Roads");
        QObject::connect(&project, &QgsProject::writeProject, &project, [&, roads](QDomDocument& file) {
            WriteVisible(*roads, project, false);
            WriteSnap(project, {{roads, true}});
            SavedTree::WriteAgain(file, project);
        });
        ASSERT_TRUE(project.write(folder.filePath(QString("town") + GetParam())));
    }

    /// The layer of the project in the file.
    QgsMapLayer& Reopened()
    {
        EXPECT_TRUE(reopened.read(folder.filePath(QString("town") + GetParam())));
        return *reopened.mapLayersByName("Roads").first();
    }

    QTemporaryDir folder;
    QgsProject reopened;
};

} // namespace

TEST_P(SavedTreeTest, HoldsWhatChangedWhileTheProjectWasSaved)
{
    SaveWhileItChanges();
    QgsMapLayer& roads = Reopened();
    EXPECT_FALSE(ToBoolean(ReadVisible(roads, reopened)));
    EXPECT_TRUE(ToBoolean(ReadSnap(roads, reopened)));
    EXPECT_EQ(reopened.layerTreeRoot()->findLayers().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Files, SavedTreeTest, testing::Values(".qgs", ".qgz"));

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectWatcher.h"

#include "qgis/project/ProjectFixture.h"

#include <QSignalSpy>
#include <qgsmaplayerstylemanager.h>

namespace Orvane::Testing {

namespace {

class ProjectWatcherTest : public ProjectFixture
{
protected:
    ProjectWatcherTest()
    {
        QObject::connect(
            &watcher, &ProjectWatcher::Changed, [this](const QSet<QString>& layers, bool isTree) {
                ++told;
                changed = layers;
                treeChanged = isTree;
            });
    }

    void Settle() { QCoreApplication::processEvents(); }

    ProjectWatcher watcher{project};
    QSignalSpy replaced{&watcher, &ProjectWatcher::ProjectReplaced};
    int told = 0;
    QSet<QString> changed;
    bool treeChanged = false;
};

TEST_F(ProjectWatcherTest, ManyChangesAreToldOnce)
{
    const auto layers = AddLayers({"A", "B", "C"});
    Settle();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(treeChanged);
    EXPECT_EQ(changed, (QSet<QString>{layers[0]->id(), layers[1]->id(), layers[2]->id()}));
}

TEST_F(ProjectWatcherTest, OnlyTheChangedLayerIsNamed)
{
    const auto layers = AddLayers({"A", "B"});
    Settle();
    Paint(*layers[1], Qt::green);
    Settle();
    EXPECT_EQ(told, 2);
    EXPECT_EQ(changed, QSet<QString>{layers[1]->id()});
    EXPECT_FALSE(treeChanged);
}

TEST_F(ProjectWatcherTest, EachPropertyOfALayerIsNoticed)
{
    QgsVectorLayer* layer = AddLayers({"A"})[0];
    const std::vector<std::function<void()>> changes{
        [&] { layer->setName("B"); },
        [&] { layer->setOpacity(0.5); },
        [&] { layer->setReadOnly(true); },
        [&] { layer->setFlags(QgsMapLayer::Removable); },
        [&] { project.layerTreeRoot()->findLayer(layer)->setItemVisibilityChecked(false); },
        [&] { layer->setScaleBasedVisibility(true), layer->triggerRepaint(); }};
    for (const auto& change : changes) {
        Settle();
        told = 0;
        change();
        Settle();
        EXPECT_EQ(told, 1);
        EXPECT_EQ(changed, QSet<QString>{layer->id()});
    }
}

TEST_F(ProjectWatcherTest, TheStylesOfALayerAreNoticed)
{
    QgsVectorLayer* layer = AddLayers({"A"})[0];
    QgsMapLayerStyleManager& styles = *layer->styleManager();
    const QSignalSpy renamed(&watcher, &ProjectWatcher::StyleRenamed);
    const std::vector<std::function<void()>> changes{
        [&] { styles.addStyleFromLayer("Night"); }, [&] { styles.setCurrentStyle("Night"); },
        [&] { styles.renameStyle("Night", "Evening"); }, [&] { styles.removeStyle("Evening"); }};
    for (const auto& change : changes) {
        Settle();
        told = 0;
        change();
        Settle();
        EXPECT_EQ(told, 1);
        EXPECT_EQ(changed, QSet<QString>{layer->id()});
    }
    ASSERT_EQ(renamed.count(), 1);
    EXPECT_EQ(renamed.at(0).at(1).toString(), "Evening");
}

TEST_F(ProjectWatcherTest, OwnChangesAreNotTold)
{
    QgsVectorLayer* layer = AddLayers({"A"})[0];
    Settle();
    {
        const ProjectWatcher::Silence own(watcher);
        Paint(*layer, Qt::green);
        project.layerTreeRoot()->addGroup("Town");
    }
    Settle();
    EXPECT_EQ(told, 1);
}

TEST_F(ProjectWatcherTest, ALayerThatIsRemovedDuringAnOwnChangeIsTold)
{
    QgsVectorLayer* layer = AddLayers({"A"})[0];
    const QString id = layer->id();
    Settle();
    {
        const ProjectWatcher::Silence own(watcher);
        project.removeMapLayer(layer);
    }
    Settle();
    EXPECT_EQ(told, 2);
    EXPECT_EQ(changed, QSet<QString>{id});
}

TEST_F(ProjectWatcherTest, TheTreeIsNoticed)
{
    QgsLayerTreeGroup* town = project.layerTreeRoot()->addGroup("Town");
    Settle();
    EXPECT_TRUE(treeChanged);
    town->setName("City");
    Settle();
    EXPECT_EQ(told, 2);
    EXPECT_TRUE(changed.isEmpty());
}

TEST_F(ProjectWatcherTest, AnotherProjectIsToldOnceAndAlone)
{
    const QTemporaryDir folder;
    AddLayers({"A", "B"});
    ASSERT_TRUE(project.write(folder.filePath("map.qgs")));
    Settle();
    told = 0;
    ASSERT_TRUE(project.read(folder.filePath("map.qgs")));
    Settle();
    EXPECT_EQ(replaced.count(), 1);
    EXPECT_EQ(told, 0);
}

TEST_F(ProjectWatcherTest, ALayerOfTheOtherProjectIsWatchedToo)
{
    const QTemporaryDir folder;
    AddLayers({"A"});
    ASSERT_TRUE(project.write(folder.filePath("map.qgs")));
    ASSERT_TRUE(project.read(folder.filePath("map.qgs")));
    Settle();
    told = 0;
    project.mapLayers().first()->setName("B");
    Settle();
    EXPECT_EQ(told, 1);
}

} // namespace

} // namespace Orvane::Testing

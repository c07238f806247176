// SPDX-License-Identifier: MIT
// Both sides see what the other one does.
#include "qgis/plugin/DialogFixture.h"

#include <qgslayertreemodel.h>
#include <qgslayertreemodellegendnode.h>
#include <qgslayoutitemlegend.h>
#include <qgslayoutmanager.h>
#include <qgsprintlayout.h>

namespace Orvane::Testing {

namespace {

class Live : public DialogFixture
{
protected:
    void SetStyleFromFile(QgsVectorLayer& layer)
    {
        bool ok = false;
        const QString file = folder.filePath("style.qml");
        lakes->saveNamedStyle(file, ok);
        layer.loadNamedStyle(file, ok);
        EXPECT_TRUE(ok);
    }

    qint32 StoredColour(QgsMapLayer& layer)
    {
        const auto row = StoredRows::Read(session->Store(), session->Mirror().IDOf(layer));
        return ToInt32(ValueOf(*row, "FillForeColor"));
    }
};

TEST_F(Live, NoChangeInQgisCostsPendingEdits)
{
    QgsLayerTree& tree = *project.layerTreeRoot();
    const std::vector<std::pair<const char*, std::function<void()>>> changes{
        {"add", [&] { AddLayer("Woods"); }},
        {"duplicate", [&] { project.addMapLayer(lakes->clone()); }},
        {"remove", [&] { project.removeMapLayer(project.mapLayersByName("Woods").first()); }},
        {"rename", [&] { roads->setName("Streets"); }},
        {"restyle", [&] { Paint(*roads, Qt::green); }},
        {"style from a file", [&] { SetStyleFromFile(*roads); }},
        {"filter", [&] { roads->setSubsetString("people > 3"); }},
        {"edit", [&] { roads->startEditing(); }},
        {"end of editing", [&] { roads->commitChanges(); }},
        {"opacity", [&] { roads->setOpacity(0.5); }},
        {"tick", [&] { tree.findLayer(lakes)->setItemVisibilityChecked(false); }},
        {"order",
         [&] {
             tree.setCustomLayerOrder(QList<QgsMapLayer*>{roads, lakes}), tree.setHasCustomLayerOrder(true);
         }},
        {"add a group", [&] { tree.addGroup("Country"); }},
        {"move",
         [&] {
             tree.findGroup("Town")->insertChildNode(0, tree.findLayer(roads)->clone());
             tree.removeChildNode(tree.findLayer(roads));
         }},
        {"remove a group", [&] { tree.removeChildNode(tree.findGroup("Country")); }},
        {"apply elsewhere", [&] { session->Client().RefreshEditors(); }}};
    EditVisible(*roads);
    for (const auto& [name, change] : changes) {
        change();
        Settle();
        EXPECT_TRUE(Form().HasPendingEdits()) << name;
        EXPECT_EQ(user.FlagOf("chkVisible"), false) << name;
    }
    user.Click("cmdApply");
    EXPECT_FALSE(IsTicked(*roads));
    EXPECT_EQ(told, QStringList());
    EXPECT_EQ(user.TakeBoxes(), QStringList());
}

TEST_F(Live, TheListsFollowTheProject)
{
    AddLayer("Woods");
    roads->setName("Streets");
    project.layerTreeRoot()->findGroup("Town")->setName("City");
    project.layerTreeRoot()->findGroup("City")->insertLayer(0, lakes);
    Settle();
    EXPECT_THAT(ListedLayers(), testing::UnorderedElementsAre("Lakes", "Streets", "Woods"));
    EXPECT_EQ(ListedGroups(), QStringList{"City"});
    project.removeMapLayer(lakes);
    Settle();
    EXPECT_THAT(ListedLayers(), testing::UnorderedElementsAre("Streets", "Woods"));
}

TEST_F(Live, SeveralLayersAreRemovedTogether)
{
    AddLayer("Woods");
    Settle();
    std::vector<qsizetype> asked; // how many layers each time
    session->Client().SetCommands({{}, [&](const QList<QgsMapLayer*>& layers) {
                                       asked.push_back(layers.size());
                                       project.removeMapLayers(layers);
                                   }});
    const QStringList listed = ListedLayers();
    user.ClickNodes(2, {int(listed.indexOf("Roads")), int(listed.indexOf("Woods"))});
    ASSERT_TRUE(user.Pick(2, "Delete"));
    Settle();
    EXPECT_THAT(asked, testing::ElementsAre(2));
    EXPECT_EQ(project.count(), 1);
    EXPECT_EQ(ListedLayers(), QStringList{"Lakes"});
    EXPECT_EQ(told, QStringList());
}

TEST_F(Live, TheSettingsFollowTheSelectedLayer)
{
    Select(*roads);
    project.layerTreeRoot()->findLayer(roads)->setItemVisibilityChecked(false);
    roads->setReadOnly(true);
    Settle();
    EXPECT_EQ(user.FlagOf("chkVisible"), false);
    EXPECT_EQ(user.FlagOf("chkLocked"), true);
}

TEST_F(Live, AStyleFromAFileIsRead)
{
    Paint(*lakes, Qt::green);
    SetStyleFromFile(*roads);
    Settle();
    EXPECT_EQ(StoredColour(*roads), 0x00FF00);
}

TEST_F(Live, ALayerOfAClosedProjectIsNotEditedAnyMore)
{
    EditVisible(*roads);
    project.clear();
    Settle();
    EXPECT_FALSE(Form().HasPendingEdits());
    EXPECT_EQ(ListedLayers(), QStringList());
    EXPECT_EQ(told, QStringList());
}

TEST_F(Live, AProjectFromATemplateIsShown)
{
    const QString file = folder.filePath("template.qgs");
    project.layerTreeRoot()->findGroup("Town")->insertLayer(0, lakes);
    ASSERT_TRUE(project.write(file));
    project.clear();
    Settle();
    ASSERT_TRUE(project.read(file)); // QGIS then removes the name of the file
    project.setFileName(QString());
    Settle();
    EXPECT_THAT(ListedLayers(), testing::UnorderedElementsAre("Lakes", "Roads"));
    EXPECT_EQ(ListedGroups(), QStringList{"Town"});
}

TEST_F(Live, AnAppliedColourIsInThePanelTheLegendsAndTheMap)
{
    auto* layout = new QgsPrintLayout(&project);
    layout->setName("Page");
    auto* legend = new QgsLayoutItemLegend(layout);
    layout->addLayoutItem(legend);
    project.layoutManager()->addLayout(layout);
    QgsLayerTreeModel panel(project.layerTreeRoot());
    session->Mirror().SetPanel(&panel);
    project.setDirty(false);
    QSignalSpy repainted(roads, &QgsMapLayer::repaintRequested);
    QSignalSpy refreshed(legend->model(), &QAbstractItemModel::dataChanged);
    const auto rows = [&] { return panel.layerLegendNodes(project.layerTreeRoot()->findLayer(roads)); };
    const auto before = rows();
    Select(*roads);
    user.StepThrough("cmbColor1", Qt::Key_Down);
    user.Click("cmdApply");
    EXPECT_TRUE(project.isDirty());
    EXPECT_GE(repainted.count(), 1);
    EXPECT_NE(rows(), before); // new entries
    session->Mirror().SetPanel(nullptr);
}

TEST_F(Live, AnAppliedTickIsInTheTreeAndMarksTheProject)
{
    project.setDirty(false);
    EditVisible(*roads);
    EXPECT_TRUE(IsTicked(*roads));
    user.Click("cmdApply");
    EXPECT_FALSE(IsTicked(*roads));
    EXPECT_TRUE(project.isDirty());
}

} // namespace

} // namespace Orvane::Testing

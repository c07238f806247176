// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorRefresh.h>
#include <OrvaneShellLib/LayerQueries.h>

#include <QLineEdit>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class RefreshingLayers : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        Open();
        ClickLayer("Roads");
    }

    void Refresh(const QSet<qint32>& layerIDs)
    {
        dynamic_cast<IStyleEditorRefresh&>(*Form()).RefreshLayers(layerIDs);
    }

    void Rename(qint32 layerID, const char* name)
    {
        host.SetLayerColumn(layerID, "Name", QString(name));
        Refresh({layerID});
    }

    QStringList Listed(const char* tree = "tvLayers2", const QModelIndex& parent = {})
    {
        const QAbstractItemModel* model = Find<QTreeView>(tree).model();
        QStringList texts;
        for (int row = 0; row < model->rowCount(parent); ++row)
            texts << model->index(row, 0, parent).data().toString();
        return texts;
    }

    QStringList ListedInFirstGroup()
    {
        return Listed("tvLayers1", Find<QTreeView>("tvLayers1").model()->index(0, 0));
    }

    bool HasReadTheList() { return host.Queries().contains(LayerQueries::LayerList()); }
    QString CurrentText() { return Find<QTreeView>("tvLayers2").currentIndex().data().toString(); }
};

TEST_F(RefreshingLayers, ShowsTheNewValuesOfTheCurrentLayer)
{
    host.SetLayerColumn(1, "Priority", qint32(7));
    Refresh({1, 2});
    EXPECT_EQ(TextOf("lblPriority"), "7");
    EXPECT_FALSE(CanApply());
}

TEST_F(RefreshingLayers, ShowsTheNewValuesOfTheCurrentGroup)
{
    ClickTab(1);
    ClickGroup("Transport");
    host.SetLayerColumn(1, "Visible", true);
    host.SetLayerColumn(2, "Visible", true);
    Refresh({2, 1});
    EXPECT_EQ(CheckState("chkVisible"), 1);
}

TEST_F(RefreshingLayers, ReadsOnlyTheChangedLayersOfTheCurrentGroup)
{
    host.AddLayer({.id = 50, .name = "Paths", .code = qint32(50)});
    host.AddGroup({.id = 40, .name = QString("Ways"), .ordering = 4, .members = {1, 3, 50}});
    EditorForm().Refresh();
    ClickTab(1);
    ClickGroup("Ways");
    ASSERT_EQ(CheckState("chkVisible"), 1);
    host.SetLayerColumn(50, "Visible", false);
    host.ClearLog();
    Refresh({50});
    EXPECT_EQ(host.Log().CallsTo("Seek").size(), 1);
    EXPECT_EQ(CheckState("chkVisible"), 2);
    Click("chkSelectable");
    host.SetLayerColumn(3, "Locked", true);
    Refresh({3});
    EXPECT_EQ(CheckState("chkLocked"), 2);
    EXPECT_TRUE(IsUnderlined("chkSelectable"));
}

TEST_F(RefreshingLayers, ReadsOnlyTheRowsThatItWasGiven)
{
    host.ClearLog();
    Refresh({2, 3});
    EXPECT_EQ(host.Queries().size(), 2);
    EXPECT_THAT(host.Queries(), Contains(LayerQueries::OneLayer(2)));
    EXPECT_THAT(host.Log().CallsTo("Seek"), IsEmpty()) << "the panel shows neither";
}

TEST_F(RefreshingLayers, KeepsEditsThatWereNotApplied)
{
    const MessageBoxRobot nobody{};
    Click("chkVisible");
    const auto edited = CheckState("chkVisible");
    host.SetLayerColumn(1, "Priority", qint32(7));
    Refresh({1});
    EXPECT_EQ(CheckState("chkVisible"), edited);
    EXPECT_TRUE(IsUnderlined("chkVisible"));
    EXPECT_EQ(TextOf("lblPriority"), "7");
    EXPECT_TRUE(EditorForm().HasPendingEdits());
}

TEST_F(RefreshingLayers, MovesARenamedLayerToItsPlaceAndKeepsItSelected)
{
    host.ClearLog();
    Rename(1, "alleys");
    EXPECT_THAT(Listed(), ElementsAre("alleys", "Boundary", "Parcels", "Rivers"));
    EXPECT_EQ(CurrentText(), "alleys");
    Rename(1, "quays");
    EXPECT_THAT(Listed(), ElementsAre("Boundary", "Parcels", "quays", "Rivers"));
    Rename(1, "Woods");
    EXPECT_THAT(Listed(), ElementsAre("Boundary", "Parcels", "Rivers", "Woods"));
    EXPECT_EQ(CurrentText(), "Woods");
    EXPECT_FALSE(HasReadTheList());
}

TEST_F(RefreshingLayers, ShowsANewNameInTheGroupsToo)
{
    ClickTab(1);
    ClickTab(2);
    Rename(1, "Alleys");
    EXPECT_THAT(ListedInFirstGroup(), Contains(QString("Alleys")));
}

TEST_F(RefreshingLayers, LeavesAnObscuredLayerWhereItsNamePutsIt)
{
    host.displayNames[1] = "Roads (Obscured)";
    host.ClearLog();
    Refresh({1});
    EXPECT_THAT(Listed(), ElementsAre("Boundary", "Parcels", "Rivers", "(OBS)Roads "));
    EXPECT_FALSE(HasReadTheList());
}

TEST_F(RefreshingLayers, ReadsTheListWhereOnlyTheHostKnowsThePlace)
{
    host.displayNames[4] = "Zone"; // listed by its name, Boundary
    Refresh({4});
    EXPECT_THAT(Listed(), ElementsAre("Zone", "Parcels", "Rivers", "Roads"));
    host.ClearLog();
    Rename(1, "Alleys");
    EXPECT_THAT(Listed(), ElementsAre("Alleys", "Zone", "Parcels", "Rivers"));
    EXPECT_TRUE(HasReadTheList());
}

TEST_F(RefreshingLayers, ReadsTheListWhenALayerCameOrWent)
{
    host.AddLayer({.id = 60, .name = "Sewers", .code = qint32(66)});
    Refresh({60});
    EXPECT_THAT(Listed(), Contains(QString("Sewers")));
    host.SetLayerColumn(60, "Code", qint32(-2));
    Refresh({60});
    EXPECT_THAT(Listed(), Not(Contains(QString("Sewers"))));
    host.RemoveLayerRow(1);
    Refresh({1});
    EXPECT_EQ(Listed().size(), 3);
}

TEST_F(RefreshingLayers, ReadsTheGroupsWhenAHiddenLayerOfAGroupIsListedNow)
{
    host.SetLayerColumn(2, "Code", qint32(-2));
    EditorForm().Refresh();
    ClickTab(1);
    EXPECT_EQ(ListedInFirstGroup().size(), 1);
    host.SetLayerColumn(2, "Code", qint32(5));
    Refresh({2});
    EXPECT_EQ(ListedInFirstGroup().size(), 2);
}

TEST_F(RefreshingLayers, DoesAsMuchAsRefreshForManyLayers)
{
    QSet<qint32> many;
    for (qint32 layerID = 1; layerID <= 2000; ++layerID)
        many.insert(layerID);
    host.SetLayerColumn(1, "Priority", qint32(7));
    host.ClearLog();
    Refresh(many);
    EXPECT_TRUE(HasReadTheList());
    EXPECT_LE(host.Queries().size(), 3);
    EXPECT_EQ(TextOf("lblPriority"), "7");
}

TEST_F(RefreshingLayers, LeavesTheNameThatIsBeingTyped)
{
    auto& tree = Find<QTreeView>("tvLayers2");
    QTest::keyClick(&tree, Qt::Key_F2);
    auto* editor = tree.findChild<QLineEdit*>("txtNodeName");
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, "Streets");
    host.SetLayerColumn(1, "OverrideMode", qint32(2));
    Rename(2, "Brooks");
    Refresh({1});
    QCoreApplication::processEvents();
    EXPECT_EQ(editor->text(), "Streets");
    EXPECT_TRUE(editor->isVisible());
}

TEST_F(RefreshingLayers, ShowsTheModesOfTheLayersInTheLists)
{
    ClickLayer("Rivers");
    host.SetLayerColumn(1, "OverrideMode", qint32(2));
    const QAbstractItemModel* model = Find<QTreeView>("tvLayers2").model();
    const auto mode = [model] { return model->index(3, 0).data(Qt::AccessibleDescriptionRole).toString(); };
    const QString before = mode();
    Refresh({1});
    EXPECT_NE(mode(), before);
}

TEST_F(RefreshingLayers, ShowsAValueThatCannotBeReadAsAFault)
{
    MessageBoxRobot user{BoxKey::Enter};
    host.SetLayerColumn(2, "OverrideMode", QString("soon"));
    Refresh({2});
    QCoreApplication::processEvents();
    EXPECT_TRUE(user.Only().text.contains("OverrideMode"));
}

TEST_F(RefreshingLayers, AnEditorThatWasNotShownReadsNothing)
{
    Close();
    Create();
    host.ClearLog();
    Refresh({1});
    EXPECT_THAT(host.Calls(), IsEmpty());
    EXPECT_THAT(host.Queries(), IsEmpty());
}

TEST_F(RefreshingLayers, TheTabOfSchemesStaysCovered)
{
    ClickTab(3);
    host.ClearLog();
    Rename(1, "Alleys");
    EXPECT_THAT(host.Log().CallsTo("Seek"), IsEmpty());
    ClickTab(2);
    EXPECT_EQ(Listed().first(), "Alleys");
}

} // namespace

} // namespace Orvane::Testing

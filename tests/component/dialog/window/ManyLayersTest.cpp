// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"
#include "hosts/FailingClient.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IManyLayers.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QTreeView>
#include <QtTest>

#include <array>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Counts what it is asked to delete at once, and deletes it.
class DeletingClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    std::vector<std::vector<qint32>> asked;

private:
    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override
    {
        asked.push_back(layerIDs);
        ForwardingClient::IManyLayers_DeleteLayers(layerIDs);
    }
};

/// The flat list shows Boundary, a system layer, then Parcels, Rivers, Roads.
class ManyLayers : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        Open();
    }

    QPoint Place(const QString& text)
    {
        auto& tree = Find<QTreeView>("tvLayers2");
        const QModelIndexList found
            = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
        return tree.visualRect(found.value(0)).center();
    }

    void Choose(const QStringList& texts)
    {
        ClickLayer(texts.first());
        for (const QString& text : texts.mid(1)) {
            QTest::mouseClick(
                Find<QTreeView>("tvLayers2").viewport(), Qt::LeftButton, Qt::ControlModifier, Place(text));
        }
    }

    void ChooseThree() { Choose({"Parcels", "Rivers", "Roads"}); }
    int Selected() { return int(Find<QTreeView>("tvLayers2").selectionModel()->selectedIndexes().size()); }
    int Calls(const char* member) { return int(host.Log().CallsTo(member).size()); }
};

TEST_F(ManyLayers, AreWrittenInOneTransactionWithOneRedraw)
{
    ChooseThree();
    Click("chkSnapRequired");
    const double snap = CheckState("chkSnapRequired");
    host.ClearLog();
    Click("cmdApply");
    EXPECT_EQ(Calls("Update"), 3);
    EXPECT_EQ(Calls("RedrawMap"), 1);
    EXPECT_EQ(Calls("LayerChanged"), 3);
    for (const qint32 layerID : {1, 2, 3})
        EXPECT_EQ(Stored(layerID, "SnapRequired") != 0, snap != 0) << layerID;
    EXPECT_FALSE(CanApply());
}

TEST_F(ManyLayers, ShowWhatTheyHaveInCommonAndNoCodeToEdit)
{
    ChooseThree();
    EXPECT_FALSE(IsEnabled("lblCode"));
    EXPECT_EQ(TextOf("lblCode"), "");
    EXPECT_TRUE(IsEnabled("cmdDeleteLayer"));
    host.SetLayerColumn(1, "Code", qint32(7));
    host.SetLayerColumn(2, "Code", qint32(7));
    Choose({"Rivers", "Roads"});
    EXPECT_EQ(TextOf("lblCode"), "7");
    EXPECT_FALSE(IsEnabled("lblCode"));
}

TEST_F(ManyLayers, GetTheQuickModeOfTheToolbar)
{
    ChooseThree();
    Click("Hidden");
    Click("cmdApply");
    for (const qint32 layerID : {1, 2, 3})
        EXPECT_EQ(Stored(layerID, "OverrideMode"), Stored(1, "OverrideMode"));
    EXPECT_EQ(PressedModes(), 4);
}

TEST_F(ManyLayers, AreNamedByTheirNumberInTheQuestion)
{
    ChooseThree();
    Click("chkLocked");
    MessageBoxRobot user{BoxKey::Yes};
    ClickLayer("Boundary");
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, "Do you wish to apply the changes to the 3 selected layers?");
    EXPECT_EQ(Calls("RedrawMap"), 1);
    EXPECT_EQ(Selected(), 1);
}

TEST_F(ManyLayers, AreAskedAboutOnceWhenOneMoreIsChosen)
{
    Choose({"Rivers", "Roads"});
    Click("chkLocked");
    host.ClearLog();
    MessageBoxRobot user{BoxKey::No};
    QTest::mouseClick(
        Find<QTreeView>("tvLayers2").viewport(), Qt::LeftButton, Qt::ControlModifier, Place("Parcels"));
    EXPECT_THAT(user.Boxes(), IsEmpty());
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, "Do you wish to apply the changes to the 2 selected layers?");
    EXPECT_EQ(Calls("Update"), 0);
    EXPECT_EQ(Selected(), 3);
    EXPECT_FALSE(CanApply());
}

TEST_F(ManyLayers, StayChosenWithTheirEditsIfTheyCannotBeWritten)
{
    ChooseThree();
    Click("chkLocked");
    for (const qint32 layerID : {1, 2, 3})
        host.RemoveLayerRow(layerID);
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(user.Only().text, "The selected layers (3) no longer exist. The changes were not applied.");
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(Selected(), 3);
}

TEST_F(ManyLayers, AreWrittenWithoutThoseThatHaveGone)
{
    ChooseThree();
    Click("chkVisible");
    host.RemoveLayerRow(2);
    host.ClearLog();
    Click("cmdApply");
    EXPECT_EQ(Calls("Update"), 2);
    EXPECT_FALSE(CanApply());
}

TEST_F(ManyLayers, KeepTheirEditsWhenOneHasGoneFromTheList)
{
    ChooseThree();
    Click("chkVisible");
    const qint16 edited = CheckState("chkVisible");
    host.RemoveLayerRow(2);
    MessageBoxRobot nobody{};
    EditorForm().Refresh();
    EXPECT_EQ(Selected(), 2);
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(CheckState("chkVisible"), edited);
}

TEST_F(ManyLayers, AreDeletedOneByOneByAHostThatCannotDoBetter)
{
    ChooseThree();
    host.ClearLog();
    Click("cmdDeleteLayer");
    EXPECT_EQ(Calls("DeleteLayer"), 3);
    EXPECT_EQ(Find<QTreeView>("tvLayers2").model()->rowCount(), 1);
}

TEST_F(ManyLayers, ThatAFindHidesAreNeitherEditedNorDeleted)
{
    ChooseThree();
    const std::array before{Stored(1, "locked"), Stored(2, "locked"), Stored(3, "locked")};
    QTest::keyClicks(&Find("txtFind2"), "roads");
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_NE(Stored(1, "locked"), before[0]);
    EXPECT_EQ(Stored(2, "locked"), before[1]);
    EXPECT_EQ(Stored(3, "locked"), before[2]);
    host.ClearLog();
    Find("tvLayers2").setFocus();
    Key(Qt::Key_Delete);
    EXPECT_EQ(Calls("DeleteLayer"), 1);
    QTest::keyClicks(&Find("txtFind2"), "\b\b\b\b\b");
    EXPECT_EQ(Find<QTreeView>("tvLayers2").model()->rowCount(), 3);
    EXPECT_EQ(Selected(), 2);
}

TEST_F(ManyLayers, AreNotDeletedIfTheyAreSystemLayersOfWhichTheUserIsTold)
{
    Choose({"Boundary", "Rivers", "Roads"});
    host.ClearLog();
    MessageBoxRobot user{BoxKey::Enter};
    Key(Qt::Key_Delete);
    EXPECT_EQ(user.Only().text, "You may not delete a 'system layer'. Selected layers that stay: 1.");
    EXPECT_EQ(Calls("DeleteLayer"), 2);
    EXPECT_EQ(Find<QTreeView>("tvLayers2").model()->rowCount(), 2);
}

TEST_F(ManyLayers, KeepTheEditsOfTheSystemLayerThatIsNotDeleted)
{
    Choose({"Boundary", "Rivers", "Roads"});
    Click("chkSnapRequired");
    const qint16 edited = CheckState("chkSnapRequired");
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdDeleteLayer");
    EXPECT_EQ(Find<QTreeView>("tvLayers2").model()->rowCount(), 2);
    EXPECT_EQ(Selected(), 1);
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(CheckState("chkSnapRequired"), edited);
    Click("cmdApply");
    EXPECT_EQ(Stored(4, "SnapRequired") != 0, edited != 0);
}

TEST_F(ManyLayers, OfGroupsAndLayersCountOnce)
{
    ClickTab(1);
    ClickGroup("Transport");
    auto& tree = Find<QTreeView>("tvLayers1");
    tree.expandAll();
    const QModelIndex group = tree.currentIndex();
    const QPoint member = tree.visualRect(tree.model()->index(0, 0, group)).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::ControlModifier, member);
    Click("chkLocked");
    host.ClearLog();
    Click("cmdApply");
    EXPECT_EQ(Calls("Update"), 2);
    EXPECT_EQ(Calls("RedrawMap"), 1);
}

/// Asks about each layer; the user answers No for Rivers.
class RefusingClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;

private:
    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override
    {
        for (const qint32 layerID : layerIDs)
            IStyleEditorClient_DeleteLayer(layerID);
    }
    void IStyleEditorClient_DeleteLayer(qint32 layerID) override
    {
        if (layerID != 2)
            ForwardingClient::IStyleEditorClient_DeleteLayer(layerID);
    }
};

class ManyLayersOfAHostThatKeepsOne : public ManyLayers
{
protected:
    void SetUp() override
    {
        UseClient(client);
        ManyLayers::SetUp();
    }

    RefusingClient client{host};
};

TEST_F(ManyLayersOfAHostThatKeepsOne, LeaveTheListAndItsEditsStay)
{
    ChooseThree();
    Click("chkSnapRequired");
    Click("cmdDeleteLayer");
    EXPECT_EQ(Find<QTreeView>("tvLayers2").model()->rowCount(), 2);
    EXPECT_EQ(Selected(), 1);
    EXPECT_TRUE(CanApply());
}

class FailingOneByOne : public FailingClient
{
public:
    using FailingClient::FailingClient;

private:
    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override
    {
        for (const qint32 layerID : layerIDs)
            IStyleEditorClient_DeleteLayer(layerID);
    }
};

class ManyLayersOfAFailingHost : public ManyLayers
{
protected:
    void SetUp() override
    {
        UseClient(client);
        ManyLayers::SetUp();
    }

    FailingOneByOne client{host, {"DeleteLayer", 2, RunTimeError(ErrorNumber::DatabaseLocked, "locked")}};
};

TEST_F(ManyLayersOfAFailingHost, LeaveTheListIfTheyWereDeletedBeforeTheError)
{
    ChooseThree();
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdDeleteLayer");
    EXPECT_EQ(user.Only().text, "locked");
    EXPECT_EQ(Find<QTreeView>("tvLayers2").model()->rowCount(), 3);
    EXPECT_EQ(Selected(), 2);
}

class ManyLayersAtOnce : public ManyLayers
{
protected:
    void SetUp() override
    {
        UseClient(client);
        ManyLayers::SetUp();
    }

    DeletingClient client{host};
};

TEST_F(ManyLayersAtOnce, AreDeletedByOneCall)
{
    ChooseThree();
    Click("cmdDeleteLayer");
    ASSERT_EQ(client.asked.size(), 1U);
    EXPECT_THAT(client.asked.front(), ElementsAre(1, 2, 3));
    EXPECT_EQ(Find<QTreeView>("tvLayers2").model()->rowCount(), 1);
}

TEST_F(ManyLayersAtOnce, ASingleLayerIsStillDeletedAsOne)
{
    Choose({"Boundary", "Roads"});
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdDeleteLayer");
    EXPECT_THAT(client.asked, IsEmpty());
    EXPECT_EQ(Calls("DeleteLayer"), 1);
}

} // namespace

} // namespace Orvane::Testing

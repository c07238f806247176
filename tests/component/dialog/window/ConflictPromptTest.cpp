// SPDX-License-Identifier: MIT
#include "component/dialog/window/ConflictPrompt.h"

#include "component/common/Component.h"
#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>

#include <QTreeView>
#include <QtTest>

namespace Orvane::Testing {

namespace {

/// A host that asks about conflicts, and whose user has an answer.
class AskingClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;

    ConflictChoice choice = ConflictChoice::Cancel;
    std::vector<ConflictingEdit> asked;
    QString node;
    std::function<void()> meanwhile = [] {};

private:
    ConflictChoice IConflictQuestion_AskAboutConflicts(
        QWidget*, const QString& name, const std::vector<ConflictingEdit>& edits) override
    {
        asked = edits;
        node = name;
        meanwhile();
        return choice;
    }
};

class Conflicts : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        UseClient(client);
        Open();
        ClickLayer("Roads");
    }

    /// The user edits the priority and the lock; somebody else sets another priority.
    void EditBoth()
    {
        ChooseScale("cmdEditPriority", 17);
        Click("chkLocked");
        host.SetLayerColumn(1, "Priority", qint32(9));
    }

    AskingClient client{host};
};

} // namespace

TEST_F(Conflicts, AreDescribedAsTheUserSeesThem)
{
    EditBoth();
    Click("Hidden");
    host.SetLayerColumn(1, "OverrideMode", qint32(1));
    Click("cmdApply");
    EXPECT_EQ(client.node, "Roads");
    ASSERT_EQ(client.asked.size(), 2U);
    EXPECT_EQ(client.asked[0].property, "Priority");
    EXPECT_EQ(client.asked[0].mine, "17");
    EXPECT_EQ(client.asked[0].stored, "9");
    EXPECT_EQ(client.asked[1].property, "Display mode");
    EXPECT_EQ(client.asked[1].mine, "Hidden");
    EXPECT_EQ(client.asked[1].stored, "Backdrop");
    EditorForm().UnloadWithoutApply();
}

TEST_F(Conflicts, OfSeveralLayersNameTheirNumberAndLeaveAllAsStored)
{
    host.SetLayerColumn(1, "Priority", qint32(5));
    host.SetLayerColumn(2, "Priority", qint32(5));
    auto& tree = Find<QTreeView>("tvLayers2");
    ClickLayer("Rivers");
    QTest::keyClick(&tree, Qt::Key_Down, Qt::ShiftModifier);
    ChooseScale("cmdEditPriority", 17);
    host.SetLayerColumn(1, "Priority", qint32(9));
    Click("cmdApply");
    EXPECT_EQ(client.node, "2 layers");
    ASSERT_EQ(client.asked.size(), 1U);
    EXPECT_EQ(client.asked[0].stored, "9");
    EXPECT_EQ(client.asked[0].layers, 1);
    EXPECT_EQ(Stored(2, "Priority"), 5);
    EXPECT_TRUE(CanApply());
    client.choice = ConflictChoice::Overwrite;
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Priority"), 17);
    EXPECT_EQ(Stored(2, "Priority"), 17);
}

TEST_F(Conflicts, AreNotAskedAboutInAHostThatIsOlderThanTheQuestion)
{
    EditBoth();
    Component::Get().SetHostContract({CurrentContract.major, IConflictQuestion::ContractMinor - 1});
    Click("cmdApply");
    Component::Get().SetHostContract(CurrentContract);
    EXPECT_TRUE(client.asked.empty());
    EXPECT_EQ(Stored(1, "Priority"), 17);
}

TEST_F(Conflicts, StayWithTheUserWhoCancels)
{
    EditBoth();
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Priority"), 9);
    EXPECT_EQ(Stored(1, "locked"), 0);
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(TextOf("lblPriority"), "17");
    EditorForm().UnloadWithoutApply();
}

TEST_F(Conflicts, AreOverwrittenWhenTheUserSaysSo)
{
    client.choice = ConflictChoice::Overwrite;
    EditBoth();
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Priority"), 17);
    EXPECT_EQ(Stored(1, "locked"), 1);
}

TEST_F(Conflicts, AreLeftOutWhenTheUserKeepsTheStoredValues)
{
    client.choice = ConflictChoice::KeepStored;
    EditBoth();
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Priority"), 9);
    EXPECT_EQ(Stored(1, "locked"), 1);
    EXPECT_EQ(TextOf("lblPriority"), "9");
    EXPECT_FALSE(CanApply());
}

TEST_F(Conflicts, OfACodeAreAskedAboutToo)
{
    client.choice = ConflictChoice::KeepStored;
    host.promptAnswers = {{true, "77"}};
    QTest::mouseDClick(&Find("lblCode"), Qt::LeftButton);
    host.SetLayerColumn(1, "Code", qint32(70));
    Click("cmdApply");
    ASSERT_EQ(client.asked.size(), 1U);
    EXPECT_EQ(client.asked[0].property, "Code");
    EXPECT_EQ(client.asked[0].mine, "77");
    EXPECT_EQ(client.asked[0].stored, "70");
    EXPECT_EQ(Stored(1, "Code"), 70);
}

TEST_F(Conflicts, KeepTheNodeWhenTheUserCancelsWhileLeavingIt)
{
    EditBoth();
    const MessageBoxRobot user{BoxKey::Yes, BoxKey::Enter};
    ClickLayer("Rivers");
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    ASSERT_EQ(user.Boxes().size(), 2U);
    EXPECT_EQ(user.Boxes()[1].text, "The changes were not applied.");
    EXPECT_EQ(Find<QTreeView>("tvLayers2").currentIndex().data().toString(), "Roads");
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(Conflicts, AreFoundThoughTheDialogHasFollowedTheChange)
{
    EditBoth();
    Click("Hidden");
    host.SetLayerColumn(1, "OverrideMode", qint32(1));
    EditorForm().Refresh();
    ClickLayer("Roads");
    QCoreApplication::processEvents();
    Click("cmdApply");
    EXPECT_EQ(client.asked.size(), 2U);
    EXPECT_EQ(Stored(1, "Priority"), 9);
    EditorForm().UnloadWithoutApply();
}

TEST_F(Conflicts, OfValuesThatWereEditedAfterwardsAreNone)
{
    host.SetLayerColumn(1, "Priority", qint32(9));
    EditorForm().Refresh();
    ChooseScale("cmdEditPriority", 17);
    Click("cmdApply");
    EXPECT_TRUE(client.asked.empty());
    EXPECT_EQ(Stored(1, "Priority"), 17);
}

TEST_F(Conflicts, TheHostMayEndTheEditorWhileItAsks)
{
    client.choice = ConflictChoice::Overwrite;
    client.meanwhile = [this] {
        EditorForm().UnloadWithoutApply();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    EditBoth();
    Click("cmdApply");
    EXPECT_EQ(Form(), nullptr);
    EXPECT_EQ(Stored(1, "Priority"), 9);
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>

#include <QTreeView>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// Deletes nothing.
class KeepingClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;

private:
    void IStyleEditorClient_DeleteLayer(qint32) override { }
};

class Commands : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        Open();
        ClickLayer("Roads");
        host.ClearLog();
    }

    void DoubleClickCode() { QTest::mouseDClick(&Find("lblCode"), Qt::LeftButton); }
    int Layers() { return Find<QTreeView>("tvLayers2").model()->rowCount(); }
};

TEST_F(Commands, NewCreatesALayerAndShowsIt)
{
    host.layersToCreate = {{.id = 60, .name = "Sewers", .code = qint32(66)}};
    Click("cmdNewLayer");
    EXPECT_EQ(Layers(), 5);
    EXPECT_EQ(TextOf("lblCode"), "66");
}

TEST_F(Commands, DeleteRemovesTheLayer)
{
    Click("cmdDeleteLayer");
    EXPECT_THAT(host.Log().CallsTo("DeleteLayer"), ElementsAre("DeleteLayer(1)"));
    EXPECT_EQ(Layers(), 3);
    EXPECT_FALSE(Find("chkVisible").isVisible() && TextOf("lblCode") == "11");
}

TEST_F(Commands, ACodeThatWasRefusedIsNotShownOnTheSchemesTab)
{
    host.promptAnswers = {{true, "77"}};
    DoubleClickCode();
    const MessageBoxRobot user{BoxKey::No};
    ClickTab(3);
    QCoreApplication::processEvents();
    EXPECT_EQ(TextOf("lblCode"), "11");
    EXPECT_FALSE(IsUnderlined("lblCode"));
}

TEST_F(Commands, AModeThatWasRefusedIsNotShownOnTheSchemesTab)
{
    Click("Hidden");
    const MessageBoxRobot user{BoxKey::No};
    ClickTab(3);
    QCoreApplication::processEvents();
    EXPECT_EQ(PressedModes(), 1);
}

TEST_F(Commands, DeletingForgetsTheEditsOfTheLayer)
{
    Click("chkVisible");
    MessageBoxRobot nobody{};
    Click("cmdDeleteLayer");
    EXPECT_FALSE(CanApply());
}

TEST_F(Commands, ADeletedLayerLeavesItsGroupsToo)
{
    ClickTab(1);
    ClickTab(2);
    Click("cmdDeleteLayer");
    ClickTab(1);
    auto* groups = Find<QTreeView>("tvLayers1").model();
    EXPECT_EQ(groups->rowCount(groups->index(0, 0)), 1);
}

TEST_F(Commands, ASystemLayerIsNeverDeleted)
{
    ClickLayer("Boundary");
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdDeleteLayer");
    EXPECT_EQ(user.Only().text, "You may not delete a 'system layer'");
    EXPECT_EQ(user.Only().icon, QMessageBox::Warning);
    EXPECT_THAT(host.Log().CallsTo("DeleteLayer"), IsEmpty());
    EXPECT_EQ(Layers(), 4);
}

TEST_F(Commands, TheDeleteKeyDeletesToo)
{
    QTest::keyClick(&Find("tvLayers2"), Qt::Key_Delete);
    EXPECT_THAT(host.Log().CallsTo("DeleteLayer"), ElementsAre("DeleteLayer(1)"));
}

TEST_F(Commands, TheDeleteKeyDeletesNothingInTheGroups)
{
    ClickTab(1);
    ClickGroup("Transport");
    QTest::keyClick(&Find("tvLayers1"), Qt::Key_Delete);
    ClickLayer("Roads");
    QTest::keyClick(&Find("tvLayers1"), Qt::Key_Delete);
    EXPECT_THAT(host.Log().CallsTo("DeleteLayer"), IsEmpty());
}

TEST_F(Commands, TheCodeIsAskedForAsAnInteger)
{
    DoubleClickCode();
    ASSERT_EQ(host.promptRequests.size(), 1u);
    const PromptRequest& request = host.promptRequests.front();
    EXPECT_EQ(request.title, "Edit code");
    EXPECT_EQ(request.defaultText, "11");
    EXPECT_EQ(request.kind, EntryKind::Integer);
    EXPECT_EQ(request.minimum, -32768);
    EXPECT_EQ(request.maximum, 32767);
}

TEST_F(Commands, AnotherCodeIsShownMarkedAndStoredOnApply)
{
    host.promptAnswers = {{true, "77"}};
    DoubleClickCode();
    EXPECT_EQ(TextOf("lblCode"), "77");
    EXPECT_TRUE(IsUnderlined("lblCode"));
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(Stored(1, "Code"), 11);
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Code"), 77);
    EXPECT_FALSE(IsUnderlined("lblCode"));
}

TEST_F(Commands, APendingCodeIsOfferedAndCheckedAgain)
{
    host.promptAnswers = {{true, "77"}, {true, "77"}};
    DoubleClickCode();
    host.AddLayer({.id = 70, .name = "Wells", .code = qint32(77)});
    MessageBoxRobot user{BoxKey::Enter};
    DoubleClickCode();
    EXPECT_EQ(host.promptRequests[1].defaultText, "77");
    EXPECT_EQ(user.Only().text, "Code 77 has already been assigned. Please assign another code.");
    EXPECT_EQ(TextOf("lblCode"), "77");
}

TEST_F(Commands, ADeletionThatTheHostDeclinesKeepsLayerAndEdits)
{
    KeepingClient client(host);
    TearDown();
    UseClient(client);
    Open();
    ClickLayer("Roads");
    Click("chkVisible");
    MessageBoxRobot nobody{};
    Click("cmdDeleteLayer");
    EXPECT_EQ(Layers(), 4);
    EXPECT_TRUE(CanApply());
    EXPECT_TRUE(IsUnderlined("chkVisible"));
    Click("cmdCancel");
    TearDown();
}

TEST_F(Commands, KeysEditTheCodeToo)
{
    for (const int key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Space})
        QTest::keyClick(&Find("lblCode"), Qt::Key(key));
    EXPECT_EQ(host.promptRequests.size(), 3u);
    EXPECT_TRUE(Form()->isVisible());
}

TEST_F(Commands, TheSameCodeLeavesTheDialogUnmodified)
{
    host.promptAnswers = {{true, "11"}, {true, " 11.0 "}};
    DoubleClickCode();
    DoubleClickCode();
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(TextOf("lblCode"), "11");
}

TEST_F(Commands, ACodeOfAnotherLayerIsRefused)
{
    host.promptAnswers = {{true, "12"}};
    MessageBoxRobot user{BoxKey::Enter};
    DoubleClickCode();
    EXPECT_EQ(user.Only().text, "Code 12 has already been assigned. Please assign another code.");
    EXPECT_EQ(user.Only().icon, QMessageBox::Warning);
    EXPECT_EQ(TextOf("lblCode"), "11");
    EXPECT_FALSE(CanApply());
}

TEST_F(Commands, TheLayersOwnCodeCanBeTakenBack)
{
    host.promptAnswers = {{true, "77"}, {true, "11"}};
    DoubleClickCode();
    DoubleClickCode();
    EXPECT_EQ(TextOf("lblCode"), "11");
}

TEST_F(Commands, ACancelledOrTextualCodeChangesNothing)
{
    host.promptAnswers = {{false, ""}, {true, "abc"}, {true, ""}};
    DoubleClickCode();
    DoubleClickCode();
    DoubleClickCode();
    EXPECT_EQ(TextOf("lblCode"), "11");
    EXPECT_FALSE(CanApply());
    EXPECT_THAT(host.Log().CallsTo("IsCodeAssigned"), IsEmpty());
}

TEST_F(Commands, ASystemLayersCodeIsFixed)
{
    ClickLayer("Boundary");
    EXPECT_EQ(TextOf("lblCode"), "14");
    EXPECT_FALSE(IsEnabled("lblCode"));
    DoubleClickCode();
    EXPECT_THAT(host.promptRequests, IsEmpty());
}

} // namespace

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/PastingFixture.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "hosts/CorrectingClient.h"
#include "hosts/FailingClient.h"

#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QLabel>
#include <QLineEdit>

namespace Orvane::Testing {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class SettingsPastingTest : public PastingFixture
{
protected:
    QString ClipboardText() { return QGuiApplication::clipboard()->text(); }
};

TEST_F(SettingsPastingTest, PastesWhatIsTickedIntoAllChosenLayersAtOnce)
{
    Copy("Rivers");
    host.ClearLog();
    PasteInto({"Roads", "Parcels"}, [this] {
        Press("cmdNone");
        Toggle("Line colour");
        Toggle("Visible");
        Press("cmdPaste");
    });
    for (const qint32 layerID : {1, 3}) {
        EXPECT_EQ(Stored(layerID, "Visible"), 0) << layerID;
        EXPECT_EQ(qint32(Stored(layerID, "Color")) & 0xFFFFFF, 0xFF0000) << layerID;
        EXPECT_EQ(Stored(layerID, "Selectable"), 1) << layerID;
    }
    EXPECT_EQ(Calls("RedrawMap"), 1);
    EXPECT_EQ(Calls("LayerChanged"), 2);
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(CheckState("chkVisible"), 0);
}

TEST_F(SettingsPastingTest, PastesModeAndPriorityOnlyIfTheyAreTickedAndNeverNameOrCode)
{
    host.SetLayerColumn(1, "Priority", qint32(9));
    Copy("Rivers");
    PasteInto({"Roads"}, [this] { Press("cmdPaste"); });
    for (const char* column :
         {"Visible", "Selectable", "locked", "Hitable", "SnapRequired", "Enquirable", "Color", "MinVisScale",
          "MaxVisScale", "Style"})
        EXPECT_EQ(Stored(1, column), Stored(2, column)) << column;
    EXPECT_EQ(Mode(1), 0);
    EXPECT_EQ(Stored(1, "Priority"), 9);
    EXPECT_EQ(Stored(1, "Code"), 11);
    EXPECT_EQ(ToText(host.LayerColumn(1, "Name")), "Roads");
    PasteInto({"Roads"}, [this] { PasteOnly("Display mode"); });
    EXPECT_EQ(Mode(1), 1);
    EXPECT_EQ(PressedModes(), 2);
}

TEST_F(SettingsPastingTest, PastesLineFillAndPriority)
{
    host.SetLayerColumn(2, "FillForeColor", qint32(0x112233));
    host.SetLayerColumn(2, "FillBackColor", qint32(0x445566));
    host.SetLayerColumn(2, "LineThickness", qint32(-3));
    host.SetLayerColumn(2, "FillStyle", qint32(5));
    host.SetLayerColumn(2, "Priority", qint32(7));
    Copy("Rivers");
    PasteInto({"Roads"}, [this] {
        Press("cmdAll");
        Press("cmdPaste");
    });
    for (const char* column : {"FillForeColor", "FillBackColor"})
        EXPECT_EQ(qint32(Stored(1, column)) & 0xFFFFFF, qint32(Stored(2, column)) & 0xFFFFFF) << column;
    for (const char* column : {"LineThickness", "FillStyle", "Priority"})
        EXPECT_EQ(Stored(1, column), Stored(2, column)) << column;
}

TEST_F(SettingsPastingTest, PastesIntoTheLayersOfAGroup)
{
    Copy("Parcels");
    ClickTab(1);
    QString target;
    PasteInto({"Transport"}, [&] {
        target = Window().findChild<QLabel*>("lblTarget")->text();
        PasteOnly("Style");
    });
    EXPECT_EQ(Stored(1, "Style"), 7);
    EXPECT_EQ(Stored(2, "Style"), 7);
    EXPECT_EQ(target, "Paste these settings into 'Transport':");
}

TEST_F(SettingsPastingTest, NamesTheNumberOfSeveralLayers)
{
    Copy("Rivers");
    QString target;
    PasteInto({"Roads", "Parcels"}, [&] { target = Window().findChild<QLabel*>("lblTarget")->text(); });
    EXPECT_EQ(target, "Paste these settings into 2 layers:");
}

TEST_F(SettingsPastingTest, OffersOnlyWhatSeveralLayersHaveInCommon)
{
    Choose({"Roads", "Rivers"});
    Pick("Copy Settings");
    QStringList lines;
    PasteInto({"Parcels"}, [&] { lines = Lines(); });
    EXPECT_THAT(lines, Contains("Draw Priority"));
    EXPECT_THAT(lines, Not(Contains("x Visible")));
    EXPECT_THAT(lines, Not(Contains("x Visible Scale Range")));
}

TEST_F(SettingsPastingTest, LeavesEverythingAsItIsIfTheUserCancels)
{
    Copy("Rivers");
    host.ClearLog();
    PasteInto({"Roads"}, [this] { QTest::keyClick(&Rows(), Qt::Key_Escape); });
    EXPECT_EQ(TimesAsked(), 1);
    EXPECT_EQ(Stored(1, "Visible"), 1);
    EXPECT_EQ(Calls("RedrawMap"), 0);
}

TEST_F(SettingsPastingTest, TicksAllAndNoneAndWholeFrames)
{
    Copy("Rivers");
    PasteInto({"Roads"}, [this] {
        Press("cmdNone");
        EXPECT_FALSE(CanPaste());
        EXPECT_EQ(Lines().filter("x ").size(), 0);
        Toggle("Flags");
        EXPECT_EQ(Lines().filter("x ").size(), 7);
        EXPECT_TRUE(CanPaste());
        Press("cmdAll");
        EXPECT_EQ(Lines().filter("x ").size(), Lines().size());
    });
}

TEST_F(SettingsPastingTest, RemembersTheTicksAlsoInAnotherEditor)
{
    Copy("Rivers");
    PasteInto({"Roads"}, [this] { PasteOnly("Fill style"); });
    Close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Open();
    QStringList ticked;
    PasteInto({"Parcels"}, [&] { ticked = Lines().filter("x "); });
    EXPECT_THAT(ticked, ElementsAre("x Fill style"));
}

TEST_F(SettingsPastingTest, WorksByKeysInTheLists)
{
    Choose({"Rivers"});
    QTest::keyClick(&Tree(), Qt::Key_C, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_TRUE(ClipboardText().startsWith("Rivers\n")) << qPrintable(ClipboardText());
    EXPECT_TRUE(ClipboardText().contains("\nLine colour: Blue\n")) << qPrintable(ClipboardText());
    Choose({"Roads"});
    QTest::keyClick(&Tree(), Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(TimesAsked(), 1);
}

TEST_F(SettingsPastingTest, LeavesTheKeysToAnOpenNameEditor)
{
    Choose({"Rivers"});
    QTest::keyClick(&Tree(), Qt::Key_F2);
    auto* name = Tree().findChild<QLineEdit*>("txtNodeName");
    ASSERT_TRUE(name);
    name->selectAll();
    QTest::keyClick(name, Qt::Key_C, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(ClipboardText(), "Rivers");
    QTest::keyClick(name, Qt::Key_Escape);
}

TEST_F(SettingsPastingTest, SaysWhyNothingCanBePasted)
{
    Choose({"Roads"});
    EXPECT_EQ(WhyNot("Paste Settings..."), "Copy the settings of a layer or a group first.");
    QGuiApplication::clipboard()->setText("Roads");
    EXPECT_EQ(WhyNot("Paste Settings..."), "Copy the settings of a layer or a group first.");
    PutOnClipboard(R"({"format":"layer settings","version":2,"settings":{"visible":true}})");
    EXPECT_EQ(WhyNot("Paste Settings..."), "The copied settings cannot be read.");
    MessageBoxRobot user{BoxKey::Enter};
    QTest::keyClick(&Tree(), Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, "The copied settings cannot be read.");
}

TEST_F(SettingsPastingTest, SaysThatThereIsNothingToCopy)
{
    host.SetLayerColumn(2, "Priority", qint32(9));
    for (const char* column : {"LineThickness", "FillForeColor", "FillBackColor", "FillStyle"})
        host.SetLayerColumn(2, column, qint32(9));
    ClickTab(1);
    Choose({"Transport"});
    EXPECT_EQ(WhyNot("Copy Settings"), "These layers have no setting in common.");
}

TEST_F(SettingsPastingTest, SaysThatTheGroupsHaveLostTheirLayers)
{
    Copy("Rivers");
    ClickTab(1);
    for (const qint32 layerID : {1, 2, 3})
        host.RemoveMembers(layerID);
    for (const QStringList& nodes : {QStringList{"Land"}, QStringList{"Land", "Transport"}}) {
        const QString why = nodes.size() == 1 ? "This group has no layers." : "These groups have no layers.";
        Choose(nodes);
        EXPECT_EQ(WhyNot("Copy Settings"), why);
        MessageBoxRobot user{BoxKey::Enter};
        Pick("Paste Settings...");
        QCoreApplication::processEvents();
        EXPECT_EQ(user.Only().text, why);
    }
    EXPECT_EQ(TimesAsked(), 0);
}

TEST_F(SettingsPastingTest, NeedsAChosenNode)
{
    EXPECT_EQ(WhyNot("Copy Settings"), "Select a layer or a group first.");
    EXPECT_EQ(WhyNot("Paste Settings..."), "Select a layer or a group first.");
}

TEST_F(SettingsPastingTest, AsksAboutEditsBeforeCopying)
{
    Choose({"Roads"});
    Click("chkLocked");
    MessageBoxRobot user{BoxKey::Yes};
    Pick("Copy Settings");
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Boxes().size(), 1);
    EXPECT_NE(Stored(1, "locked"), 0);
    PasteInto({"Parcels"}, [this] { PasteOnly("Locked"); });
    EXPECT_NE(Stored(3, "locked"), 0);
}

TEST_F(SettingsPastingTest, KeepsEditsThatAreNotAppliedUntilSomethingIsPasted)
{
    Copy("Rivers");
    Choose({"Roads"});
    Click("chkLocked");
    {
        MessageBoxRobot user{BoxKey::No};
        PasteInto({}, [this] { Press("cmdCancelPaste"); });
        QCoreApplication::processEvents();
        EXPECT_EQ(user.Boxes().size(), 1);
    }
    EXPECT_TRUE(CanApply());
    MessageBoxRobot user{BoxKey::No};
    PasteInto({}, [this] { PasteOnly("Visible"); });
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(Stored(1, "locked"), 0);
    EXPECT_EQ(Stored(1, "Visible"), 0);
}

TEST_F(SettingsPastingTest, TellsThatTheLayersAreGone)
{
    Copy("Rivers");
    MessageBoxRobot user{BoxKey::Enter};
    PasteInto({"Roads"}, [this] {
        host.RemoveLayerRow(1);
        Press("cmdPaste");
    });
    EXPECT_EQ(user.Only().text, "These layers no longer exist. Nothing was pasted.");
}

TEST_F(SettingsPastingTest, SurvivesTheEndOfTheEditorWhileItAsks)
{
    Copy("Rivers");
    PasteInto({"Roads"}, [this] {
        EditorForm().UnloadWithoutApply();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    });
    EXPECT_EQ(Form(), nullptr);
    EXPECT_EQ(Stored(1, "Visible"), 1);
}

class PastingWithAFailingHost : public SettingsPastingTest
{
protected:
    void SetUp() override
    {
        UseClient(client);
        SettingsPastingTest::SetUp();
    }

    FailingClient client{host, {"Update", 2, RunTimeError(ErrorNumber::DatabaseLocked, "locked")}};
};

TEST_F(PastingWithAFailingHost, ChangesNoLayer)
{
    Copy("Rivers");
    MessageBoxRobot user{BoxKey::Enter};
    PasteInto({"Roads", "Parcels"}, [this] { PasteOnly("Visible"); });
    EXPECT_EQ(user.Only().text, "locked");
    EXPECT_EQ(Stored(1, "Visible"), 1);
    EXPECT_EQ(Stored(3, "Visible"), 1);
}

class PastingWithACorrectingHost : public SettingsPastingTest
{
protected:
    void SetUp() override
    {
        UseClient(client);
        SettingsPastingTest::SetUp();
        Copy("Rivers");
        client.corrected = &host;
    }

    int ImageOf(const QString& text) { return Node(text).data(LayerTreeModel::QuickModeRole).toInt(); }

    CorrectingClient client{host};
};

TEST_F(PastingWithACorrectingHost, ShowsTheModeThatTheHostHasTaken)
{
    PasteInto({"Roads", "Parcels"}, [this] { PasteOnly("Display mode"); });
    EXPECT_EQ(ImageOf("Roads"), 1);
    EXPECT_EQ(ImageOf("Parcels"), 2);
}

TEST_F(PastingWithACorrectingHost, ShowsWhatIsStoredWhenTheRedrawRaises)
{
    client.raises = true;
    MessageBoxRobot user{BoxKey::Enter};
    PasteInto({"Roads"}, [this] {
        Press("cmdNone");
        Toggle("Display mode");
        Toggle("Visible");
        Press("cmdPaste");
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, "not taken");
    EXPECT_EQ(ImageOf("Roads"), 1);
    EXPECT_EQ(CheckState("chkVisible"), 0);
}

class PastingWithoutQuickModes : public SettingsPastingTest
{
protected:
    void SetUp() override
    {
        host.quickModesAllowed = false;
        SettingsPastingTest::SetUp();
    }
};

TEST_F(PastingWithoutQuickModes, LeavesTheModeOut)
{
    Copy("Rivers");
    PasteInto({"Roads"}, [this] { EXPECT_FALSE(Row("Display mode")); });
    PutOnClipboard(R"({"format":"layer settings","version":1,"settings":{"mode":"hidden"}})");
    PasteInto({"Roads"}, [this] {
        EXPECT_EQ(Row("Display mode")->toolTip(0), "This map has no display modes.");
        EXPECT_FALSE(CanPaste());
    });
}

} // namespace

} // namespace Orvane::Testing

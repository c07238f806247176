// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeMenuFixture.h"
#include "hosts/NotesClient.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorRefresh.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QLabel>
#include <QToolButton>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

class ShowOnlyTest : public NodeMenuFixture
{
protected:
    void SetUp() override
    {
        UseClient(client);
        NodeMenuFixture::SetUp();
    }

    QWidget& Bar() { return Find<QWidget>(CurrentTab() == 1 ? "tvLayers1_shown" : "tvLayers2_shown"); }
    QString BarText() { return Bar().isVisible() ? Bar().findChild<QLabel*>()->text() : QString(); }

    void ClickBar()
    {
        QTest::mouseClick(Bar().findChild<QToolButton*>(), Qt::LeftButton);
        QCoreApplication::processEvents();
    }

    void Refresh(const QSet<qint32>& layerIDs)
    {
        dynamic_cast<IStyleEditorRefresh&>(EditorForm()).RefreshLayers(layerIDs);
    }

    NotesClient<ForwardingClient> client{host};
};

TEST_F(ShowOnlyTest, HidesAllOtherLayersAndBringsEachBackInItsOwnMode)
{
    Choose({"Parcels"});
    host.ClearLog();
    Pick("Show Only These");
    EXPECT_THAT(Modes(), ElementsAre(2, 2, 0, 2));
    EXPECT_EQ(Calls("RedrawMap"), 1);
    EXPECT_EQ(BarText(), "Only 1 of 4 layers is shown.");
    ClickBar();
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
    EXPECT_EQ(BarText(), "");
}

TEST_F(ShowOnlyTest, AlsoForAGroupAndByTheMenuAlone)
{
    ClickTab(1);
    ClickGroup("Transport");
    Pick("Show Only These");
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 2, 2));
    EXPECT_EQ(BarText(), "Only 2 of 4 layers are shown.");
    Pick("Show All Again");
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
}

TEST_F(ShowOnlyTest, OutlivesTheEditor)
{
    Choose({"Parcels"});
    Pick("Show Only These");
    EditorForm().UnloadWithoutApply();
    QCoreApplication::processEvents();
    Open();
    ClickTab(2);
    EXPECT_EQ(BarText(), "Only 1 of 4 layers is shown.");
    ClickBar();
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
}

TEST_F(ShowOnlyTest, LeavesOtherPropertiesAndLayersThatCameOrWent)
{
    Choose({"Parcels"});
    Pick("Show Only These");
    Choose({"Roads"});
    Click("chkLocked");
    Click("cmdApply");
    host.RemoveLayerRow(4);
    host.AddLayer({.id = 5, .name = "Trees", .overrideMode = qint32(2)});
    EditorForm().Refresh();
    EXPECT_EQ(BarText(), "Only 1 of 4 layers is shown.");
    Pick("Show All Again");
    EXPECT_THAT((std::vector{Mode(1), Mode(2), Mode(3), Mode(5)}), ElementsAre(0, 1, 0, 2));
    EXPECT_NE(Stored(1, "locked"), 0);
}

TEST_F(ShowOnlyTest, LeavesALayerThatTheUserHidMeanwhile)
{
    Choose({"Parcels"});
    Pick("Show Only These");
    Choose({"Roads"});
    Pick("Show");
    EXPECT_EQ(BarText(), "Only 2 of 4 layers are shown.");
    Pick("Hide");
    Pick("Show All Again");
    EXPECT_THAT(Modes(), ElementsAre(2, 1, 0, 0));
}

TEST_F(ShowOnlyTest, KeepsEditsThatAreNotApplied)
{
    Choose({"Roads"});
    Click("chkLocked");
    MessageBoxRobot nobody{};
    Pick("Show Only These");
    EXPECT_TRUE(CanApply());
    Pick("Show All Again");
    EXPECT_TRUE(CanApply());
    Click("cmdApply");
    EXPECT_NE(Stored(1, "locked"), 0);
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
}

TEST_F(ShowOnlyTest, FollowsWhatTheHostAndApplyChange)
{
    Choose({"Parcels"});
    Pick("Show Only These");
    host.SetLayerColumn(1, "OverrideMode", qint32(0));
    Refresh({1});
    EXPECT_EQ(BarText(), "Only 2 of 4 layers are shown.");
    Choose({"Rivers"});
    Click("Normal");
    Click("cmdApply");
    EXPECT_EQ(BarText(), "Only 3 of 4 layers are shown.");
    Choose({"Boundary"});
    Click("Normal");
    Click("cmdApply");
    EXPECT_EQ(BarText(), "");
    EXPECT_EQ(WhyNot("Show All Again"), "\"Show Only These\" has not changed any layer.");
}

TEST_F(ShowOnlyTest, SaysThatNoLayerIsShown)
{
    Choose({"Parcels"});
    Pick("Show Only These");
    Pick("Hide");
    EXPECT_EQ(BarText(), "No layer is shown.");
    ClickBar();
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 2, 0));
}

TEST_F(ShowOnlyTest, KeepsAQuickModeThatIsNotAppliedIfItsLayerIsNotBroughtBack)
{
    Choose({"Parcels"});
    Pick("Show Only These");
    Click("Backdrop");
    ClickBar();
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(PressedModes(), 2);
}

TEST_F(ShowOnlyTest, ReadsOnlyTheLayersThatHaveChanged)
{
    Choose({"Parcels"});
    const auto reads = [this](int layers) {
        host.SetLayerColumn(1, "OverrideMode", qint32(layers % 2));
        host.ClearLog();
        Refresh({1});
        EXPECT_EQ(BarText(), QStringLiteral("Only 2 of %1 layers are shown.").arg(layers));
        Choose({"Rivers"});
        Click("chkLocked");
        Click("cmdApply");
        Choose({"Parcels"});
        return host.Log().Of(CallKind::Read).size();
    };
    Pick("Show Only These");
    reads(4);
    const auto before = reads(4);
    for (qint32 layerID = 5; layerID <= 50; ++layerID)
        host.AddLayer({.id = layerID, .name = QStringLiteral("Zone %1").arg(layerID), .overrideMode = 2});
    EditorForm().Refresh();
    reads(50);
    EXPECT_EQ(reads(50), before);
}

TEST_F(ShowOnlyTest, FollowsManyAppliedLayersWithOneQuery)
{
    host.AddGroup({.id = 30, .name = QString("Zones"), .ordering = 3});
    for (qint32 layerID = 5; layerID <= 300; ++layerID) {
        host.AddLayer({.id = layerID, .name = QStringLiteral("Zone %1").arg(layerID)});
        host.AddMember(30, layerID);
    }
    EditorForm().Refresh();
    ClickTab(1);
    Choose({"Zones"});
    const auto seeksOfApply = [this] {
        Click("chkLocked");
        host.ClearLog();
        Click("cmdApply");
        return Calls("Seek");
    };
    const int before = seeksOfApply();
    Pick("Show Only These");
    EXPECT_EQ(seeksOfApply(), before);
    EXPECT_EQ(BarText(), "Only 296 of 300 layers are shown.");
}

TEST_F(ShowOnlyTest, ANoteThatCannotBeReadLeavesTheSettingsUpToDate)
{
    Choose({"Parcels"});
    Pick("Show Only These");
    host.SetLayerColumn(3, "Code", qint32(77));
    client.raises = true;
    EXPECT_THROW(Refresh({3}), RunTimeError);
    EXPECT_EQ(TextOf("lblCode"), "77");
}

TEST_F(ShowOnlyTest, CountsNewLayers)
{
    Choose({"Parcels"});
    Pick("Show Only These");
    Click("cmdNewLayer");
    EXPECT_EQ(BarText(), "Only 2 of 5 layers are shown.");
    host.AddLayer({.id = 70, .name = "Trees"});
    EditorForm().AddNewLayer(70);
    EXPECT_EQ(BarText(), "Only 3 of 6 layers are shown.");
    ClickTab(1);
    host.SetLayerColumn(1, "OverrideMode", qint32(0));
    Editor().RefreshGroups();
    EXPECT_EQ(BarText(), "Only 4 of 6 layers are shown.");
}

TEST_F(ShowOnlyTest, IsReachedWithTheTabKeyAndTellsScreenReadersWhatItIsFor)
{
    Choose({"Parcels"});
    Pick("Show Only These");
    Tree().setFocus();
    Key(Qt::Key_Tab);
    const auto* button = Bar().findChild<QToolButton*>();
    EXPECT_EQ(Form()->focusWidget(), button);
    EXPECT_EQ(button->accessibleDescription(), "Only 1 of 4 layers is shown.");
    Key(Qt::Key_Space);
    QCoreApplication::processEvents();
    EXPECT_THAT(Modes(), ElementsAre(0, 1, 0, 0));
    EXPECT_EQ(Form()->focusWidget(), &Tree());
}

TEST_F(ShowOnlyTest, NeedsLittleForThousandsOfLayers)
{
    for (qint32 layerID = 5; layerID <= 5000; ++layerID)
        host.AddLayer({.id = layerID, .name = QStringLiteral("Layer %1").arg(layerID)});
    EditorForm().Refresh();
    Choose({"Boundary"});
    Pick("Show Only These");
    EXPECT_EQ(BarText(), QStringLiteral("Only 1 of %1 layers is shown.").arg(QLocale().toString(5000)));
    EXPECT_LT(client.notes.begin()->size(), 100);
    ClickBar();
    EXPECT_EQ(Mode(5000), 0);
    EXPECT_EQ(Mode(2), 1);
}

TEST_F(ShowOnlyTest, IsDisabledWithAReasonIfTheHostKeepsNoNotes)
{
    client.keeps = false;
    Choose({"Parcels"});
    EXPECT_EQ(WhyNot("Show Only These"), "This map cannot keep which layers were hidden.");
    EXPECT_EQ(WhyNot("Show All Again"), "This map cannot keep which layers were hidden.");
}

TEST_F(ShowOnlyTest, IsDisabledWhileThereIsNothingToShow)
{
    EXPECT_EQ(WhyNot("Show Only These"), "Select a layer or a group first.");
    EXPECT_EQ(WhyNot("Show All Again"), "\"Show Only These\" has not changed any layer.");
}

} // namespace

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "component/controls/frmDropSlider.h"
#include "component/dialog/EndedMeanwhileFixture.h"
#include "support/MenuByKeys.h"
#include "support/PickByMouse.h"

#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using Situation = void (*)(EndedMeanwhile& test);

void NodeQuestion(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.AtTheBox([&] { test.ClickLayer("Rivers"); });
}

void GroupsTabQuestion(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.AtTheBox([&] { test.ClickTab(1); });
}

void SchemesTabQuestion(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.AtTheBox([&] { test.ClickTab(3); });
}

void ClosingQuestion(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.AtTheBox([&] { test.Form()->close(); });
}

void HidingQuestion(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.AtTheBox([&] { test.Editor().Visible(false); });
}

void NewLayerQuestion(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.AtTheBox([&] { test.Click("cmdNewLayer"); });
}

void AddedLayerQuestion(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.AtTheBox([&] { test.EditorForm().AddNewLayer(3); });
}

void FilterQuestion(EndedMeanwhile& test)
{
    const NoLayers filter;
    test.OpenWithEdits();
    test.AtTheBox([&] { test.EditorForm().Filter(&filter); });
}

void PopupQuestion(EndedMeanwhile& test)
{
    const NoLayers filter;
    test.OpenWithEdits();
    test.Editor().StyleFilter(&filter);
    test.AtTheBox([&] { test.EditorForm().Popup(); });
}

void AddedLayerWhileTheCurrentIsFiltered(EndedMeanwhile& test)
{
    const NoLayers filter;
    test.OpenWithEdits();
    test.Editor().StyleFilter(&filter);
    test.AtTheBox([&] { test.EditorForm().AddNewLayer(3); });
}

void RefreshWhileTheCurrentIsFiltered(EndedMeanwhile& test)
{
    const NoLayers filter;
    test.OpenWithEdits();
    test.Editor().StyleFilter(&filter);
    test.AtTheBox([&] { test.EditorForm().Refresh(); });
}

void RefreshOfAnEmptiedGroup(EndedMeanwhile& test)
{
    test.Open();
    test.ClickTab(1);
    test.ClickGroup("Land");
    test.Click("chkVisible");
    test.form = test.Form();
    test.host.RemoveMembers(3);
    test.AtTheBox([&] { test.EditorForm().Refresh(); });
}

void ErrorOfApply(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.client.isFaulty = true;
    test.AtTheBox([&] { test.Click("cmdApply"); });
}

void ErrorOfApplyBeforeAnotherNode(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.client.isFaulty = true;
    MessageBoxRobot user{BoxKey::Yes};
    user.BeforeAnswer([&](QMessageBox& box) {
        if (box.text() == "The host is out of order.")
            test.End();
    });
    test.ClickLayer("Rivers");
    QCoreApplication::processEvents(); // the question
    QCoreApplication::processEvents(); // then the error
}

void ErrorOfReadingANode(EndedMeanwhile& test)
{
    test.Open();
    test.ClickLayer("Roads");
    test.form = test.Form();
    test.host.SetLayerColumn(2, "LineThickness", qint32(1639));
    test.AtTheBox([&] {
        test.ClickLayer("Rivers");
        QCoreApplication::processEvents();
    });
}

void ErrorOfReadingTheSameNodeAgain(EndedMeanwhile& test)
{
    test.Open();
    test.ClickLayer("Roads");
    test.form = test.Form();
    test.host.SetLayerColumn(1, "LineThickness", qint32(1639));
    test.AtTheBox([&] {
        test.ClickLayer("Roads");
        QCoreApplication::processEvents();
    });
}

void ErrorOfApplyBeforeAnotherTab(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.client.isFaulty = true;
    MessageBoxRobot user{BoxKey::Yes};
    user.BeforeAnswer([&](QMessageBox& box) {
        if (box.text() == "The host is out of order.")
            test.End();
    });
    test.ClickTab(1);
    QCoreApplication::processEvents();
}

void SystemLayerMessage(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.Click("cmdCancel");
    test.ClickLayer("Boundary");
    test.AtTheBox([&] { QTest::keyPress(&test.Find("tvLayers2"), Qt::Key_Delete); });
}

void InvalidNameMessage(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    QTest::keyClick(&test.Find("tvLayers2"), Qt::Key_F2);
    auto& editor = test.Find<QLineEdit>("txtNodeName");
    editor.clear();
    test.AtTheBox([&] {
        QTest::keyClick(&editor, Qt::Key_Return);
        QCoreApplication::processEvents();
    });
}

void NameEditor(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    QTest::keyClick(&test.Find("tvLayers2"), Qt::Key_F2);
    QTest::keyClicks(&test.Find("txtNodeName"), "Streets");
    test.End();
    QCoreApplication::processEvents();
}

void Slider(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    const WhenOpened<frmDropSlider> opened([&] { test.End(); });
    QTest::mousePress(&test.Find("cmdEditMinScale"), Qt::LeftButton);
}

void PickCustom(QComboBox& list)
{
    PickByMouse(list, list.findText("Custom", Qt::MatchStartsWith));
}

void LineWidthDialog(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.host.Shell().OnShowModal = [&](QWidget*) { test.End(); };
    PickCustom(test.Find<QComboBox>("cmbLineStyles"));
}

void ColourDialog(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    const WhenOpened<QColorDialog> opened([&] { test.End(); });
    PickCustom(test.Find<QComboBox>("cmbColor0"));
}

void ContextMenu(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    EXPECT_TRUE(OpenMenuByKey(test.Find<QTreeView>("tvLayers2")));
    test.End();
}

void CodePrompt(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.client.meanwhile = [&] { test.End(); };
    QTest::mouseDClick(&test.Find("lblCode"), Qt::LeftButton);
}

void Creating(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.client.meanwhile = [&] { test.End(); };
    test.Click("cmdNewLayer");
}

void Deleting(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.client.meanwhile = [&] { test.End(); };
    test.Click("cmdDeleteLayer");
}

void SchemeName(EndedMeanwhile& test)
{
    test.OpenOnSchemes();
    test.client.meanwhile = [&] { test.End(); };
    test.Click("cmdNew");
}

void SchemeSwitch(EndedMeanwhile& test)
{
    test.OpenOnSchemes();
    test.AtTheBox([&] {
        QTest::keyPress(&test.Find("cmbScheme"), Qt::Key_Down);
        QCoreApplication::processEvents();
    });
}

void SchemeQuestions(EndedMeanwhile& test)
{
    for (const char* button : {"cmdSave", "cmdRevert", "cmdDelete", "cmdSaveStartup"}) {
        test.OpenOnSchemes();
        test.AtTheBox([&] { test.Click(button); });
        EXPECT_FALSE(test.form) << button;
    }
}

void SchemeLoading(EndedMeanwhile& test)
{
    for (const char* button : {"cmdRevert", "cmdDelete"}) {
        test.OpenOnSchemes();
        test.client.meanwhile = [&] { test.End(); };
        const MessageBoxRobot user{BoxKey::Yes};
        test.Click(button);
        EXPECT_FALSE(test.form) << button;
    }
}

void SchemeSwitching(EndedMeanwhile& test)
{
    test.OpenOnSchemes();
    test.client.meanwhile = [&] { test.End(); };
    const MessageBoxRobot user{BoxKey::Yes};
    QTest::keyPress(&test.Find("cmbScheme"), Qt::Key_Down);
    QCoreApplication::processEvents();
}

void SchemeCreating(EndedMeanwhile& test)
{
    test.OpenOnSchemes();
    bool isAsked = false;
    test.client.meanwhile = [&] {
        if (std::exchange(isAsked, true))
            test.End();
    };
    test.Click("cmdNew");
}

constexpr std::array<std::pair<const char*, Situation>, 33> situations{
    {{"NodeQuestion", NodeQuestion},
     {"GroupsTabQuestion", GroupsTabQuestion},
     {"SchemesTabQuestion", SchemesTabQuestion},
     {"ClosingQuestion", ClosingQuestion},
     {"HidingQuestion", HidingQuestion},
     {"NewLayerQuestion", NewLayerQuestion},
     {"AddedLayerQuestion", AddedLayerQuestion},
     {"FilterQuestion", FilterQuestion},
     {"PopupQuestion", PopupQuestion},
     {"AddedLayerWhileTheCurrentIsFiltered", AddedLayerWhileTheCurrentIsFiltered},
     {"RefreshWhileTheCurrentIsFiltered", RefreshWhileTheCurrentIsFiltered},
     {"RefreshOfAnEmptiedGroup", RefreshOfAnEmptiedGroup},
     {"ErrorOfApply", ErrorOfApply},
     {"ErrorOfApplyBeforeAnotherNode", ErrorOfApplyBeforeAnotherNode},
     {"ErrorOfReadingANode", ErrorOfReadingANode},
     {"ErrorOfReadingTheSameNodeAgain", ErrorOfReadingTheSameNodeAgain},
     {"ErrorOfApplyBeforeAnotherTab", ErrorOfApplyBeforeAnotherTab},
     {"SystemLayerMessage", SystemLayerMessage},
     {"InvalidNameMessage", InvalidNameMessage},
     {"NameEditor", NameEditor},
     {"Slider", Slider},
     {"LineWidthDialog", LineWidthDialog},
     {"ColourDialog", ColourDialog},
     {"ContextMenu", ContextMenu},
     {"CodePrompt", CodePrompt},
     {"Creating", Creating},
     {"Deleting", Deleting},
     {"SchemeName", SchemeName},
     {"SchemeSwitch", SchemeSwitch},
     {"SchemeQuestions", SchemeQuestions},
     {"SchemeLoading", SchemeLoading},
     {"SchemeSwitching", SchemeSwitching},
     {"SchemeCreating", SchemeCreating}}};

class Ended : public EndedMeanwhile, public testing::WithParamInterface<std::tuple<Ending, size_t>>
{
};

TEST_P(Ended, TheDialogMayGoWhileSomethingWaits)
{
    ending = std::get<0>(GetParam());
    situations[std::get<1>(GetParam())].second(*this);
    EXPECT_FALSE(form);
    EXPECT_EQ(Stored(1, "Visible"), 1) << "nothing was applied";
}

std::string NameOf(const testing::TestParamInfo<std::tuple<Ending, size_t>>& info)
{
    static constexpr std::array endings{"HostDeletesTheForm", "UnloadWithoutApply", "LibraryIsReleased"};
    return std::string(situations[std::get<1>(info.param)].first) + "_"
        + endings[size_t(std::get<0>(info.param))];
}

INSTANTIATE_TEST_SUITE_P(
    Meanwhile, Ended,
    testing::Combine(
        testing::Values(Ending::HostDeletesTheForm, Ending::UnloadWithoutApply, Ending::LibraryIsReleased),
        testing::Range(size_t(0), situations.size())),
    NameOf);

} // namespace

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "component/controls/frmDropSlider.h"
#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleFilter.h>

#include <QColorDialog>
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QtTest>

namespace Orvane::Testing {

namespace {

/// Does something while it prompts, creates or deletes, or fails where it writes.
class BusyClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    std::function<void()> meanwhile = [] {};
    bool isFaulty = false;

private:
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest&) override
    {
        meanwhile();
        return {true, QStringLiteral("77")};
    }
    qint32 IStyleEditorClient_CreateLayer() override
    {
        meanwhile();
        return ForwardingClient::IStyleEditorClient_CreateLayer();
    }
    void IStyleEditorClient_DeleteLayer(qint32) override { meanwhile(); }
    void IStyleEditorClient_BeginLayerEdit(IRecordset& layers) override
    {
        if (isFaulty)
            throw RunTimeError(10001, QStringLiteral("The host is out of order."));
        ForwardingClient::IStyleEditorClient_BeginLayerEdit(layers);
    }
};

/// Shows no layer, and the groups first.
class NoLayers : public IStyleFilter
{
    bool IStyleFilter_ShowsGroups() const override { return true; }
    bool IStyleFilter_IsLayerShown(qint32, bool) const override { return false; }
};

/// Does something when a window of that class opens.
template <typename Window> class WhenOpened : public QObject
{
public:
    explicit WhenOpened(const std::function<void()>& act) : m_act(act) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && dynamic_cast<Window*>(watched))
            QTimer::singleShot(0, this, m_act);
        return false;
    }

private:
    std::function<void()> m_act;
};

enum class Ending { HostDeletesTheForm, UnloadWithoutApply, LibraryIsReleased };

class EndedMeanwhile : public EditorFixture
{
public:
    using EditorFixture::Click;
    using EditorFixture::ClickLayer;
    using EditorFixture::ClickTab;
    using EditorFixture::Editor;
    using EditorFixture::EditorForm;
    using EditorFixture::Find;
    using EditorFixture::Form;
    using EditorFixture::host;

    void SetUp() override
    {
        AddTown();
        host.schemeNames = {"Day", "Night"};
        host.currentScheme = "Day";
        UseClient(client);
    }

    void OpenWithEdits()
    {
        Open();
        ClickLayer("Roads");
        Click("chkVisible");
        form = Form();
    }

    void OpenOnSchemes()
    {
        Open();
        ClickTab(3);
        form = Form();
    }

    void End()
    {
        if (ending == Ending::HostDeletesTheForm)
            delete Form();
        else if (ending == Ending::UnloadWithoutApply)
            EditorForm().UnloadWithoutApply();
        else
            TearDown();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Ends the dialog at the first message box.
    template <typename Action> void AtTheBox(Action&& act)
    {
        MessageBoxRobot nobody{};
        nobody.BeforeAnswer([this](QMessageBox&) { End(); });
        act();
        QCoreApplication::processEvents();
        EXPECT_EQ(nobody.Boxes().size(), 1u);
    }

    BusyClient client{host};
    QPointer<QWidget> form;
    Ending ending = Ending::HostDeletesTheForm;
};

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
    MessageBoxRobot person{BoxKey::Yes};
    person.BeforeAnswer([&](QMessageBox& box) {
        if (box.text() == "The host is out of order.")
            test.End();
    });
    test.ClickLayer("Rivers");
    QCoreApplication::processEvents();
}

void ErrorOfApplyBeforeAnotherTab(EndedMeanwhile& test)
{
    test.OpenWithEdits();
    test.client.isFaulty = true;
    MessageBoxRobot person{BoxKey::Yes};
    person.BeforeAnswer([&](QMessageBox& box) {
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
    const int index = list.findText("Custom", Qt::MatchStartsWith);
    list.setCurrentIndex(index);
    emit list.activated(index);
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
    auto& tree = test.Find<QTreeView>("tvLayers2");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, tree.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&tree, &event);
    QCoreApplication::processEvents();
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
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
    test.AtTheBox([&] { QTest::keyPress(&test.Find("cmbScheme"), Qt::Key_Down); });
}

void SchemeQuestions(EndedMeanwhile& test)
{
    for (const char* button : {"cmdSave", "cmdRevert", "cmdDelete", "cmdSaveStartup"}) {
        test.OpenOnSchemes();
        test.AtTheBox([&] { test.Click(button); });
        EXPECT_FALSE(test.form) << button;
    }
}

constexpr std::array<std::pair<const char*, Situation>, 25> situations{
    {{"NodeQuestion", NodeQuestion},
     {"GroupsTabQuestion", GroupsTabQuestion},
     {"SchemesTabQuestion", SchemesTabQuestion},
     {"ClosingQuestion", ClosingQuestion},
     {"HidingQuestion", HidingQuestion},
     {"NewLayerQuestion", NewLayerQuestion},
     {"AddedLayerQuestion", AddedLayerQuestion},
     {"FilterQuestion", FilterQuestion},
     {"PopupQuestion", PopupQuestion},
     {"ErrorOfApply", ErrorOfApply},
     {"ErrorOfApplyBeforeAnotherNode", ErrorOfApplyBeforeAnotherNode},
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
     {"SchemeQuestions", SchemeQuestions}}};

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

// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"
#include "support/Without.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGuiApplication>
#include <QTimer>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class Schemes : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        host.schemeNames = QStringList{"Day", "Night", "Print"};
        host.currentScheme = "Night";
        Open();
        ClickTab(3);
        host.ClearLog();
    }

    QComboBox& List() { return Find<QComboBox>("cmbScheme"); }

    QStringList Names()
    {
        QStringList names;
        for (int item = 0; item < List().count(); ++item)
            names.append(List().itemText(item));
        return names;
    }

    /// The calls that change something.
    QStringList Deeds()
    {
        return Without(NewCalls(), [](const QString& call) {
            return call.startsWith("Get") || call.startsWith("Theme");
        });
    }
};

TEST_F(Schemes, AreListedInTheHostsOrderAndShowTheCurrentOne)
{
    EXPECT_THAT(Names(), ElementsAre("Day", "Night", "Print"));
    EXPECT_EQ(List().currentText(), "Night");
}

TEST_F(Schemes, PickingTheCurrentOneAsksNothing)
{
    PickScheme("Night");
    EXPECT_THAT(Deeds(), IsEmpty());
}

TEST_F(Schemes, PickingAnotherAsksAndSwitches)
{
    MessageBoxRobot user{BoxKey::Yes};
    PickScheme("Print");
    EXPECT_EQ(
        user.Only().text,
        "Switch to 'Print'? Any unsaved changes to the current scheme will be lost. Continue?");
    EXPECT_EQ(user.Only().icon, QMessageBox::Question);
    EXPECT_THAT(Deeds(), ElementsAre("LoadScheme(Print)"));
    EXPECT_EQ(List().currentText(), "Print");
}

TEST_F(Schemes, RefusingShowsTheCurrentOneAgain)
{
    MessageBoxRobot user{BoxKey::No};
    PickScheme("Print");
    EXPECT_THAT(Deeds(), IsEmpty());
    EXPECT_EQ(List().currentText(), "Night");
}

TEST_F(Schemes, SwitchingShowsTheBusyPointerMeanwhile)
{
    bool wasBusy = false;
    host.OnLoadScheme = [&](const QString&) { wasBusy = QGuiApplication::overrideCursor() != nullptr; };
    MessageBoxRobot user{BoxKey::Yes};
    PickScheme("Day");
    EXPECT_TRUE(wasBusy);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Schemes, SwitchingRefreshesTheCaption)
{
    host.OnLoadScheme = [&](const QString&) { host.themeName = "Rivers"; };
    MessageBoxRobot user{BoxKey::Yes};
    PickScheme("Day");
    EXPECT_EQ(Form()->windowTitle(), "Theme Control: Rivers");
}

TEST_F(Schemes, ASwitchShowsWhatTheHostMadeCurrent)
{
    host.OnLoadScheme = [&](const QString&) { host.currentScheme = "Day"; };
    MessageBoxRobot user{BoxKey::Yes};
    PickScheme("Print");
    EXPECT_EQ(List().currentText(), "Day");
}

TEST_F(Schemes, RevertingIsBusyAndThePointerThatWasThereComesBack)
{
    QGuiApplication::setOverrideCursor(Qt::CrossCursor);
    Qt::CursorShape meanwhile = Qt::ArrowCursor;
    host.OnLoadScheme = [&](const QString&) { meanwhile = QGuiApplication::overrideCursor()->shape(); };
    MessageBoxRobot user{BoxKey::Yes};
    Click("cmdRevert");
    EXPECT_EQ(meanwhile, Qt::WaitCursor);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
    QGuiApplication::restoreOverrideCursor();
}

TEST_F(Schemes, ADeletionSelectsAnEntryThatExistsAndItsButtonsWork)
{
    host.OnLoadScheme = [&](const QString&) { host.currentScheme = "Elsewhere"; };
    MessageBoxRobot user{BoxKey::Yes};
    Click("cmdDelete");
    EXPECT_EQ(List().currentIndex(), 0);
    for (const char* button : {"cmdSave", "cmdRevert", "cmdDelete"})
        EXPECT_TRUE(Find(button).isEnabled()) << button;
}

TEST_F(Schemes, SwitchingReadsTheLayersAgain)
{
    host.OnLoadScheme = [&](const QString&) { host.SetLayerColumn(1, "OverrideMode", qint32(2)); };
    MessageBoxRobot user{BoxKey::Yes};
    PickScheme("Day");
    ClickTab(2);
    ClickLayer("Roads");
    EXPECT_EQ(PressedModes(), 4);
}

TEST_F(Schemes, ANewOneIsCreatedUnderItsTrimmedName)
{
    host.promptAnswers = {{true, "  Winter \t"}};
    Click("cmdNew");
    EXPECT_THAT(Deeds(), Contains("CreateScheme(Winter)"));
    EXPECT_EQ(host.promptRequests.front().title, "New Scheme");
    EXPECT_EQ(host.promptRequests.front().defaultText, "");
    EXPECT_EQ(host.promptRequests.front().width, 20);
    EXPECT_THAT(Names(), Contains("Winter"));
}

TEST_F(Schemes, ABlankNameIsRefusedUntilOneIsGiven)
{
    host.promptAnswers = {{true, "   "}, {true, ""}, {true, "Winter"}};
    MessageBoxRobot user{BoxKey::Enter, BoxKey::Enter};
    Click("cmdNew");
    ASSERT_EQ(user.Boxes().size(), 2u);
    EXPECT_EQ(user.Boxes().front().text, "Please supply a non-blank name, or cancel.");
    EXPECT_EQ(user.Boxes().front().icon, QMessageBox::Information);
    EXPECT_THAT(Deeds(), Contains("CreateScheme(Winter)"));
}

TEST_F(Schemes, ACancelledNameCreatesNothing)
{
    host.promptAnswers = {{true, " "}, {false, ""}};
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdNew");
    EXPECT_THAT(host.Log().CallsTo("CreateScheme"), IsEmpty());
}

TEST_F(Schemes, SavingAsksFirst)
{
    {
        MessageBoxRobot user{BoxKey::No};
        Click("cmdSave");
        EXPECT_EQ(user.Only().text, "Save current layer setup to scheme 'Night'?");
        EXPECT_EQ(user.Only().icon, QMessageBox::Question);
    }
    EXPECT_THAT(Deeds(), IsEmpty());
    MessageBoxRobot user{BoxKey::Yes};
    Click("cmdSave");
    EXPECT_THAT(Deeds(), ElementsAre("SaveScheme(Night)"));
}

TEST_F(Schemes, RevertingAsksFirst)
{
    {
        MessageBoxRobot user{BoxKey::No};
        Click("cmdRevert");
        EXPECT_EQ(user.Only().text, "Revert to the last saved values in layer scheme 'Night'?");
        EXPECT_EQ(user.Only().icon, QMessageBox::Question);
    }
    EXPECT_THAT(Deeds(), IsEmpty());
    MessageBoxRobot user{BoxKey::Yes};
    Click("cmdRevert");
    EXPECT_THAT(Deeds(), ElementsAre("LoadScheme(Night)"));
}

TEST_F(Schemes, DeletingFallsBackToTheNextOne)
{
    MessageBoxRobot user{BoxKey::Yes};
    Click("cmdDelete");
    EXPECT_EQ(user.Only().text, "Delete layer scheme 'Night'?");
    EXPECT_EQ(user.Only().icon, QMessageBox::Question);
    EXPECT_THAT(Deeds(), ElementsAre("LoadScheme(Print)", "DeleteScheme(Night)"));
    EXPECT_THAT(Names(), ElementsAre("Day", "Print"));
    EXPECT_EQ(List().currentText(), "Print");
}

TEST_F(Schemes, DeletingTheLastInTheListFallsBackToTheOneBefore)
{
    MessageBoxRobot user{BoxKey::Yes, BoxKey::Yes};
    PickScheme("Print");
    Click("cmdDelete");
    EXPECT_THAT(Deeds(), ElementsAre("LoadScheme(Print)", "LoadScheme(Night)", "DeleteScheme(Print)"));
}

TEST_F(Schemes, RefusingToDeleteKeepsIt)
{
    MessageBoxRobot user{BoxKey::No};
    Click("cmdDelete");
    EXPECT_THAT(Deeds(), IsEmpty());
}

TEST_F(Schemes, TheLastOneCannotBeDeleted)
{
    {
        MessageBoxRobot user{BoxKey::Yes, BoxKey::Yes};
        Click("cmdDelete");
        Click("cmdDelete");
    }
    host.ClearLog();
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdDelete");
    EXPECT_EQ(user.Only().text, "The last layer scheme cannot be deleted.");
    EXPECT_EQ(user.Only().icon, QMessageBox::Information);
    EXPECT_THAT(Deeds(), IsEmpty());
}

TEST_F(Schemes, SavingToTheStartupAsksFirst)
{
    {
        MessageBoxRobot user{BoxKey::No};
        Click("cmdSaveStartup");
        EXPECT_EQ(
            user.Only().text, "Are you sure you wish to save the colour schemes to the startup database?");
    }
    EXPECT_THAT(Deeds(), IsEmpty());
    MessageBoxRobot user{BoxKey::Yes};
    Click("cmdSaveStartup");
    EXPECT_THAT(Deeds(), ElementsAre("SaveSchemesToStartup()"));
}

TEST_F(Schemes, KeysSwitchToo)
{
    MessageBoxRobot user{BoxKey::Yes};
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Down);
    QCoreApplication::processEvents();
    EXPECT_TRUE(user.Only().text.contains("'Print'"));
    EXPECT_THAT(Deeds(), ElementsAre("LoadScheme(Print)"));
}

TEST_F(Schemes, FillingAsksAndCallsNothing)
{
    MessageBoxRobot nobody{};
    ClickTab(2);
    ClickTab(3);
    EXPECT_THAT(Deeds(), IsEmpty());
}

TEST_F(Schemes, ThoseThatTheHostHasMeanwhileAreListedWhenTheTabIsLookedAtAgain)
{
    ClickTab(2);
    host.schemeNames = QStringList{"Day", "Dusk"};
    host.currentScheme = "Dusk";
    ClickTab(3);
    EXPECT_THAT(Names(), ElementsAre("Day", "Dusk"));
    EXPECT_EQ(List().currentText(), "Dusk");
}

TEST_F(Schemes, AnyTextIsAName)
{
    for (const QString& name :
         {QString("O'Neill's \"best\" & ^1"), QString::fromUtf8("🗺 карта"), QString::fromUtf8("שלום"),
          QString("a\nb"), QString("<b>bold</b>"), QString(10000, 'x')}) {
        host.promptAnswers = {{true, name}};
        Click("cmdNew");
        EXPECT_THAT(Names(), Contains(name));
        MessageBoxRobot user{BoxKey::Yes};
        PickScheme(name == host.currentScheme ? QString("Day") : name);
        EXPECT_EQ(user.Only().format, Qt::PlainText);
        EXPECT_LT(user.Only().text.size(), 200);
        EXPECT_EQ(List().currentText(), host.currentScheme);
    }
}

TEST_F(Schemes, AVeryLongNameLeavesTheWindowsWidth)
{
    const int before = Form()->minimumSizeHint().width();
    host.promptAnswers = {{true, QString(10000, 'x')}};
    Click("cmdNew");
    EXPECT_EQ(Form()->minimumSizeHint().width(), before);
}

TEST_F(Schemes, ACurrentOneThatIsNotListedOffersNothingToSave)
{
    host.schemeNames = QStringList{"Day"};
    host.currentScheme = "Elsewhere";
    host.promptAnswers = {{true, "Winter"}};
    Click("cmdNew");
    EXPECT_EQ(List().currentIndex() >= 0, host.currentScheme == "Winter");
    EXPECT_EQ(IsEnabled("cmdSave"), host.currentScheme == "Winter");
}

TEST_F(Schemes, OfAHostWithoutAWindowForThemHaveNoButtonForIt)
{
    EXPECT_FALSE(Find("cmdManage").isVisible());
}

class ManagingClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    std::function<void(QWidget* form)> OnManage = [](QWidget*) {};

private:
    bool ISchemeManager_CanManageSchemes() const override { return true; }
    void ISchemeManager_ManageSchemes(QWidget* form) override { OnManage(form); }
};

class ManagedSchemes : public Schemes
{
protected:
    void SetUp() override
    {
        UseClient(client);
        Schemes::SetUp();
    }

    ManagingClient client{host};
};

TEST_F(ManagedSchemes, AreReadAgainAfterTheHostsWindow)
{
    QWidget* owner = nullptr;
    client.OnManage = [&](QWidget* form) {
        owner = form;
        host.schemeNames = QStringList{"Day", "Dusk"};
        host.currentScheme = "Dusk";
    };
    Click("cmdManage");
    EXPECT_TRUE(QTest::qWaitFor([&] { return owner != nullptr; }));
    EXPECT_EQ(owner, Form());
    EXPECT_THAT(Names(), ElementsAre("Day", "Dusk"));
    EXPECT_EQ(List().currentText(), "Dusk");
}

TEST_F(ManagedSchemes, AreReadAgainAfterAWindowThatFailed)
{
    client.OnManage = [&](QWidget*) {
        host.schemeNames = QStringList{"Dusk"};
        host.currentScheme = "Dusk";
        throw RunTimeError(10001, QStringLiteral("the disk is full"));
    };
    MessageBoxRobot user{BoxKey::Enter};
    Find<QAbstractButton>("cmdManage").setFocus();
    QTest::keyClick(&Find("cmdManage"), Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !user.Boxes().empty(); }));
    EXPECT_EQ(user.Only().text, "the disk is full");
    EXPECT_THAT(Names(), ElementsAre("Dusk"));
}

TEST_F(ManagedSchemes, MayEndTheEditorMeanwhile)
{
    bool wasAsked = false;
    client.OnManage = [&](QWidget*) {
        Close();
        wasAsked = true;
    };
    Click("cmdManage");
    EXPECT_TRUE(QTest::qWaitFor([&] { return wasAsked; }));
}

} // namespace

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "component/entry/StyleEditorLib.h"

#include "component/common/Component.h"
#include "component/common/Messages.h"
#include "component/entry/FakeEditorWindow.h"
#include "hosts/FailingClient.h"
#include "hosts/MemoryHost.h"
#include "support/LinguistFile.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorTexts.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QBuffer>
#include <QLocale>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

using testing::Contains;
using testing::ElementsAre;

class Library : public testing::Test
{
protected:
    ~Library() override
    {
        m_library.reset();
        QLocale::setDefault(m_locale);
        Component::Get().SetMessageFolder(QString());
        Component::Get().LoadMessages();
    }

    std::unique_ptr<IStyleEditorLibrary> NewLibrary()
    {
        return std::make_unique<StyleEditorLib>(Testing::FakeEditors(m_events), m_folder.path());
    }

    std::unique_ptr<IStyleEditorLibrary> NewLibraryFor(const ContractVersion& host)
    {
        return std::make_unique<StyleEditorLib>(Testing::FakeEditors(m_events), m_folder.path(), host);
    }

    // A library that is initialised, with one editor.
    Testing::FakeEditorWindow& Start(IStyleEditorClient& client, const QString& editorID = "Main")
    {
        m_library = NewLibrary();
        m_library->Initialise(&client);
        return dynamic_cast<Testing::FakeEditorWindow&>(*m_library->NewStyleEditor(editorID));
    }

    int ErrorOfCreating(const QString& editorID)
    {
        try {
            m_library->NewStyleEditor(editorID);
        } catch (const RunTimeError& error) {
            return error.Number();
        }
        return 0;
    }

    // Adds a translation of "Invalid Name" and makes its language the user's.
    void SpeakDutch(IStyleEditorLibrary& library)
    {
        QLocale::setDefault(QLocale("nl_NL"));
        QByteArray document = Testing::LinguistDocument({{"Invalid Name", "Ongeldige naam"}});
        QBuffer device(&document);
        ASSERT_TRUE(device.open(QIODevice::ReadOnly));
        dynamic_cast<IStyleEditorTexts&>(library).AddTexts("nl", device);
    }

    QLocale m_locale;
    QTemporaryDir m_folder;
    QStringList m_events;
    Testing::MemoryHost m_host;
    std::unique_ptr<IStyleEditorLibrary> m_library;
};

class EventCounter : public QObject
{
public:
    explicit EventCounter(QEvent::Type type) : m_type(type) { }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

    int count = 0;

private:
    QEvent::Type m_type;
};

// Raises while it is asked for its shell services.
class ClientWithoutServices : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;

private:
    IShellServices* IStyleEditorClient_GetShellServices() override
    {
        throw RunTimeError(10001, "no services");
    }
};

} // namespace

TEST_F(Library, BeforeAnyEditorFindsNothing)
{
    m_library = NewLibrary();
    EXPECT_EQ(m_library->GetStyleEditor("Main"), nullptr);
    EXPECT_EQ(m_library->GetStyleEditor(""), nullptr);
}

TEST_F(Library, InitialiseKeepsTheClientAndTheShellServicesItAskedFor)
{
    m_library = NewLibrary();
    EXPECT_FALSE(HasClient());
    m_library->Initialise(&m_host);
    EXPECT_TRUE(HasClient());
    EXPECT_EQ(&Client(), &m_host);
    EXPECT_EQ(&ShellServices(), &m_host.Shell());
    EXPECT_THAT(m_host.Calls(), ElementsAre("GetShellServices()"));
}

TEST_F(Library, ASecondInitialiseReplacesBoth)
{
    Testing::MemoryHost other;
    m_library = NewLibrary();
    m_library->Initialise(&m_host);
    m_library->Initialise(&other);
    EXPECT_EQ(&Client(), &other);
    EXPECT_EQ(&ShellServices(), &other.Shell());
}

TEST_F(Library, InitialisePassesOnWhatTheClientRaisesAndForgetsTheFormerServices)
{
    ClientWithoutServices client(m_host);
    m_library = NewLibrary();
    m_library->Initialise(&m_host);
    EXPECT_THROW(m_library->Initialise(&client), RunTimeError);
    EXPECT_THROW(ShellServices(), RunTimeError);
}

TEST_F(Library, UsedBeforeInitialiseRaises91)
{
    m_library = NewLibrary();
    try {
        Client();
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), 91);
        EXPECT_EQ(error.Description(), QString("The layer control has not been initialised."));
    }
}

TEST_F(Library, ANewEditorIsHiddenAndFoundByItsId)
{
    const IStyleEditor* editor = &Start(m_host);
    EXPECT_FALSE(editor->Visible());
    EXPECT_EQ(m_library->GetStyleEditor("Main"), editor);
    EXPECT_EQ(m_library->GetStyleEditor("Other"), nullptr);
}

TEST_F(Library, ASecondEditorOfOneIdRaises1234AndTheFirstStays)
{
    const IStyleEditor* first = &Start(m_host);
    EXPECT_EQ(ErrorOfCreating("Main"), 1234);
    EXPECT_EQ(m_library->GetStyleEditor("Main"), first);
}

TEST_F(Library, AHiddenEditorThatIsHiddenStaysRegistered)
{
    IStyleEditor& editor = Start(m_host);
    editor.Visible(false);
    EXPECT_EQ(m_library->GetStyleEditor("Main"), &editor);
}

TEST_F(Library, AClosedEditorIsGoneAndItsIdFree)
{
    IStyleEditor& editor = Start(m_host);
    editor.Visible(true);
    editor.Visible(false);
    EXPECT_EQ(m_library->GetStyleEditor("Main"), nullptr);
    EXPECT_EQ(ErrorOfCreating("Main"), 0);
}

TEST_F(Library, ItsReleaseUnloadsEveryEditorInOrderWithoutAQuestion)
{
    Testing::MessageBoxRobot user{};
    Start(m_host, "B").modified = true;
    m_library->NewStyleEditor("A")->Visible(true);
    m_library.reset();
    EXPECT_THAT(
        m_events,
        ElementsAre("unload B without applying", "unload A without applying", "delete B", "delete A"));
    EXPECT_TRUE(user.Boxes().empty());
    EXPECT_THAT(m_host.Calls(), Contains("WriteSetting(DrawStyleEditor::A, state)"));
    EXPECT_FALSE(HasClient());
}

TEST_F(Library, ItsReleaseBearsAHostThatRaises)
{
    Testing::FailingClient client(m_host, {"WriteSetting", 1, RunTimeError(10001, "settings are gone")});
    Start(client, "First");
    m_library->NewStyleEditor("Second");
    m_library.reset();
    EXPECT_THAT(
        m_events,
        ElementsAre(
            "unload First without applying", "delete First", "unload Second without applying",
            "delete Second"));
    EXPECT_THAT(m_host.Calls(), Contains("WriteSetting(DrawStyleEditor::Second, state)"));
}

TEST_F(Library, ItStillAnswersWhileItUnloads)
{
    Start(m_host, "First");
    m_library->NewStyleEditor("Second");
    QStringList found;
    IStyleEditorLibrary* library = m_library.get();
    m_host.OnEditorClosed = [&](QWidget*) {
        for (const char* editorID : {"First", "Second"}) {
            if (library->GetStyleEditor(editorID))
                found.append(editorID);
        }
    };
    delete m_library.release();
    EXPECT_EQ(found, QStringList({"First", "Second", "Second"}));
}

TEST_F(Library, AnEditorThatTheHostCreatesMeanwhileIsDeletedToo)
{
    Start(m_host, "First");
    IStyleEditorLibrary* library = m_library.get();
    m_host.OnEditorClosed = [&](QWidget*) { library->NewStyleEditor("Late"); };
    delete m_library.release();
    EXPECT_THAT(m_events, Contains("delete Late"));
}

TEST_F(Library, ReleasedBeforeInitialiseUnloadsWithoutAHost)
{
    m_library = NewLibrary();
    m_library->NewStyleEditor("Main");
    m_library.reset();
    EXPECT_THAT(m_events, ElementsAre("unload Main without applying", "delete Main"));
    EXPECT_TRUE(m_host.Calls().isEmpty());
}

TEST_F(Library, LoadsTheMessageFileWhenItIsCreated)
{
    Testing::WriteFile(
        m_folder.filePath("POBEX.LRT"), Testing::LinguistDocument({{"Invalid Name", "Ungültiger Name"}}));
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("Invalid Name"));
    m_library = NewLibrary();
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("Ungültiger Name"));
}

TEST_F(Library, WithoutAMessageFileIsCreatedAllTheSame)
{
    Testing::WriteFile(m_folder.filePath("POBEX.LRT"), "\x01\x02 not a catalogue");
    m_library = NewLibrary();
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("Invalid Name"));
    m_library = nullptr;
    m_folder.remove();
    m_library = NewLibrary();
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("Invalid Name"));
}

TEST_F(Library, TakesTextsBeforeItIsInitialised)
{
    m_library = NewLibrary();
    SpeakDutch(*m_library);
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("Ongeldige naam"));
    m_library->Initialise(&m_host);
    ReloadMessages();
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("Ongeldige naam"));
}

TEST_F(Library, TellsItsEditorsOfTextsThatAreAdded)
{
    EventCounter counter(QEvent::LanguageChange);
    Start(m_host).installEventFilter(&counter);
    SpeakDutch(*m_library);
    EXPECT_EQ(counter.count, 1);
}

TEST_F(Library, KeepsAddedTextsWhileAnotherOneIsThere)
{
    m_library = NewLibrary();
    auto second = NewLibrary();
    SpeakDutch(*second);
    second.reset();
    ReloadMessages();
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("Ongeldige naam"));
}

TEST_F(Library, ForgetsAddedTextsWithTheLastOne)
{
    m_library = NewLibrary();
    SpeakDutch(*m_library);
    m_library.reset();
    m_library = NewLibrary();
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("Invalid Name"));
}

TEST_F(Library, ASecondOneInTheProcessSharesTheEditorsAndTheHost)
{
    const IStyleEditor* editor = &Start(m_host);
    const auto second = NewLibrary();
    EXPECT_EQ(second->GetStyleEditor("Main"), editor);
    EXPECT_THROW(second->NewStyleEditor("Main"), RunTimeError);
    EXPECT_EQ(&Client(), &m_host);
}

TEST_F(Library, TheEditorsEndWithTheLastOne)
{
    const IStyleEditor* editor = &Start(m_host);
    auto second = NewLibrary();
    m_library.reset();
    EXPECT_EQ(second->GetStyleEditor("Main"), editor);
    EXPECT_TRUE(m_events.isEmpty());
    second.reset();
    EXPECT_THAT(m_events, ElementsAre("unload Main without applying", "delete Main"));
}

TEST_F(Library, AfterAReleaseANewOneStartsEmpty)
{
    Start(m_host);
    m_library.reset();
    m_library = NewLibrary();
    EXPECT_EQ(m_library->GetStyleEditor("Main"), nullptr);
    EXPECT_FALSE(HasClient());
    EXPECT_EQ(ErrorOfCreating("Main"), 0);
}

TEST_F(Library, MayBeAGlobalObjectOfTheHost)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe"; // a process of its own, where nothing was made yet
    EXPECT_EXIT(
        {
            static std::unique_ptr<IStyleEditorLibrary> global;
            global = NewLibrary();
            global->Initialise(&m_host);
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(Library, KeepsTheContractOfTheHostThatInitialisedIt)
{
    Testing::MemoryHost host;
    const auto older = NewLibraryFor({1, 1});
    m_library = NewLibraryFor({1, 2});
    older->Initialise(&host);
    EXPECT_EQ(Component::Get().HostContract().minor, 1);
    m_library->Initialise(&host);
    EXPECT_EQ(Component::Get().HostContract().minor, 2);
}

TEST_F(Library, ForgetsTheContractOfTheHostWithTheLastOne)
{
    Testing::MemoryHost host;
    m_library = NewLibraryFor(UntoldContract);
    m_library->Initialise(&host);
    m_library.reset();
    EXPECT_EQ(Component::Get().HostContract().minor, CurrentContract.minor);
}

} // namespace Orvane

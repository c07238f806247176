// SPDX-License-Identifier: MIT
#include "hosts/MemoryHost.h"
#include "support/LinguistFile.h"

#include <OrvaneShellLib/HostDescription.h>
#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/IStyleEditorTexts.h>
#include <OrvaneShellLib/PluginContract.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QBuffer>
#include <QLibrary>
#include <QLocale>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace Orvane {

namespace {

using testing::Contains;

// The component as a host uses it: a file, two functions, and their results.
class Plugin : public testing::Test
{
protected:
    ~Plugin() override
    {
        m_library.reset();
        QLocale::setDefault(m_locale);
    }

    template <typename Function> Function Resolve(const char* symbol)
    {
        return reinterpret_cast<Function>(m_file.resolve(symbol));
    }

    IStyleEditorLibrary& Create()
    {
        m_library.reset(); // before another is made, which would share its editors
        m_library.reset(Resolve<CreateLibraryFunction>(CreateLibrarySymbol)());
        m_library->Initialise(&m_host);
        return *m_library;
    }

    /// The reason why that host is refused; empty if it is not.
    QString Refusal(const HostDescription& host)
    {
        char reason[400] = {};
        m_library.reset();
        m_library.reset(
            Resolve<CreateLibraryForFunction>(CreateLibraryForSymbol)(&host, reason, sizeof reason));
        EXPECT_EQ(m_library == nullptr, reason[0] != 0);
        return QString::fromUtf8(reason);
    }

    QString ErrorOfADuplicate(const QString& language)
    {
        QLocale::setDefault(QLocale(language));
        Create().NewStyleEditor("Main");
        try {
            m_library->NewStyleEditor("Main");
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), 1234);
            return error.Description();
        }
        return {};
    }

    QLibrary m_file{QStringLiteral(ORVANE_COMPONENT)};
    QLocale m_locale;
    Testing::MemoryHost m_host;
    std::unique_ptr<IStyleEditorLibrary> m_library;
};

} // namespace

TEST_F(Plugin, LoadsAndSpeaksTheContractOfItsSourceTree)
{
    ASSERT_TRUE(m_file.load()) << qPrintable(m_file.errorString());
    const auto contractVersion = Resolve<ContractVersionFunction>(ContractVersionSymbol);
    ASSERT_NE(contractVersion, nullptr);
    ContractVersion version;
    contractVersion(&version);
    EXPECT_EQ(version.major, CurrentContract.major);
    EXPECT_EQ(version.minor, CurrentContract.minor);
}

TEST_F(Plugin, TellsTheQtThatItWasBuiltWith)
{
    EXPECT_EQ(Resolve<QtMajorFunction>(QtMajorSymbol)(), QT_VERSION_MAJOR);
}

TEST_F(Plugin, TellsTheStandardLibraryThatItWasBuiltWith)
{
    EXPECT_STREQ(Resolve<CompilerAbiFunction>(CompilerAbiSymbol)(), CompilerAbi());
}

TEST_F(Plugin, WorksForAHostThatDescribesItself)
{
    EXPECT_EQ(Refusal(DescribeHost()), QString());
    m_library->Initialise(&m_host);
    EXPECT_NE(m_library->NewStyleEditor("Main"), nullptr);
}

TEST_F(Plugin, RefusesAHostThatDoesNotFitInItsLanguage)
{
    HostDescription host = DescribeHost();
    host.compilerAbi = "home made";
    QLocale::setDefault(QLocale("de_AT"));
    EXPECT_TRUE(Refusal(host).startsWith("sie wurde mit der Standardbibliothek"))
        << qPrintable(Refusal(host));
}

TEST_F(Plugin, RefusesWithoutABufferForTheReason)
{
    HostDescription host = DescribeHost();
    host.size = 4;
    EXPECT_EQ(Resolve<CreateLibraryForFunction>(CreateLibraryForSymbol)(&host, nullptr, 0), nullptr);
}

TEST_F(Plugin, MakesAnEditorThatIsAWidgetAndAForm)
{
    IStyleEditor* editor = Create().NewStyleEditor("Main");
    EXPECT_FALSE(editor->Visible());
    EXPECT_NE(dynamic_cast<QWidget*>(editor), nullptr);
    auto* form = dynamic_cast<IStyleEditorForm*>(editor);
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->EditorID(), QString("Main"));
}

TEST_F(Plugin, RaisesTheErrorsOfTheContractAcrossTheBorder)
{
    EXPECT_EQ(ErrorOfADuplicate("en_GB"), QString("Style Editor with that ID already exists."));
}

TEST_F(Plugin, SpeaksTheLanguageOfTheMessageFileBesideIt)
{
    EXPECT_EQ(ErrorOfADuplicate("de_AT"), QString("Ein Stileditor mit dieser ID ist bereits vorhanden."));
    EXPECT_EQ(
        ErrorOfADuplicate("fr_FR"), QString("Un éditeur de style portant cet identifiant existe déjà."));
}

TEST_F(Plugin, ShowsTextsThatTheHostAddsInAnOpenEditor)
{
    QLocale::setDefault(QLocale("nl_NL"));
    auto* texts = dynamic_cast<IStyleEditorTexts*>(&Create());
    ASSERT_NE(texts, nullptr);
    IStyleEditor* editor = m_library->NewStyleEditor("Main");
    editor->Visible(true);
    const auto* window = dynamic_cast<QWidget*>(editor);
    EXPECT_EQ(window->windowTitle(), QString("Layer Control"));
    QByteArray document = Testing::LinguistDocument({{"Layer Control", "Laagbeheer"}});
    QBuffer device(&document);
    ASSERT_TRUE(device.open(QIODevice::ReadOnly));
    texts->AddTexts("nl", device);
    EXPECT_EQ(window->windowTitle(), QString("Laagbeheer"));
}

TEST_F(Plugin, RaisesTheErrorsOfAddedTextsAcrossTheBorder)
{
    auto* texts = dynamic_cast<IStyleEditorTexts*>(&Create());
    ASSERT_NE(texts, nullptr);
    const QString folder = QStringLiteral("/no/such/folder");
    try {
        texts->AddTextFolder(folder);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), IStyleEditorTexts::UnusableTexts);
        EXPECT_TRUE(error.Description().contains(folder));
    }
}

TEST_F(Plugin, LeavesNoWidgetBehindWhenItsLibraryIsReleased)
{
    const auto before = QApplication::allWidgets().size();
    Create().NewStyleEditor("Main")->Visible(true);
    m_library->NewStyleEditor("Hidden");
    m_library->GetStyleEditor("Main")->Visible(false);
    m_library.reset();
    EXPECT_EQ(QApplication::allWidgets().size(), before);
}

TEST_F(Plugin, CanBeUsedAgainAfterAHostHasUnloadedIt)
{
    Create().NewStyleEditor("Main")->Visible(true);
    m_library.reset();
    m_file.unload();
    ASSERT_TRUE(m_file.load()) << qPrintable(m_file.errorString());
    Create().NewStyleEditor("Main")->Visible(true);
    EXPECT_NE(m_library->GetStyleEditor("Main"), nullptr);
}

TEST_F(Plugin, UnloadsAnOpenEditorThroughTheHost)
{
    Create().NewStyleEditor("Main")->Visible(true);
    m_host.ClearLog();
    m_library.reset();
    EXPECT_THAT(m_host.Calls(), Contains("EditorClosed()"));
    EXPECT_THAT(
        m_host.Log().CallsTo("WriteSetting").join('\n').toStdString(),
        testing::HasSubstr("DrawStyleEditor::Main"));
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "hostkit/HostKitTexts.h"

#include "hostkit/StyleEditorPlugin.h"
#include "support/LinguistFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvane::Testing {
namespace {

class TextsOf : public testing::Test
{
protected:
    ~TextsOf() override { HostKitTexts::Install(QLocale::c()); }

    void Put(const QString& language, const QByteArray& document)
    {
        WriteFile(m_folder.filePath(QStringLiteral("orvane.%1.ts").arg(language)), document);
    }

    void Put(const QString& language, const QString& translation)
    {
        Put(language, LinguistDocument({{QStringLiteral("Cancel"), translation}}));
    }

    QString Install(const char* locale)
    {
        return HostKitTexts::Install(QLocale(QLatin1String(locale)), m_folder.path());
    }

    static QString Shown() { return QCoreApplication::translate("Any", "Cancel"); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(TextsOf, AHostsOwnLanguageAreShown)
{
    Put("nl", QStringLiteral("Annuleren"));
    EXPECT_EQ(Install("nl_NL"), "nl");
    EXPECT_EQ(Shown(), "Annuleren");
}

TEST_F(TextsOf, ACountryComeBeforeThoseOfItsLanguage)
{
    Put("nl", QStringLiteral("Annuleren"));
    Put("nl-BE", QStringLiteral("Afbreken"));
    EXPECT_EQ(Install("nl_BE"), "nl-BE");
    EXPECT_EQ(Shown(), "Afbreken");
    EXPECT_EQ(Install("nl_NL"), "nl");
    EXPECT_EQ(Shown(), "Annuleren");
}

TEST_F(TextsOf, AnEarlierLanguageAreRemovedByEnglish)
{
    Put("nl", QStringLiteral("Annuleren"));
    Install("nl_NL");
    EXPECT_EQ(Install("en_GB"), QString());
    EXPECT_EQ(Shown(), "Cancel");
}

TEST_F(TextsOf, ADamagedFileAreLeftOut)
{
    Put("nl", QByteArray("damaged"));
    EXPECT_EQ(Install("nl_NL"), QString());
    EXPECT_EQ(Shown(), "Cancel");
}

TEST_F(TextsOf, ALanguageCanBeAskedForWithoutInstalling)
{
    Put("nl", QStringLiteral("Annuleren"));
    EXPECT_EQ(HostKitTexts::Language(QLocale(QStringLiteral("nl_NL")), m_folder.path()), "nl");
    EXPECT_EQ(Shown(), "Cancel");
}

TEST_F(TextsOf, ThePackageAreFoundBesideTheProgram)
{
    EXPECT_EQ(HostKitTexts::Language(QLocale(QStringLiteral("de_AT"))), "de");
    EXPECT_EQ(HostKitTexts::Language(QLocale(QStringLiteral("fr_CH"))), "fr");
}

TEST_F(TextsOf, TheHostComeBeforeThoseOfThePackage)
{
    Put("de", QStringLiteral("Lieber nicht"));
    EXPECT_EQ(Install("de_DE"), "de");
    EXPECT_EQ(Shown(), "Lieber nicht");
}

TEST_F(TextsOf, TheComponentThatWasLoadedAreLookedForWhereItIsInstalled)
{
    const StyleEditorPlugin plugin(QStringLiteral(FAKE_PLUGIN_FOLDER "/fake_plugin_same"));
    EXPECT_EQ(StyleEditorPlugin::LoadedFile(), plugin.FileName());
    const QString prefix = QDir::cleanPath(QStringLiteral(FAKE_PLUGIN_FOLDER "/../.."));
    EXPECT_THAT(
        HostKitTexts::SearchFolders(),
        testing::Contains(prefix + QStringLiteral("/share/orvane/translations")));
}

TEST_F(TextsOf, TheHostAreLookedForFirst)
{
    EXPECT_EQ(HostKitTexts::SearchFolders(m_folder.path()).constFirst(), m_folder.path());
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "component/common/MessageFile.h"

#include "support/LinguistFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class MessageFile : public testing::Test
{
protected:
    void Put(const QString& file) { Testing::WriteFile(m_folder.filePath(file), "x"); }

    // The chosen file, relative to the folder.
    QString Chosen(const QStringList& languages) const
    {
        return QDir(m_folder.path()).relativeFilePath(MessageFilePath(m_folder.path(), languages));
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(MessageFile, BesideTheComponentWinsOverEveryLanguage)
{
    Put("POBEX.LRT");
    Put("de/POBEX.LRT");
    EXPECT_EQ(Chosen({"de-DE", "de"}), QString("POBEX.LRT"));
    EXPECT_EQ(Chosen({"en-GB", "en"}), QString("POBEX.LRT"));
}

TEST_F(MessageFile, OfTheFirstLanguageThatHasOneIsChosen)
{
    Put("fr/POBEX.LRT");
    Put("ja/POBEX.LRT");
    EXPECT_EQ(Chosen({"de-DE", "de", "ja-JP", "ja", "fr"}), QString("ja/POBEX.LRT"));
}

TEST_F(MessageFile, OfAWiderLanguageServesANarrowerOne)
{
    Put("de/POBEX.LRT");
    EXPECT_EQ(Chosen({"de-Latn-AT"}), QString("de/POBEX.LRT"));
    EXPECT_EQ(Chosen({"de_AT"}), QString("de/POBEX.LRT"));
}

TEST_F(MessageFile, OfTheNarrowerLanguageComesFirst)
{
    Put("de/POBEX.LRT");
    Put("de-AT/POBEX.LRT");
    EXPECT_EQ(Chosen({"de-AT", "de"}), QString("de-AT/POBEX.LRT"));
}

TEST_F(MessageFile, IsNotTakenFromALanguageBehindEnglish)
{
    Put("de/POBEX.LRT");
    EXPECT_EQ(Chosen({"en-GB", "en", "de-DE", "de"}), QString("POBEX.LRT"));
    EXPECT_EQ(Chosen({"C"}), QString("POBEX.LRT"));
}

TEST_F(MessageFile, NamedWhereNoneIsDoesNotExist)
{
    EXPECT_FALSE(QFileInfo::exists(MessageFilePath(m_folder.path(), {"de-DE", "de"})));
    EXPECT_FALSE(QFileInfo::exists(MessageFilePath(m_folder.path(), {})));
}

TEST_F(MessageFile, IsNeverAFolder)
{
    QDir(m_folder.path()).mkpath("POBEX.LRT");
    Put("de/POBEX.LRT");
    EXPECT_EQ(Chosen({"de"}), QString("de/POBEX.LRT"));
}

TEST_F(MessageFile, IsNeverSoughtInTheCurrentFolder)
{
    EXPECT_EQ(MessageFilePath(QString(), {"de"}), QString());
}

TEST(ComponentFolder, IsWhereTheLoadedCodeLies)
{
    // Linked into this program, the component's code lies where the program does.
    EXPECT_EQ(ComponentFolder(), QCoreApplication::applicationDirPath());
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "component/common/Messages.h"

#include "component/common/Component.h"
#include "component/common/MessageTable.h"
#include "support/LinguistFile.h"
#include "support/PseudoLanguage.h"

#include <QCheckBox>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

// The component's table, English before and after each test, and files to fill it from.
class Messages : public testing::Test
{
protected:
    Messages() { Component::Get().Messages().LoadFile(QString()); }
    ~Messages() override
    {
        QLocale::setDefault(m_locale);
        Component::Get().SetMessageFolder(QString());
        Component::Get().Messages().LoadFile(QString());
    }

    void Put(const QString& file, const std::vector<Testing::MessagePair>& messages)
    {
        Testing::WriteFile(m_folder.filePath(file), Testing::LinguistDocument(messages));
    }

    void Speak(const QString& language)
    {
        QLocale::setDefault(QLocale(language));
        Component::Get().SetMessageFolder(m_folder.path());
        ReloadMessages();
    }

    QTemporaryDir m_folder;
    QLocale m_locale;
};

} // namespace

TEST_F(Messages, WithAnEmptyTableTheEnglishTextIsFilledIn)
{
    EXPECT_EQ(
        TranslateMsg("Delete layer scheme '^1'?", QString("Roads")), QString("Delete layer scheme 'Roads'?"));
}

TEST_F(Messages, ATextWithoutPlaceholdersIsShownUnchanged)
{
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("Invalid Name"));
    EXPECT_EQ(TranslateMsg(""), QString(""));
}

TEST_F(Messages, ATranslationMayOrderThePlaceholdersAgain)
{
    const Testing::PseudoLanguage pseudo;
    const QString question = "Do you wish to apply the changes to the '^2' ^1?";
    EXPECT_EQ(
        TranslateMsg(question, TranslateMsg("layer"), QString("Roads")),
        Testing::Pseudo(question).replace("^1", Testing::Pseudo("layer")).replace("^2", "Roads"));
}

TEST_F(Messages, APlaceholderComesBackFromTheTranslationNotFromTheArgument)
{
    EXPECT_EQ(TranslateMsg("'^2' ^1", QString("^2"), QString("^1")), QString("'^1' ^2"));
}

TEST_F(Messages, NumbersAreArgumentsToo)
{
    EXPECT_EQ(TranslateMsg("1:^1", qint32(50000)), QString("1:50000"));
    EXPECT_EQ(TranslateMsg("^1 (highest)", qint16(1)), QString("1 (highest)"));
}

TEST_F(Messages, FollowTheLanguageWhenTheyAreReloaded)
{
    Put("de/POBEX.LRT", {{"group", "Gruppe"}});
    Put("fr/POBEX.LRT", {{"group", "groupe"}});
    Speak("de_DE");
    EXPECT_EQ(TranslateMsg("group"), QString("Gruppe"));
    Speak("fr_FR");
    EXPECT_EQ(TranslateMsg("group"), QString("groupe"));
    Speak("en_GB");
    EXPECT_EQ(TranslateMsg("group"), QString("group"));
}

TEST_F(Messages, AFormFollowsTheLanguageInEveryDirection)
{
    Put("de/POBEX.LRT", {{"&Visible", "&Sichtbar"}});
    Put("fr/POBEX.LRT", {{"&Visible", "&Affichée"}});
    QCheckBox box("&Visible");
    for (const auto& [language, shown] : std::vector<Testing::MessagePair>{
             {"de", "&Sichtbar"},
             {"de", "&Sichtbar"},
             {"fr", "&Affichée"},
             {"en", "&Visible"},
             {"de", "&Sichtbar"}}) {
        Speak(language);
        TranslateForm(box);
        EXPECT_EQ(box.text(), shown) << qPrintable(language);
    }
}

TEST_F(Messages, AreBracketedAndLongerByHalfInThePseudoLanguage)
{
    const Testing::PseudoLanguage pseudo;
    EXPECT_EQ(TranslateMsg("Invalid Name"), QString("[Invalid Name~~~~~~]"));
}

} // namespace Orvane

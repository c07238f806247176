// SPDX-License-Identifier: MIT
#include "component/common/AddedTexts.h"

#include "component/common/MessageChoice.h"
#include "component/common/MessageTable.h"
#include "support/Errors.h"
#include "support/LinguistFile.h"

#include <OrvaneShellLib/IStyleEditorTexts.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class Added : public testing::Test
{
protected:
    static QByteArray Layer(const QString& translation)
    {
        return Testing::LinguistDocument({{"layer", translation}});
    }

    void Add(const QString& language, QByteArray document)
    {
        QBuffer device(&document);
        ASSERT_TRUE(device.open(QIODevice::ReadOnly));
        m_added.Add(language, device);
    }

    void Put(const QString& file, const QByteArray& bytes)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(m_folder.filePath(file)).path()));
        Testing::WriteFile(m_folder.filePath(file), bytes);
    }

    // What is shown for a text when the user speaks these languages.
    QString Shown(const QStringList& languages, const QString& text = "layer") const
    {
        MessageTable table;
        table.Load(CataloguesFor(m_folder.path(), m_added, languages));
        return table.Translate(text);
    }

    QString Refusal(const QString& language, const QByteArray& document)
    {
        const auto error = Testing::RaisedBy([&] { Add(language, document); });
        return error && error->Number() == IStyleEditorTexts::UnusableTexts ? error->Description()
                                                                            : QString();
    }

    QTemporaryDir m_folder; // of the component
    QTemporaryDir m_emptyFolder;
    AddedTexts m_added;
};

} // namespace

TEST_F(Added, TextsAreShownInTheirLanguageOnly)
{
    Add("nl", Layer("laag"));
    EXPECT_EQ(Shown({"nl-NL", "nl"}), "laag");
    EXPECT_EQ(Shown({"sv-SE", "sv"}), "layer");
    EXPECT_EQ(Shown({}), "layer");
}

TEST_F(Added, TextsOfALanguageThatTheComponentHasComeBeforeItsOwn)
{
    Put("de/POBEX.LRT", Testing::LinguistDocument({{"layer", "Layer (de)"}, {"group", "Gruppe"}}));
    Add("de", Layer("Ebene"));
    EXPECT_EQ(Shown({"de-AT", "de"}), "Ebene");
    EXPECT_EQ(Shown({"de-AT", "de"}, "group"), "Gruppe");
}

TEST_F(Added, TextsComeBeforeTheFileThatServesEveryLanguage)
{
    Put("POBEX.LRT", Testing::LinguistDocument({{"layer", "LAYER"}, {"group", "GROUP"}}));
    Add("nl", Layer("laag"));
    EXPECT_EQ(Shown({"nl"}), "laag");
    EXPECT_EQ(Shown({"nl"}, "group"), "GROUP");
    EXPECT_EQ(Shown({"sv"}), "LAYER");
}

TEST_F(Added, TextsAreNotMixedWithAnotherLanguage)
{
    Put("de/POBEX.LRT", Testing::LinguistDocument({{"group", "Gruppe"}}));
    Add("nl", Layer("laag"));
    EXPECT_EQ(Shown({"nl", "de"}, "group"), "group");
    EXPECT_EQ(Shown({"de", "nl"}), "layer");
}

TEST_F(Added, TextsOfACountryComeBeforeThoseOfItsLanguage)
{
    Add("pt_BR", Layer("camada (BR)"));
    Add("pt", Testing::LinguistDocument({{"layer", "camada"}, {"group", "grupo"}}));
    EXPECT_EQ(Shown({"pt-BR", "pt"}), "camada (BR)");
    EXPECT_EQ(Shown({"pt-Latn-BR", "pt-BR", "pt"}), "camada (BR)");
    EXPECT_EQ(Shown({"pt-BR", "pt"}, "group"), "grupo");
    EXPECT_EQ(Shown({"pt-PT", "pt"}), "camada");
}

TEST_F(Added, EnglishTextsReplaceTheComponentsWords)
{
    Add("en", Layer("sheet"));
    EXPECT_EQ(Shown({"en-GB", "en", "de"}), "sheet");
}

TEST_F(Added, TheLatestTextWins)
{
    Add("nl", Testing::LinguistDocument({{"layer", "laag"}, {"group", "groep"}}));
    Add("NL", Layer("kaartlaag"));
    EXPECT_EQ(Shown({"nl"}), "kaartlaag");
    EXPECT_EQ(Shown({"nl"}, "group"), "groep");
}

TEST_F(Added, ADocumentThatCannotBeUsedIsRefusedByItsLanguage)
{
    const QByteArray whole = Layer("laag");
    const QByteArray unfinished
        = QByteArray(whole).replace("<translation>", "<translation type=\"unfinished\">");
    for (const QByteArray& document : {QByteArray(), whole.chopped(4), QByteArray("\x7f\x01"), unfinished})
        EXPECT_TRUE(Refusal("nl", document).contains("\"nl\"")) << document.constData();
    EXPECT_EQ(Shown({"nl"}), "layer");
}

TEST_F(Added, WhatIsNoLanguageIsRefused)
{
    for (const char* language : {"", "n", "dutch language", "../nl", "nl-", "nl\n"})
        EXPECT_FALSE(Refusal(language, Layer("laag")).isEmpty()) << language;
}

TEST_F(Added, ADeviceThatIsNotOpenIsRefused)
{
    QBuffer closed;
    EXPECT_EQ(Testing::ErrorOf([&] { m_added.Add("nl", closed); }), IStyleEditorTexts::UnusableTexts);
}

TEST_F(Added, AFolderGivesAllItsLanguages)
{
    Put("host/nl/POBEX.LRT", Layer("laag"));
    Put("host/POBEX.pt-BR.ts", Layer("camada"));
    Put("host/other.txt", "no texts");
    m_added.AddFolder(m_folder.filePath("host"));
    EXPECT_EQ(Shown({"nl"}), "laag");
    EXPECT_EQ(Shown({"pt-BR"}), "camada");
}

TEST_F(Added, AFolderWithADamagedFileIsRefusedAsAWholeAndNamesTheFile)
{
    Put("host/nl/POBEX.LRT", Layer("laag"));
    Put("host/sv/POBEX.LRT", "damaged");
    const auto error = Testing::RaisedBy([&] { m_added.AddFolder(m_folder.filePath("host")); });
    ASSERT_TRUE(error.has_value());
    EXPECT_TRUE(error->Description().contains(QDir::toNativeSeparators("host/sv/POBEX.LRT")));
    EXPECT_EQ(Shown({"nl"}), "layer");
}

TEST_F(Added, AFolderWithoutTextsIsRefusedByItsName)
{
    for (const QString& folder : {m_emptyFolder.path(), m_emptyFolder.filePath("missing"), QString()}) {
        const auto error = Testing::RaisedBy([&] { m_added.AddFolder(folder); });
        ASSERT_TRUE(error.has_value());
        EXPECT_TRUE(error->Description().contains(QDir::toNativeSeparators(folder)));
    }
}

} // namespace Orvane

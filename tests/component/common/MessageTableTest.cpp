// SPDX-License-Identifier: MIT
#include "component/common/MessageTable.h"

#include "support/LinguistFile.h"

#include <QLabel>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class MessageTableFromFile : public testing::Test
{
protected:
    void Load(const QByteArray& bytes)
    {
        Testing::WriteFile(m_folder.filePath("POBEX.LRT"), bytes);
        m_table.LoadFile(m_folder.filePath("POBEX.LRT"));
    }

    QTemporaryDir m_folder;
    MessageTable m_table;
};

} // namespace

TEST_F(MessageTableFromFile, TranslatesByTheEnglishTextAlone)
{
    Load(Testing::LinguistDocument({{"Invalid Name", "Ungültiger Name"}}, "frmLayerStyles"));
    EXPECT_EQ(m_table.Translate("Invalid Name", MessageContext::Any), QString("Ungültiger Name"));
    EXPECT_EQ(m_table.Translate("Edit Name", MessageContext::Any), QString("Edit Name"));
}

TEST_F(MessageTableFromFile, StaysEnglishWithEveryUselessFile)
{
    const QByteArray whole = Testing::LinguistDocument({{"Invalid Name", "Ungültiger Name"}});
    for (const QByteArray& bytes :
         {QByteArray(), whole.chopped(3), QByteArray("\x7f\xff\x00\x01 random", 11)}) {
        Load(bytes);
        EXPECT_EQ(m_table.Translate("Invalid Name"), QString("Invalid Name"));
    }
    m_table.LoadFile(m_folder.filePath("missing"));
    EXPECT_EQ(m_table.Translate("Invalid Name"), QString("Invalid Name"));
}

TEST_F(MessageTableFromFile, LoadingReplacesWhatWasLoadedBefore)
{
    Load(Testing::LinguistDocument({{"group", "Gruppe"}}));
    Load(Testing::LinguistDocument({{"layer", "Layer (de)"}}));
    EXPECT_EQ(m_table.Translate("group"), QString("group"));
    EXPECT_EQ(m_table.Translate("layer"), QString("Layer (de)"));
}

TEST_F(MessageTableFromFile, TranslatesAForm)
{
    Load(Testing::LinguistDocument({{"Name:", "Name (de):"}}));
    QLabel form("Name:");
    m_table.TranslateForm(form);
    EXPECT_EQ(form.text(), QString("Name (de):"));
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "messages/MessageCatalogue.h"

#include "support/LinguistFile.h"
#include "support/ProcessorTime.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace Orvane {

namespace {

using Testing::LinguistDocument;

MessageCatalogue Read(QByteArray document)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return MessageCatalogue::FromDevice(buffer);
}

MessageCatalogue ReadMessage(const QByteArray& message)
{
    return Read("<TS><context><name>A</name>" + message + "</context></TS>");
}

} // namespace

TEST(MessageCatalogue, AFinishedEntryTranslatesItsText)
{
    const MessageCatalogue catalogue = Read(LinguistDocument({{"Delete", "Löschen"}}));
    EXPECT_EQ(catalogue.Translate("Delete"), QString("Löschen"));
    EXPECT_EQ(catalogue.Count(), 1);
}

TEST(MessageCatalogue, ATextWithoutAnEntryStaysAsItIs)
{
    const MessageCatalogue catalogue = Read(LinguistDocument({{"Delete", "Löschen"}}));
    EXPECT_EQ(catalogue.Translate("Insert"), QString("Insert"));
    EXPECT_FALSE(catalogue.Find("Insert"));
}

TEST(MessageCatalogue, TheKeyIsTheExactText)
{
    const MessageCatalogue catalogue = Read(LinguistDocument({{"Delete '^1'?", "'^1' löschen?"}}));
    EXPECT_EQ(catalogue.Translate("delete '^1'?"), QString("delete '^1'?"));
    EXPECT_EQ(catalogue.Translate("Delete '^2'?"), QString("Delete '^2'?"));
    EXPECT_EQ(catalogue.Translate("Delete '^1'?"), QString("'^1' löschen?"));
}

TEST(MessageCatalogue, AContextAsksOnlyItsOwnEntries)
{
    MessageCatalogue catalogue;
    catalogue.Add("Printer", "Scale", "Maßstab");
    catalogue.Add("Fish", "Scale", "Schuppe");
    EXPECT_EQ(catalogue.Translate("Scale", "Printer"), QString("Maßstab"));
    EXPECT_EQ(catalogue.Translate("Scale", "Fish"), QString("Schuppe"));
    EXPECT_EQ(catalogue.Translate("Scale", "Kitchen"), QString("Scale"));
}

TEST(MessageCatalogue, WithoutAContextTheFirstEntryOfAllCounts)
{
    MessageCatalogue catalogue;
    catalogue.Add("Printer", "Scale", "Maßstab");
    catalogue.Add("Fish", "Scale", "Schuppe");
    EXPECT_EQ(catalogue.Translate("Scale"), QString("Maßstab"));
    EXPECT_EQ(catalogue.Count(), 2);
}

TEST(MessageCatalogue, OfTwoEntriesForOneTextTheFirstStays)
{
    const MessageCatalogue catalogue = Read(LinguistDocument({{"Layer", "Ebene"}, {"Layer", "Schicht"}}));
    EXPECT_EQ(catalogue.Translate("Layer", "Test"), QString("Ebene"));
    EXPECT_EQ(catalogue.Count(), 1);
}

class UnusableEntry : public testing::TestWithParam<const char*>
{
};

TEST_P(UnusableEntry, DoesNotTranslate)
{
    const MessageCatalogue catalogue = ReadMessage(GetParam());
    EXPECT_EQ(catalogue.Translate("Delete"), QString("Delete"));
    EXPECT_TRUE(catalogue.IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    MessageCatalogue, UnusableEntry,
    testing::Values(
        "<message><source>Delete</source><translation type='unfinished'>Weg</translation></message>",
        "<message><source>Delete</source><translation type='vanished'>Weg</translation></message>",
        "<message><source>Delete</source><translation type='obsolete'>Weg</translation></message>",
        "<message><source>Delete</source><translation type='invented'>Weg</translation></message>",
        "<message><source>Delete</source><translation></translation></message>",
        "<message><source>Delete</source></message>", "<message><translation>Weg</translation></message>",
        "<message numerus='yes'><source>Delete</source><translation><numerusform>Weg</numerusform>"
        "</translation></message>"));

TEST(MessageCatalogue, AMissingFileIsAnEmptyCatalogue)
{
    EXPECT_TRUE(MessageCatalogue::FromFile("/no/such/folder/POBEX.LRT").IsEmpty());
    EXPECT_TRUE(MessageCatalogue::FromFile(QString()).IsEmpty());
}

TEST(MessageCatalogue, AFolderInTheFilesPlaceIsAnEmptyCatalogue)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(MessageCatalogue::FromFile(folder.path()).IsEmpty());
}

TEST(MessageCatalogue, AnEmptyFileIsAnEmptyCatalogue)
{
    EXPECT_TRUE(Read("").IsEmpty());
}

TEST(MessageCatalogue, AFileIsReadAsADeviceIs)
{
    const QTemporaryDir folder;
    Testing::WriteFile(folder.filePath("a.ts"), LinguistDocument({{"Delete", "Löschen"}}));
    EXPECT_EQ(MessageCatalogue::FromFile(folder.filePath("a.ts")).Translate("Delete"), QString("Löschen"));
}

TEST(MessageCatalogue, AFileOfTheMaximumSizeIsReadAndALargerOneIsNot)
{
    QByteArray document = LinguistDocument({{"Delete", "Löschen"}});
    document.append(MessageCatalogue::MaximumSize - document.size(), '\n');
    EXPECT_EQ(Read(document).Count(), 1);
    EXPECT_TRUE(Read(document + '\n').IsEmpty());
}

TEST(MessageCatalogue, OnlyRegularFilesAreRead)
{
    const Testing::ProcessorTime time(std::chrono::seconds(10));
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath("pipe"));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    EXPECT_TRUE(MessageCatalogue::FromFile(folder.filePath("pipe")).IsEmpty());
    EXPECT_TRUE(MessageCatalogue::FromFile(folder.path()).IsEmpty());
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "hostkit/common/MapNotes.h"

#include "hostkit/HostKitTest.h"
#include "store/opening/LayerStores.h"

#include <QTemporaryDir>

namespace Orvane::Testing {

namespace {

const QString Key = QStringLiteral("Editor.Key");

class MapNotesTest : public HostKitTest
{
};

TEST_F(MapNotesTest, AreEmptyUntilTheyAreWritten)
{
    EXPECT_EQ(MapNotes::Read(Database(), Key), QString());
    MapNotes::Write(Database(), Key, {});
    EXPECT_FALSE(Database().HasTable(QStringLiteral("MapNotes")));
}

TEST_F(MapNotesTest, KeepTheLastTextOfEachKey)
{
    MapNotes::Write(Database(), Key, QStringLiteral("first"));
    MapNotes::Write(Database(), Key, QStringLiteral("it's second"));
    MapNotes::Write(Database(), QStringLiteral("Other"), QStringLiteral("other"));
    EXPECT_EQ(MapNotes::Read(Database(), Key), QStringLiteral("it's second"));
    MapNotes::Write(Database(), Key, {});
    EXPECT_EQ(MapNotes::Read(Database(), Key), QString());
    EXPECT_EQ(MapNotes::Read(Database(), QStringLiteral("Other")), QStringLiteral("other"));
}

TEST_F(MapNotesTest, AreReadAndReplacedTogether)
{
    using Notes = QMap<QString, QString>;
    EXPECT_EQ(MapNotes::ReadAll(Database()), Notes());
    EXPECT_FALSE(MapNotes::ReplaceAll(Database(), {}));
    MapNotes::Write(Database(), Key, QStringLiteral("text"));
    const Notes wanted{
        {QStringLiteral("A"), QStringLiteral("a")}, {QStringLiteral("B"), QStringLiteral("b")}};
    EXPECT_TRUE(MapNotes::ReplaceAll(Database(), wanted));
    EXPECT_EQ(MapNotes::ReadAll(Database()), wanted);
    EXPECT_FALSE(MapNotes::ReplaceAll(Database(), wanted));
}

TEST_F(MapNotesTest, AreEmptyInATableOfAnotherProgram)
{
    Database().Execute(QStringLiteral("CREATE TABLE MapNotes (ID INTEGER PRIMARY KEY, Remark TEXT)"));
    EXPECT_EQ(MapNotes::Read(Database(), Key), QString());
}

TEST_F(MapNotesTest, GoWithACopyOfTheMapAndAreReadFromOneThatCannotBeChanged)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("copy.ovl"));
    MapNotes::Write(Database(), Key, QStringLiteral("text"));
    Database().CopyToFile(path);
    const auto copy = LayerStores::Open(path, OpenMode::ReadOnly);
    EXPECT_EQ(MapNotes::Read(*copy, Key), QStringLiteral("text"));
}

} // namespace

} // namespace Orvane::Testing

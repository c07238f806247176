// SPDX-License-Identifier: MIT
#include "store/copying/StoreCopy.h"

#include "store/copying/CopyTest.h"

#include <limits>

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);

using StoreCopyTest = CopyTest;

StoreTable Notes()
{
    using Nulls = StoreColumn::Nulls;
    const auto layerID = QStringLiteral("LayerID");
    const auto noteID = QStringLiteral("NoteID");
    return {
        QStringLiteral("PlaceNotes"),
        {{noteID, StoreType::Whole},
         {layerID, StoreType::Whole, Nulls::Allowed, {}, QStringLiteral("Layers"), layerID},
         {QStringLiteral("Text"), StoreType::Text, Nulls::Refused, QStringLiteral("'none'")},
         {QStringLiteral("Height"), StoreType::Real},
         {QStringLiteral("IsShown"), StoreType::Flag},
         {QStringLiteral("Remark"), StoreType::Text}},
        {noteID},
        {QStringLiteral("Text")},
        {layerID}};
}

// What easily gets lost on the way between two stores.
void AddOddValues(ILayerStore& store)
{
    const std::vector<QString> texts{
        QStringLiteral(""),
        QStringLiteral("NULL"),
        QStringLiteral("Roads"),
        QStringLiteral("roads"),
        QStringLiteral("ROADS"),
        QStringLiteral("it's \"quoted\" {1,2} \\N \\. %1 ?1 $1"),
        QStringLiteral("lines\n\r\tand tabs"),
        QString::fromUtf8("\xf0\x9f\x97\xba W\xc3\xa4lder \xe6\xa3\xae")};
    qint32 id = 0;
    for (const QString& text : texts) {
        Execute(store, "INSERT INTO Layers (LayerID, Name) VALUES (?1, ?2)", {++id, text});
        Execute(store, "INSERT INTO PlaceNotes (NoteID, LayerID, Text) VALUES (?1, ?1, ?2)", {id, text});
    }
    Execute(store, "UPDATE Layers SET Name = NULL, Code = NULL, Visible = NULL WHERE LayerID = 1");
    using Limits = std::numeric_limits<double>;
    const std::vector<double> numbers{
        1e308,
        -0.0,
        Limits::denorm_min(),
        Limits::infinity(),
        -Limits::infinity(),
        0.1,
        123456789012345680.0,
        Limits::quiet_NaN(),
        -2147483649.0};
    id = 0;
    for (const double number : numbers)
        Execute(
            store, "UPDATE PlaceNotes SET Height = ?2, IsShown = ?3 WHERE NoteID = ?1",
            {++id, number, id % 2 == 0});
    for (const qint32 number : {std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()})
        Execute(store, "INSERT INTO Layers (LayerID, Color) VALUES (?1, ?1)", {number});
    Execute(store, "UPDATE PlaceNotes SET Remark = ?1 WHERE NoteID > 3", {QString(1 << 20, u'x')});
    Execute(store, "INSERT INTO LayerGroups (ID, Name, Expanded) VALUES (-7, 'Group', TRUE)");
    Execute(store, "INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering) VALUES (-7, 2, 5)");
}

} // namespace

TEST_F(StoreCopyTest, OddValuesAreTheSameOnAServerAndInAFileAgain)
{
    m_file->PrepareTable(Notes());
    AddOddValues(*m_file);
    const QStringList before = Everything(*m_file);
    CopyStore(*m_file, *m_server);
    EXPECT_EQ(Everything(*m_server), before);
    m_server->CopyToFile(Path("back.orvane"));
    EXPECT_EQ(Everything(*LayerStores::Open(Path("back.orvane"))), before);
}

TEST_F(StoreCopyTest, AMapInMemoryAndOneOnAServerAreCopiedToAServer)
{
    const auto memory = LayerStores::CreateInMemory();
    AddLayers(*memory, 3);
    CopyStore(*memory, *m_server);
    EXPECT_EQ(Everything(*m_server), Everything(*memory));
    const QString second = SharedServer().Place(QStringLiteral("Second map"));
    {
        const auto copy = LayerStores::Create(second);
        CopyStore(*m_server, *copy);
        EXPECT_EQ(Everything(*copy), Everything(*memory));
    }
    Other()->Run("DROP SCHEMA \"Second map\" CASCADE");
}

TEST_F(StoreCopyTest, TablesOfAHostAreMadeAsTheyWere)
{
    m_file->PrepareTable(Notes());
    AddLayers(*m_file, 2);
    Execute(*m_file, "INSERT INTO PlaceNotes (NoteID, LayerID, Text) VALUES (41, 2, 'old')");
    CopyStore(*m_file, *m_server);
    m_server->CopyToFile(Path("back.orvane"));
    const auto back = LayerStores::Open(Path("back.orvane"));
    for (ILayerStore* store : {m_server.get(), back.get()}) {
        Execute(*store, "INSERT INTO PlaceNotes (LayerID) VALUES (1)");
        EXPECT_EQ(NumberIn(*store, "SELECT NoteID AS N FROM PlaceNotes WHERE Text = 'none'"), 42);
        EXPECT_EQ(ErrorOf([&] { Execute(*store, "INSERT INTO PlaceNotes (Text) VALUES ('old')"); }), Failure)
            << "a text is unique";
        EXPECT_EQ(ErrorOf([&] { Execute(*store, "INSERT INTO PlaceNotes (LayerID) VALUES (9)"); }), Failure)
            << "there is no layer 9";
        Execute(*store, "DELETE FROM Layers WHERE LayerID = 2");
        EXPECT_EQ(NumberIn(*store, "SELECT count(*) AS N FROM PlaceNotes"), 1);
        Execute(*store, "INSERT INTO Layers (Name) VALUES ('new')");
        EXPECT_GT(NumberIn(*store, "SELECT LayerID AS N FROM Layers WHERE Name = 'new'"), 1);
    }
}

TEST_F(StoreCopyTest, RowsMayReferToOthersOfTheirTable)
{
    StoreTable parts = Notes();
    parts.name = QStringLiteral("Parts");
    parts.columns[1].refersTo = parts.name;
    parts.columns[1].refersToColumn = parts.columns.front().name;
    m_file->PrepareTable(parts);
    Execute(*m_file, "INSERT INTO Parts (NoteID, Text) VALUES (9, 'whole')");
    Execute(*m_file, "INSERT INTO Parts (NoteID, LayerID, Text) VALUES (1, 9, 'part')");
    CopyStore(*m_file, *m_server);
    m_server->CopyToFile(Path("back.orvane"));
    EXPECT_EQ(Everything(*LayerStores::Open(Path("back.orvane"))), Everything(*m_file));
}

TEST_F(StoreCopyTest, WhatWasThereBeforeIsGone)
{
    AddLayers(*m_server, 5);
    m_server->PrepareTable(Notes());
    Execute(*m_server, "INSERT INTO PlaceNotes (LayerID) VALUES (5)");
    AddLayers(*m_file, 1);
    CopyStore(*m_file, *m_server);
    EXPECT_EQ(Everything(*m_server), Everything(*m_file));
}

TEST_F(StoreCopyTest, NumbersOfAFileThatAreFlagsOnTheServerBecomeTrue)
{
    AddLayers(*m_file, 2);
    Execute(*m_file, "UPDATE Layers SET Visible = -1 WHERE LayerID = 1");
    Execute(*m_file, "UPDATE Layers SET Visible = 0 WHERE LayerID = 2");
    CopyStore(*m_file, *m_server);
    EXPECT_EQ(NumberIn(*m_server, "SELECT LayerID AS N FROM Layers WHERE Visible"), 1);
}

TEST_F(StoreCopyTest, ValuesThatDoNotFitAreNamedAndNothingIsStored)
{
    AddLayers(*m_file, 30);
    Execute(*m_file, "UPDATE Layers SET Code = 'red' WHERE LayerID = 2");
    Execute(*m_file, "UPDATE Layers SET Priority = 2.5 WHERE LayerID > 10");
    Execute(*m_file, "UPDATE Layers SET Name = x'00FF' WHERE LayerID = 3");
    const QString text = DescriptionOf([&] { CopyStore(*m_file, *m_server); });
    EXPECT_TRUE(text.contains(QStringLiteral("Layers 2, Code: \"red\""))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("Layers 3, Name"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("Layers 11, Priority: 2.5"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("(+14)"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("file.orvane"))) << qPrintable(text);
    EXPECT_EQ(Everything(*m_server), QStringList());
}

TEST_F(StoreCopyTest, ANameThatIsTooLongForAServerIsNamed)
{
    AddLayers(*m_file, 3);
    QString name;
    for (int i = 0; i < 3000; ++i) // nothing that could be compressed
        name += QChar(ushort(0x4E00 + i * i % 20000));
    Execute(*m_file, "UPDATE Layers SET Name = ?1 WHERE LayerID = 2", {name});
    const QString text = DescriptionOf([&] { CopyStore(*m_file, *m_server); });
    EXPECT_TRUE(text.contains(QStringLiteral("Layers 2, Name: "))) << qPrintable(text);
    EXPECT_EQ(Everything(*m_server), QStringList());
}

TEST_F(StoreCopyTest, RowsThatReferToMissingOnesAreTold)
{
    AddLayers(*m_file, 1);
    Execute(*m_file, "PRAGMA foreign_keys = OFF");
    Execute(*m_file, "INSERT INTO LayerGroupMembers (GroupID, LayerID) VALUES (8, 1)");
    const QString text = DescriptionOf([&] { CopyStore(*m_file, *m_server); });
    EXPECT_TRUE(text.contains(QStringLiteral("\"LayerGroupMembers\""))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("--repair"))) << qPrintable(text);
    EXPECT_EQ(Everything(*m_server), QStringList());
}

TEST_F(StoreCopyTest, AFileThatIsToStayStays)
{
    AddLayers(*m_server, 1);
    m_file.reset();
    EXPECT_EQ(ErrorOf([&] { m_server->CopyToFile(Path("file.orvane")); }), Failure);
    EXPECT_EQ(Everything(*LayerStores::Open(Path("file.orvane"))), QStringList());
    m_server->CopyToFile(Path("file.orvane"), IfExists::Replace);
    EXPECT_EQ(Everything(*LayerStores::Open(Path("file.orvane"))), Everything(*m_server));
}

TEST_F(StoreCopyTest, AMapThatIsOpenedForReadingIsCopiedButNotReplaced)
{
    AddLayers(*m_server, 2);
    const auto reader = LayerStores::Open(m_place, OpenMode::ReadOnly);
    reader->CopyToFile(Path("copy.orvane"));
    EXPECT_EQ(Everything(*LayerStores::Open(Path("copy.orvane"))), Everything(*m_server));
    EXPECT_EQ(ErrorOf([&] { CopyStore(*m_file, *reader); }), int(ErrorNumber::DatabaseReadOnly));
}

} // namespace Orvane::Testing

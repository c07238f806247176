// SPDX-License-Identifier: MIT
#include "store/sqlite/SqliteLayerDatabase.h"

#include "store/sqlite/StoreTest.h"

#include <QDir>
#include <QStringList>

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);
const auto ReadOnlyError = int(ErrorNumber::DatabaseReadOnly);

class SqliteLayerDatabaseTest : public StoreTest
{
};

} // namespace

TEST_F(SqliteLayerDatabaseTest, WhatWasStoredIsThereAfterReopening)
{
    const QString path = MadeFile();
    {
        const auto layer = SqliteLayerDatabase::Open(path);
        const auto row = SeekLayer(*layer, 2);
        row->Edit();
        row->SetField("Name", QStringLiteral("Rivers"));
        row->Update();
    }
    EXPECT_EQ(NameOfLayer(*SqliteLayerDatabase::Open(path), 2), QStringLiteral("Rivers"));
}

TEST_F(SqliteLayerDatabaseTest, AClosedDatabaseIsOneFile)
{
    MadeFile();
    EXPECT_EQ(FilesThere(), QStringList{QStringLiteral("map.ovl")});
}

TEST_F(SqliteLayerDatabaseTest, ItKnowsItsFile)
{
    const QString path = MadeFile();
    EXPECT_EQ(SqliteLayerDatabase::Open(path)->Path(), path);
    EXPECT_TRUE(SqliteLayerDatabase::CreateInMemory()->Path().isEmpty());
}

TEST_F(SqliteLayerDatabaseTest, CreatingNeverOverwrites)
{
    const QString path = FileWith("precious");
    EXPECT_EQ(ErrorOf([&] { SqliteLayerDatabase::Create(path); }), Failure);
    EXPECT_EQ(BytesOf(path), QByteArray("precious"));
}

TEST_F(SqliteLayerDatabaseTest, CreatingWhereThereIsNoDirectoryIsAClearError)
{
    const QString path = PathOf(QStringLiteral("missing/map.ovl"));
    EXPECT_EQ(ErrorOf([&] { SqliteLayerDatabase::Create(path); }), Failure);
    EXPECT_EQ(ErrorOf([&] { SqliteLayerDatabase::Create(QString()); }), Failure);
    EXPECT_TRUE(FilesThere().isEmpty());
}

TEST_F(SqliteLayerDatabaseTest, CommitsAreOnTheDiskBeforeTheyReturn)
{
    const auto database = SqliteLayerDatabase::Open(MadeFile());
    EXPECT_EQ(
        ToInt32(database->OpenQuery(QStringLiteral("SELECT synchronous FROM pragma_synchronous"))
                    ->Field("synchronous")),
        2);
}

TEST_F(SqliteLayerDatabaseTest, ForeignKeysAreKept)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    EXPECT_EQ(ErrorOf([&] { AddMember(*database, 1, 1, 0); }), Failure);
}

TEST_F(SqliteLayerDatabaseTest, TheSchemaCannotBeRewrittenByHand)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    database->Execute(QStringLiteral("PRAGMA writable_schema = ON"));
    EXPECT_EQ(
        ErrorOf([&] { database->Execute(QStringLiteral("UPDATE sqlite_master SET sql = 'nonsense'")); }),
        Failure);
}

TEST_F(SqliteLayerDatabaseTest, ADatabaseOpenedForReadingRefusesEveryChange)
{
    const QString path = MadeFile();
    const auto database = SqliteLayerDatabase::Open(path, OpenMode::ReadOnly);
    EXPECT_TRUE(database->IsReadOnly());
    const auto layer = SeekLayer(*database, 1);
    EXPECT_EQ(ErrorOf([&] { layer->Edit(); }), ReadOnlyError);
    EXPECT_EQ(ErrorOf([&] { AddLayer(*database, 9, QStringLiteral("New")); }), ReadOnlyError);
    EXPECT_EQ(ErrorOf([&] { database->Execute(QStringLiteral("PRAGMA user_version = 7")); }), ReadOnlyError);
    EXPECT_EQ(NameOfLayer(*database, 1), QStringLiteral("Layer 1"));
}

TEST_F(SqliteLayerDatabaseTest, ADatabaseOpenedForReadingKnowsTransactions)
{
    const auto database = SqliteLayerDatabase::Open(MadeFile(), OpenMode::ReadOnly);
    database->BeginTrans();
    EXPECT_EQ(NameOfLayer(*database, 1), QStringLiteral("Layer 1"));
    database->CommitTrans();
}

TEST_F(SqliteLayerDatabaseTest, AReaderSeesWhatAnotherConnectionStores)
{
    const QString path = MadeFile();
    const auto reader = SqliteLayerDatabase::Open(path, OpenMode::ReadOnly);
    RawDatabase(path).Run("UPDATE Layers SET Name = 'Rivers' WHERE LayerID = 1");
    EXPECT_EQ(NameOfLayer(*reader, 1), QStringLiteral("Rivers"));
}

TEST_F(SqliteLayerDatabaseTest, ADatabaseOpenedForWritingIsNotReadOnly)
{
    EXPECT_FALSE(SqliteLayerDatabase::Open(MadeFile())->IsReadOnly());
    EXPECT_FALSE(SqliteLayerDatabase::CreateInMemory()->IsReadOnly());
}

TEST_F(SqliteLayerDatabaseTest, ExecuteBindsValuesOfEveryKind)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    database->Execute(QStringLiteral("CREATE TABLE Host (A, B, C, D, E)"));
    database->Execute(
        QStringLiteral("INSERT INTO Host VALUES (?1, ?2, ?3, ?4, ?5)"),
        {true, qint16(-3), 2.5, QStringLiteral("it's"), Value::Null()});
    const auto row = database->OpenRecordset(QStringLiteral("SELECT * FROM Host"));
    EXPECT_EQ(ToInt32(row->Field("A")), 1);
    EXPECT_EQ(ToInt32(row->Field("B")), -3);
    EXPECT_EQ(ToDouble(row->Field("C")), 2.5);
    EXPECT_EQ(ToText(row->Field("D")), QStringLiteral("it's"));
    EXPECT_TRUE(row->Field("E").IsNull());
}

TEST_F(SqliteLayerDatabaseTest, ExecuteRefusesAnotherNumberOfValues)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    const auto sql = QStringLiteral("DELETE FROM Layers WHERE LayerID = ?1");
    EXPECT_EQ(ErrorOf([&] { database->Execute(sql); }), Failure);
    EXPECT_EQ(ErrorOf([&] { database->Execute(sql, {1, 2}); }), Failure);
    EXPECT_EQ(ErrorOf([&] { database->Execute(sql, {Value()}); }), int(ErrorNumber::TypeMismatch));
}

TEST_F(SqliteLayerDatabaseTest, ExecuteRefusesTextsThatAreNotOneStatement)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    EXPECT_EQ(ErrorOf([&] { database->Execute(QString()); }), Failure);
    EXPECT_EQ(ErrorOf([&] { database->Execute(QStringLiteral("nonsense")); }), Failure);
    EXPECT_EQ(
        ErrorOf([&] { database->Execute(QStringLiteral("DELETE FROM Layers; DELETE FROM LayerGroups")); }),
        Failure);
    EXPECT_EQ(ErrorOf([&] { database->Execute(QStringLiteral("DELETE FROM Layers; ")); }), 0);
}

TEST_F(SqliteLayerDatabaseTest, AStatementThatFailedCanBeRunAgain)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    AddLayer(*database, 1, QStringLiteral("First"));
    EXPECT_EQ(ErrorOf([&] { AddLayer(*database, 1, QStringLiteral("Again")); }), Failure);
    AddLayer(*database, 2, QStringLiteral("Second"));
    EXPECT_EQ(NameOfLayer(*database, 2), QStringLiteral("Second"));
}

TEST_F(SqliteLayerDatabaseTest, AStatementTellsHowManyRowsItChanged)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    EXPECT_EQ(database->Execute(QStringLiteral("INSERT INTO Layers (Name) VALUES ('A'), ('B')")), 2);
    EXPECT_EQ(database->Execute(QStringLiteral("UPDATE Layers SET Code = 1 WHERE LayerID = 1")), 1);
    EXPECT_EQ(database->Execute(QStringLiteral("SELECT Name FROM Layers")), 0);
    EXPECT_EQ(database->Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 7")), 0);
}

TEST_F(SqliteLayerDatabaseTest, TheListenerHearsEachTextInItsOrder)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    AddLayer(*database, 1, QStringLiteral("Layer"));
    QStringList texts;
    database->SetQueryListener([&](const QString& sql) { texts << sql; });
    const auto list = QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name");
    database->OpenRecordset(list);
    SeekLayer(*database, 1);
    database->BeginTrans();
    database->Rollback();
    EXPECT_EQ(
        texts,
        (QStringList{
            list, QStringLiteral("SELECT * FROM Layers WHERE LayerID = ?1"), QStringLiteral("BEGIN"),
            QStringLiteral("ROLLBACK")}));
}

TEST_F(SqliteLayerDatabaseTest, AnEmptyListenerHearsNothing)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    int texts = 0;
    database->SetQueryListener([&](const QString&) { ++texts; });
    database->SetQueryListener({});
    AddLayer(*database, 1, QStringLiteral("Layer"));
    EXPECT_EQ(texts, 0);
}

TEST_F(SqliteLayerDatabaseTest, AListenerThatThrowsDoesNoHarm)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    database->SetQueryListener([](const QString&) { throw std::runtime_error("listener"); });
    AddLayer(*database, 1, QStringLiteral("Layer"));
    EXPECT_EQ(NameOfLayer(*database, 1), QStringLiteral("Layer"));
}

TEST_F(SqliteLayerDatabaseTest, OpenTransactionsAreUndoneWhenItCloses)
{
    const QString path = MadeFile();
    {
        const auto database = SqliteLayerDatabase::Open(path);
        database->BeginTrans();
        AddLayer(*database, 77, QStringLiteral("Lost"));
    }
    EXPECT_TRUE(SeekLayer(*SqliteLayerDatabase::Open(path), 77)->NoMatch());
    EXPECT_EQ(FilesThere().size(), 1);
}

TEST_F(SqliteLayerDatabaseTest, DamageThatShowsOnlyWhileReadingIsCalledDamage)
{
    const QString path = MadeFile(500);
    RawDatabase holder(path);
    holder.Run(
        "UPDATE Layers SET Code = 1 WHERE LayerID = 1"); // its journal keeps the file from being checked
    QByteArray bytes = BytesOf(path);
    bytes.replace(8192, bytes.size() - 8192, QByteArray(bytes.size() - 8192, char(0xAB)));
    FileWith(bytes, QStringLiteral("map.ovl"));
    EXPECT_EQ(
        ErrorOf([&] {
            const auto database = SqliteLayerDatabase::Open(path, OpenMode::ReadOnly);
            for (qint32 id = 1; id <= 500; ++id)
                SeekLayer(*database, id);
        }),
        int(ErrorNumber::NotALayerDatabase));
}

} // namespace Orvane::Testing

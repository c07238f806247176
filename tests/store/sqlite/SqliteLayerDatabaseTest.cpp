// SPDX-License-Identifier: MIT
#include "store/sqlite/SqliteLayerDatabase.h"

#include "store/sqlite/StoreTest.h"

#include <QStringList>

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);

class SqliteLayerDatabaseTest : public StoreTest
{
};

} // namespace

TEST_F(SqliteLayerDatabaseTest, AClosedDatabaseIsOneFile)
{
    MadeFile();
    EXPECT_EQ(FilesThere(), QStringList{QStringLiteral("map.ovl")});
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

TEST_F(SqliteLayerDatabaseTest, TheSchemaCannotBeRewrittenByHand)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    database->Execute(QStringLiteral("PRAGMA writable_schema = ON"));
    EXPECT_EQ(
        ErrorOf([&] { database->Execute(QStringLiteral("UPDATE sqlite_master SET sql = 'nonsense'")); }),
        Failure);
}

TEST_F(SqliteLayerDatabaseTest, ADatabaseOpenedForReadingKeepsItsVersion)
{
    const auto database = SqliteLayerDatabase::Open(MadeFile(), OpenMode::ReadOnly);
    EXPECT_EQ(
        ErrorOf([&] { database->Execute(QStringLiteral("PRAGMA user_version = 7")); }),
        int(ErrorNumber::DatabaseReadOnly));
}

TEST_F(SqliteLayerDatabaseTest, AColumnWithoutATypeTakesValuesOfEveryKind)
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

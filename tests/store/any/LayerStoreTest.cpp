// SPDX-License-Identifier: MIT
#include "store/StoreTable.h"
#include "store/any/AnyStoreTest.h"

#include <QStringList>

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);
const auto ReadOnlyError = int(ErrorNumber::DatabaseReadOnly);

/// What each layer store does.
class LayerStoreTest : public AnyStoreTest
{
};

} // namespace

TEST_F(LayerStoreTest, WhatWasStoredIsThereAfterReopening)
{
    const QString path = MadeStore();
    {
        const auto layer = Opened(path);
        const auto row = SeekLayer(*layer, 2);
        row->Edit();
        row->SetField("Name", QStringLiteral("Rivers"));
        row->Update();
    }
    EXPECT_EQ(NameOfLayer(*Opened(path), 2), QStringLiteral("Rivers"));
}

TEST_F(LayerStoreTest, ItKnowsItsPlace)
{
    const QString path = MadeStore();
    EXPECT_EQ(Opened(path)->Path(), path);
}

TEST_F(LayerStoreTest, CreatingNeverReplacesAStore)
{
    const QString path = MadeStore();
    EXPECT_EQ(ErrorOf([&] { m_maker.Create(path); }), Failure);
    EXPECT_EQ(NameOfLayer(*Opened(path), 1), QStringLiteral("Layer 1"));
}

TEST_F(LayerStoreTest, OneThatIsNotThereCannotBeOpened)
{
    EXPECT_EQ(ErrorOf([&] { Opened(m_maker.PlaceOf(QStringLiteral("missing.ovl"))); }), Failure);
}

TEST_F(LayerStoreTest, ForeignKeysAreKept)
{
    const auto database = NamelessStore();
    EXPECT_EQ(ErrorOf([&] { AddMember(*database, 1, 1, 0); }), Failure);
}

TEST_F(LayerStoreTest, ADatabaseOpenedForReadingRefusesEveryChange)
{
    const QString path = MadeStore();
    const auto database = Opened(path, OpenMode::ReadOnly);
    EXPECT_TRUE(database->IsReadOnly());
    const auto layer = SeekLayer(*database, 1);
    EXPECT_EQ(ErrorOf([&] { layer->Edit(); }), ReadOnlyError);
    EXPECT_EQ(ErrorOf([&] { AddLayer(*database, 9, QStringLiteral("New")); }), ReadOnlyError);
    EXPECT_EQ(NameOfLayer(*database, 1), QStringLiteral("Layer 1"));
}

TEST_F(LayerStoreTest, ADatabaseOpenedForReadingKnowsTransactions)
{
    const auto database = Opened(MadeStore(), OpenMode::ReadOnly);
    database->BeginTrans();
    EXPECT_EQ(NameOfLayer(*database, 1), QStringLiteral("Layer 1"));
    database->CommitTrans();
}

TEST_F(LayerStoreTest, AReaderSeesWhatAnotherConnectionStores)
{
    const QString path = MadeStore();
    const auto reader = Opened(path, OpenMode::ReadOnly);
    m_maker.OtherProgram(path)->Run("UPDATE Layers SET Name = 'Rivers' WHERE LayerID = 1");
    EXPECT_EQ(NameOfLayer(*reader, 1), QStringLiteral("Rivers"));
}

TEST_F(LayerStoreTest, ADatabaseOpenedForWritingIsNotReadOnly)
{
    EXPECT_FALSE(Opened(MadeStore())->IsReadOnly());
    EXPECT_FALSE(NamelessStore()->IsReadOnly());
}

TEST_F(LayerStoreTest, ExecuteBindsValuesOfEveryKind)
{
    const auto database = NamelessStore();
    database->PrepareTable(
        {QStringLiteral("Host"),
         {{QStringLiteral("A"), StoreType::Flag},
          {QStringLiteral("B"), StoreType::Whole, StoreColumn::Nulls::Refused},
          {QStringLiteral("C"), StoreType::Real},
          {QStringLiteral("D"), StoreType::Text},
          {QStringLiteral("E"), StoreType::Text}},
         {QStringLiteral("B")}});
    database->Execute(
        QStringLiteral("INSERT INTO Host VALUES (?1, ?2, ?3, ?4, ?5)"),
        {true, qint16(-3), 2.5, QStringLiteral("it's"), Value::Null()});
    const auto row = database->OpenRecordset(QStringLiteral("SELECT * FROM Host"));
    EXPECT_TRUE(ToBoolean(row->Field("A")));
    EXPECT_EQ(ToInt32(row->Field("B")), -3);
    EXPECT_EQ(ToDouble(row->Field("C")), 2.5);
    EXPECT_EQ(ToText(row->Field("D")), QStringLiteral("it's"));
    EXPECT_TRUE(row->Field("E").IsNull());
}

TEST_F(LayerStoreTest, ExecuteRefusesAnotherNumberOfValues)
{
    const auto database = NamelessStore();
    const auto sql = QStringLiteral("DELETE FROM Layers WHERE LayerID = ?1");
    EXPECT_EQ(ErrorOf([&] { database->Execute(sql); }), Failure);
    EXPECT_EQ(ErrorOf([&] { database->Execute(sql, {1, 2}); }), Failure);
    EXPECT_EQ(ErrorOf([&] { database->Execute(sql, {Value()}); }), int(ErrorNumber::TypeMismatch));
}

TEST_F(LayerStoreTest, ExecuteRefusesTextsThatAreNotOneStatement)
{
    const auto database = NamelessStore();
    EXPECT_EQ(ErrorOf([&] { database->Execute(QString()); }), Failure);
    EXPECT_EQ(ErrorOf([&] { database->Execute(QStringLiteral("nonsense")); }), Failure);
    EXPECT_EQ(
        ErrorOf([&] { database->Execute(QStringLiteral("DELETE FROM Layers; DELETE FROM LayerGroups")); }),
        Failure);
    EXPECT_EQ(ErrorOf([&] { database->Execute(QStringLiteral("DELETE FROM Layers; ")); }), 0);
}

TEST_F(LayerStoreTest, AStatementThatFailedCanBeRunAgain)
{
    const auto database = NamelessStore();
    AddLayer(*database, 1, QStringLiteral("First"));
    EXPECT_EQ(ErrorOf([&] { AddLayer(*database, 1, QStringLiteral("Again")); }), Failure);
    AddLayer(*database, 2, QStringLiteral("Second"));
    EXPECT_EQ(NameOfLayer(*database, 2), QStringLiteral("Second"));
}

TEST_F(LayerStoreTest, AStatementTellsHowManyRowsItChanged)
{
    const auto database = NamelessStore();
    EXPECT_EQ(database->Execute(QStringLiteral("INSERT INTO Layers (Name) VALUES ('A'), ('B')")), 2);
    EXPECT_EQ(database->Execute(QStringLiteral("UPDATE Layers SET Code = 1 WHERE LayerID = 1")), 1);
    EXPECT_EQ(database->Execute(QStringLiteral("SELECT Name FROM Layers")), 0);
    EXPECT_EQ(database->Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 7")), 0);
}

TEST_F(LayerStoreTest, TheListenerHearsTheTextOfAStatement)
{
    const auto database = NamelessStore();
    QStringList texts;
    database->SetQueryListener([&](const QString& sql) { texts << sql; });
    const auto list = QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name");
    database->OpenRecordset(list);
    const auto named = QStringLiteral("UPDATE Layers SET Name = ?1 WHERE LayerID = ?2");
    database->Execute(named, {QStringLiteral("Rivers"), 1});
    EXPECT_EQ(texts, (QStringList{list, named}));
}

TEST_F(LayerStoreTest, AnEmptyListenerHearsNothing)
{
    const auto database = NamelessStore();
    int texts = 0;
    database->SetQueryListener([&](const QString&) { ++texts; });
    database->SetQueryListener({});
    AddLayer(*database, 1, QStringLiteral("Layer"));
    EXPECT_EQ(texts, 0);
}

TEST_F(LayerStoreTest, AListenerThatThrowsDoesNoHarm)
{
    const auto database = NamelessStore();
    database->SetQueryListener([](const QString&) { throw std::runtime_error("listener"); });
    AddLayer(*database, 1, QStringLiteral("Layer"));
    EXPECT_EQ(NameOfLayer(*database, 1), QStringLiteral("Layer"));
}

TEST_F(LayerStoreTest, OpenTransactionsAreUndoneWhenItCloses)
{
    const QString path = MadeStore();
    {
        const auto database = Opened(path);
        database->BeginTrans();
        AddLayer(*database, 77, QStringLiteral("Lost"));
    }
    EXPECT_TRUE(SeekLayer(*Opened(path), 77)->NoMatch());
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/StoreTable.h"
#include "store/any/AnyStoreTest.h"

#include <gmock/gmock.h>
#include <limits>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

class AppliedChanges : public AnyStoreTest
{
protected:
    AppliedChanges()
    {
        for (int id = 1; id <= 3; ++id)
            AddLayer(*m_database, id, QStringLiteral("Layer %1").arg(id));
        AddGroup(*m_database, 5, QStringLiteral("Group"), 0);
        AddMember(*m_database, 5, 1, 0);
        AddMember(*m_database, 5, 2, 1);
    }

    void Run(const char* sql) { m_database->Execute(QString::fromUtf8(sql)); }

    Changeset Recorded(std::initializer_list<const char*> statements)
    {
        const auto recorder = m_database->RecordChanges();
        for (const char* sql : statements)
            Run(sql);
        return recorder->Changes();
    }

    // A table of the host whose only key is ID.
    static StoreTable Notes(std::vector<StoreColumn> others)
    {
        StoreTable table{
            QStringLiteral("Notes"),
            {{QStringLiteral("ID"), StoreType::Whole, StoreColumn::Nulls::Refused}},
            {QStringLiteral("ID")}};
        table.columns.insert(table.columns.end(), others.begin(), others.end());
        return table;
    }

    // All rows of all tables, as one text.
    std::string Everything()
    {
        const auto other = OtherProgram(*m_database);
        return other->Text("SELECT LayerID || Name || Code || Visible || Color FROM Layers ORDER BY LayerID")
            + '/' + other->Text("SELECT ID || Name || Expanded FROM LayerGroups ORDER BY ID") + '/'
            + other->Text("SELECT GroupID || '-' || LayerID || '-' || Ordering FROM LayerGroupMembers"
                          " ORDER BY GroupID, LayerID");
    }

    // Undoes and redoes the statements, and checks the database each time.
    void ExpectThereAndBack(std::initializer_list<const char*> statements)
    {
        const std::string before = Everything();
        const Changeset changes = Recorded(statements);
        const std::string after = Everything();
        ASSERT_NE(before, after);
        const auto undone = m_database->Apply(changes.Inverted());
        ASSERT_TRUE(undone);
        EXPECT_EQ(Everything(), before);
        const auto redone = m_database->Apply(undone->Inverted());
        ASSERT_TRUE(redone);
        EXPECT_EQ(Everything(), after);
    }

    const std::unique_ptr<ILayerStore> m_database = NewStore(Impatient());
};

} // namespace

TEST_F(AppliedChanges, BringUpdatedRowsThereAndBack)
{
    ExpectThereAndBack(
        {"UPDATE Layers SET Color = 77, Name = 'x' || LayerID", "UPDATE LayerGroups SET Name = 'y'"});
}

TEST_F(AppliedChanges, BringInsertedRowsThereAndBack)
{
    ExpectThereAndBack(
        {"INSERT INTO Layers (LayerID, Name) VALUES (9, 'New')",
         "INSERT INTO LayerGroupMembers (GroupID, LayerID) VALUES (5, 9)"});
}

TEST_F(AppliedChanges, BringDeletedRowsThereAndBackWithTheRowsThatWentWithThem)
{
    ExpectThereAndBack({"DELETE FROM Layers WHERE LayerID < 3"});
}

TEST_F(AppliedChanges, BringBackAGroupWithItsMembers)
{
    ExpectThereAndBack({"DELETE FROM LayerGroups"});
}

TEST_F(AppliedChanges, BringTextsBackAsTheyWere)
{
    const QString name = QString::fromUtf8("\"It's\" \U0001F6E3 طريق\n\t") + QString(10000, u'x');
    m_database->Execute(QStringLiteral("UPDATE Layers SET Name = ?1 WHERE LayerID = 1"), {name});
    const Changeset changes = Recorded({"DELETE FROM Layers WHERE LayerID = 1"});
    ASSERT_TRUE(m_database->Apply(changes.Inverted()));
    EXPECT_EQ(NameOfLayer(*m_database, 1), name);
}

TEST_F(AppliedChanges, TellWhatWentAlongWithThem)
{
    const Changeset changes = Recorded({"INSERT INTO Layers (LayerID, Name) VALUES (9, 'New')"});
    AddMember(*m_database, 5, 9, 2);
    const auto undone = m_database->Apply(changes.Inverted());
    ASSERT_TRUE(undone);
    ASSERT_TRUE(m_database->Apply(undone->Inverted()));
    EXPECT_THAT(
        Column(
            *m_database, QStringLiteral("SELECT LayerID FROM LayerGroupMembers ORDER BY LayerID"), "LayerID"),
        ElementsAre(1, 2, 9));
}

TEST_F(AppliedChanges, DoNothingWhenARowWasChangedBySomebodyElse)
{
    const Changeset changes = Recorded({"UPDATE Layers SET Color = LayerID"});
    const auto other = OtherProgram(*m_database);
    other->Run("UPDATE Layers SET Color = 1000 WHERE LayerID = 2");
    const std::string before = Everything();
    EXPECT_FALSE(m_database->Apply(changes.Inverted()));
    EXPECT_EQ(Everything(), before);
}

TEST_F(AppliedChanges, LeaveAloneWhatSomebodyElseChangedInOtherColumns)
{
    const Changeset changes = Recorded({"UPDATE Layers SET Color = LayerID"});
    const auto other = OtherProgram(*m_database);
    other->Run("UPDATE Layers SET Name = 'theirs' WHERE LayerID = 2");
    EXPECT_TRUE(m_database->Apply(changes.Inverted()));
    EXPECT_EQ(NameOfLayer(*m_database, 2), QStringLiteral("theirs"));
    EXPECT_EQ(other->Text("SELECT Color FROM Layers WHERE LayerID = 2"), "0");
}

TEST_F(AppliedChanges, DoNothingWhenAChangedRowIsGone)
{
    const Changeset changes = Recorded({"UPDATE Layers SET Color = LayerID"});
    OtherProgram(*m_database)->Run("DELETE FROM Layers WHERE LayerID = 3");
    const std::string before = Everything();
    EXPECT_FALSE(m_database->Apply(changes.Inverted()));
    EXPECT_EQ(Everything(), before);
}

TEST_F(AppliedChanges, DoNothingWhenAnotherRowStandsInTheirPlace)
{
    const Changeset changes = Recorded({"DELETE FROM Layers WHERE LayerID = 3"});
    OtherProgram(*m_database)->Run("INSERT INTO Layers (LayerID, Name) VALUES (3, 'theirs')");
    EXPECT_FALSE(m_database->Apply(changes.Inverted()));
    EXPECT_EQ(NameOfLayer(*m_database, 3), QStringLiteral("theirs"));
}

TEST_F(AppliedChanges, DoNothingWhenARowWouldReferToNone)
{
    const Changeset changes = Recorded({"DELETE FROM LayerGroupMembers WHERE LayerID = 2"});
    OtherProgram(*m_database)->Run("DELETE FROM Layers WHERE LayerID = 2");
    const std::string before = Everything();
    EXPECT_FALSE(m_database->Apply(changes.Inverted()));
    EXPECT_EQ(Everything(), before);
}

TEST_F(AppliedChanges, MayFindARowGoneThatIsToGo)
{
    const Changeset changes = Recorded({"INSERT INTO Layers (LayerID, Name) VALUES (9, 'New')"});
    OtherProgram(*m_database)->Run("DELETE FROM Layers WHERE LayerID = 9");
    EXPECT_TRUE(m_database->Apply(changes.Inverted()));
}

TEST_F(AppliedChanges, RaiseWhileAnotherProgramWritesAndLeaveNothingOpen)
{
    const Changeset changes = Recorded({"UPDATE Layers SET Color = 5"});
    {
        const auto other = OtherProgram(*m_database);
        other->BeginWriting();
        EXPECT_EQ(ErrorOf([&] { m_database->Apply(changes.Inverted()); }), int(ErrorNumber::DatabaseLocked));
    }
    EXPECT_TRUE(m_database->Apply(changes.Inverted()));
}

TEST_F(AppliedChanges, CannotBeMadeInAReadOnlyDatabase)
{
    const Changeset changes = Recorded({"UPDATE Layers SET Color = 5"});
    const auto reader = Opened(m_database->Path(), OpenMode::ReadOnly);
    EXPECT_EQ(ErrorOf([&] { reader->Apply(changes.Inverted()); }), int(ErrorNumber::DatabaseReadOnly));
}

TEST_F(AppliedChanges, KeepCursorsValid)
{
    const Changeset changes = Recorded({"UPDATE Layers SET Name = 'x' WHERE LayerID = 2"});
    const auto layer = SeekLayer(*m_database, 2);
    EXPECT_EQ(ToText(layer->Field("Name")), QStringLiteral("x"));
    ASSERT_TRUE(m_database->Apply(changes.Inverted()));
    layer->Seek("=", 2);
    EXPECT_EQ(ToText(layer->Field("Name")), QStringLiteral("Layer 2"));
}

TEST_F(AppliedChanges, TwoInARowAreOne)
{
    const std::string before = Everything();
    const Changeset first = Recorded({"UPDATE Layers SET Color = 5", "DELETE FROM LayerGroups"});
    const Changeset second
        = Recorded({"UPDATE Layers SET Color = 6", "DELETE FROM Layers WHERE LayerID = 1"});
    ASSERT_TRUE(m_database->Apply(first.Then(second).Inverted()));
    EXPECT_EQ(Everything(), before);
}

TEST_F(AppliedChanges, TwoInARowAreOneAlsoIfTheTableGotAColumnBetween)
{
    m_database->PrepareTable(Notes({{QStringLiteral("Name")}}));
    const Changeset first = Recorded({"INSERT INTO Notes VALUES (1, 'a')"});
    m_database->PrepareTable(Notes({{QStringLiteral("Name")}, {QStringLiteral("Size"), StoreType::Whole}}));
    const Changeset second = Recorded({"UPDATE Notes SET Size = 7 WHERE ID = 1"});
    const Changeset both = first.Then(second);
    ASSERT_TRUE(m_database->Apply(both.Inverted()));
    EXPECT_TRUE(m_database->OpenQuery("SELECT * FROM Notes")->AtEOF());
    ASSERT_TRUE(m_database->Apply(both));
    EXPECT_EQ(ToInt32(m_database->OpenQuery("SELECT Size FROM Notes")->Field("Size")), 7);
}

TEST_F(AppliedChanges, OfNothingChangeNothing)
{
    const std::string before = Everything();
    ASSERT_TRUE(m_database->Apply(Changeset().Inverted()));
    EXPECT_TRUE(Changeset().Then(Changeset()).IsEmpty());
    EXPECT_EQ(Everything(), before);
}

TEST_F(AppliedChanges, BringBackUniqueValuesThatChangedPlaces)
{
    StoreTable notes = Notes({{QStringLiteral("Name")}});
    notes.unique = {QStringLiteral("Name")};
    m_database->PrepareTable(notes);
    Run("INSERT INTO Notes VALUES (1, 'a'), (2, 'b')");
    const Changeset changes = Recorded(
        {"UPDATE Notes SET Name = 'c' WHERE ID = 1", "UPDATE Notes SET Name = 'a' WHERE ID = 2",
         "INSERT INTO Notes VALUES (3, 'b')"});
    ASSERT_TRUE(m_database->Apply(changes.Inverted()));
    const auto other = OtherProgram(*m_database);
    EXPECT_EQ(other->Text("SELECT ID || Name FROM Notes ORDER BY ID"), "1a,2b");
}

TEST_F(AppliedChanges, BringBackValuesOfEveryTypeExactly)
{
    m_database->PrepareTable(Notes(
        {{QStringLiteral("A"), StoreType::Whole},
         {QStringLiteral("B"), StoreType::Real},
         {QStringLiteral("C"), StoreType::Flag},
         {QStringLiteral("D"), StoreType::Text},
         {QStringLiteral("E"), StoreType::Text}}));
    Run("INSERT INTO Notes VALUES (1, -2147483648, 0.1, TRUE, NULL, 'Text')");
    const Changeset changes = Recorded({"UPDATE Notes SET A = 1, B = 2, C = FALSE, D = '', E = 'TEXT'"});
    ASSERT_TRUE(m_database->Apply(changes.Inverted()));
    const auto row = m_database->OpenQuery(QStringLiteral("SELECT * FROM Notes"));
    EXPECT_EQ(ToInt32(row->Field("A")), std::numeric_limits<qint32>::min());
    EXPECT_EQ(ToDouble(row->Field("B")), 0.1);
    EXPECT_TRUE(ToBoolean(row->Field("C")));
    EXPECT_TRUE(row->Field("D").IsNull());
    EXPECT_EQ(ToText(row->Field("E")), QStringLiteral("Text"));
}

TEST_F(AppliedChanges, DoNothingWhenANameChangedOnlyInItsCase)
{
    const Changeset changes = Recorded({"UPDATE Layers SET Name = 'Roads' WHERE LayerID = 1"});
    OtherProgram(*m_database)->Run("UPDATE Layers SET Name = 'ROADS' WHERE LayerID = 1");
    EXPECT_FALSE(m_database->Apply(changes.Inverted()));
}

} // namespace Orvane::Testing

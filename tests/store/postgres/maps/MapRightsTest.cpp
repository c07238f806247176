// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapRights.h"

#include "store/postgres/MapTest.h"
#include "store/postgres/RecordingConnection.h"
#include "store/postgres/maps/MapPresence.h"
#include "store/postgres/maps/SoundSchema.h"
#include "store/postgres/maps/TableSql.h"

namespace Orvane::Testing {

namespace {

constexpr const char* Denied = "42501";

class MapRightsTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run("CREATE ROLE \"The \"\"guest\"\"\" LOGIN");
        Owner().Run("INSERT INTO Layers (LayerID, Name) VALUES (1, 'Roads')");
    }
    void TearDown() override
    {
        if (!IsSkipped())
            Owner().Run("DROP OWNED BY \"The \"\"guest\"\"\"; DROP ROLE \"The \"\"guest\"\"\"");
        MapTest::TearDown();
    }

    void Grant(MapRight right) { Owner().RunTogether(MapRights::Granting(m_schema, m_guest, right)); }
    std::unique_ptr<RawLink> Guest() const { return Other("'The \"guest\"'"); }

    const QString m_guest = QStringLiteral("The \"guest\"");
};

} // namespace

TEST_F(MapRightsTest, NobodyElseSeesANewMap)
{
    EXPECT_EQ(Guest()->Failure("SELECT * FROM " + QuotedName(m_schema) + ".layers"), Denied);
}

TEST_F(MapRightsTest, AReaderSeesEverythingAndChangesNothing)
{
    Grant(MapRight::Read);
    const auto guest = Guest();
    for (const char* table : {"Layers", "LayerGroups", "orvane_map", "orvane_names", "orvane_news"}) {
        EXPECT_EQ(guest->Failure(QByteArray("SELECT * FROM ") + table), "") << table;
        EXPECT_EQ(guest->Failure(QByteArray("DELETE FROM ") + table), Denied) << table;
    }
    EXPECT_EQ(guest->Failure("UPDATE Layers SET Code = 1"), Denied);
}

TEST_F(MapRightsTest, AnEditorChangesRowsAndRecordsThem)
{
    Grant(MapRight::Edit);
    RecordingConnection guest(Connected(m_guest));
    const int start = guest.log.Begin();
    guest.Change("UPDATE Layers SET Code = 5");
    guest.Change("INSERT INTO Layers (LayerID) VALUES (2)");
    guest.Change("DELETE FROM Layers WHERE LayerID = 2");
    guest.Run(MapPresence::Joining(Map()).constData());
    EXPECT_FALSE(guest.log.ChangesSince(start).IsEmpty());
    EXPECT_EQ(Owner().Text("SELECT DISTINCT author FROM orvane_news ORDER BY 1"), "The \"guest\"");
}

TEST_F(MapRightsTest, AnEditorChangesNeitherTheTablesNorTheVersion)
{
    Grant(MapRight::Edit);
    const auto guest = Guest();
    EXPECT_EQ(guest->Failure("UPDATE orvane_map SET version = 99"), Denied);
    EXPECT_EQ(guest->Failure("DELETE FROM orvane_names"), Denied);
    EXPECT_EQ(guest->Failure("UPDATE orvane_news SET author = 'somebody'"), Denied);
    EXPECT_EQ(guest->Failure("CREATE TABLE Extra (id integer)"), Denied);
    EXPECT_EQ(guest->Failure("ALTER TABLE Layers ADD COLUMN extra integer"), Denied);
    EXPECT_EQ(guest->Failure("TRUNCATE Layers"), Denied);
}

TEST_F(MapRightsTest, HoldForTablesThatAreMadeLater)
{
    Grant(MapRight::Edit);
    Owner().RunTogether(TableSql::Making(
        {QStringLiteral("Marks"),
         {{QStringLiteral("ID"), StoreType::Whole}, {QStringLiteral("Name")}},
         {QStringLiteral("ID")}}));
    EXPECT_EQ(Guest()->Failure("INSERT INTO Marks (Name) VALUES ('a')"), "");
}

TEST_F(MapRightsTest, AnEditorWhoBecomesAReaderChangesNothingMore)
{
    Grant(MapRight::Edit);
    Grant(MapRight::Read);
    EXPECT_EQ(Guest()->Failure("SELECT * FROM Layers"), "");
    EXPECT_EQ(Guest()->Failure("UPDATE Layers SET Code = 1"), Denied);
}

TEST_F(MapRightsTest, AreTakenBack)
{
    Grant(MapRight::Edit);
    Owner().RunTogether(MapRights::Revoking(m_schema, m_guest));
    EXPECT_EQ(Guest()->Failure("SELECT * FROM " + QuotedName(m_schema) + ".layers"), Denied);
}

TEST_F(MapRightsTest, LeaveTheMapSound)
{
    Grant(MapRight::Edit);
    Owner().RunTogether(MapRights::Granting(m_schema, QStringLiteral("public"), MapRight::Read));
    const auto connection = Connected();
    connection->Run(QByteArray("SET search_path = ") + ServerConnection::SafePath);
    EXPECT_EQ(connection->Run(SoundSchema::Query(), SoundSchema::Values(m_schema)).Count(), 0);
}

} // namespace Orvane::Testing

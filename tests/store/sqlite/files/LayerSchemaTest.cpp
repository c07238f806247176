// SPDX-License-Identifier: MIT
#include "store/sqlite/files/LayerSchema.h"

#include "store/sqlite/StoreTest.h"

namespace Orvane::Testing {

namespace {

constexpr auto Tables1 = R"sql(
PRAGMA application_id = 0x4F52564E;
CREATE TABLE Layers (LayerID INTEGER PRIMARY KEY, Name TEXT COLLATE NOCASE DEFAULT '', Code INTEGER DEFAULT 0,
    Visible INTEGER DEFAULT 1, Selectable INTEGER DEFAULT 1, locked INTEGER DEFAULT 0,
    Hitable INTEGER DEFAULT 1, SnapRequired INTEGER DEFAULT 0, Enquirable INTEGER DEFAULT 1,
    Color INTEGER DEFAULT 0, FillForeColor INTEGER DEFAULT 0, FillBackColor INTEGER DEFAULT 16777215,
    OutlineStyle INTEGER DEFAULT 0, FillStyle INTEGER DEFAULT 0, LineThickness INTEGER DEFAULT 0,
    MinVisScale REAL DEFAULT 0, MaxVisScale REAL DEFAULT 0, Priority INTEGER DEFAULT 0,
    Style INTEGER DEFAULT 0, OverrideMode INTEGER DEFAULT 0, SystemLayer INTEGER DEFAULT 0,
    Pseudo INTEGER DEFAULT 0);
CREATE TABLE LayerGroups (ID INTEGER PRIMARY KEY, Name TEXT DEFAULT '', GroupOrdering INTEGER DEFAULT 0,
    Pseudo INTEGER DEFAULT 0, Expanded INTEGER DEFAULT 0);
CREATE TABLE LayerGroupMembers (GroupID INTEGER NOT NULL REFERENCES LayerGroups (ID) ON DELETE CASCADE,
    LayerID INTEGER NOT NULL REFERENCES Layers (LayerID) ON DELETE CASCADE, Ordering INTEGER DEFAULT 0,
    PRIMARY KEY (GroupID, LayerID)) WITHOUT ROWID;
CREATE UNIQUE INDEX LayerIDIDX ON Layers (LayerID);
CREATE UNIQUE INDEX IDIDX ON LayerGroups (ID);
INSERT INTO Layers (LayerID, Name) VALUES (5, 'Old roads');
INSERT INTO LayerGroups (ID, Name) VALUES (1, 'Old group');
INSERT INTO LayerGroupMembers VALUES (1, 5, 0);
PRAGMA user_version = 1;
)sql";

class LayerSchemaTest : public StoreTest
{
protected:
    QString Version1File()
    {
        const QString path = PathOf(QStringLiteral("old.ovl"));
        RawDatabase(path).Run(Tables1);
        return path;
    }

    static std::string IndexNames(const QString& path)
    {
        return RawDatabase(path).Text(
            "SELECT group_concat(name, ' ') FROM (SELECT name FROM sqlite_master WHERE type = 'index'"
            " AND name NOT LIKE 'sqlite%' ORDER BY name)");
    }

    static std::string VersionOf(const QString& path)
    {
        return RawDatabase(path).Text("PRAGMA user_version");
    }

    const std::string m_allIndexes
        = "GroupOrderingIDX IDIDX LayerIDIDX LayerNameIDX MemberLayerIDX MemberOrderingIDX";
};

} // namespace

TEST_F(LayerSchemaTest, ANewFileIsMarkedAndOfTheCurrentVersion)
{
    const QString path = MadeFile(0);
    EXPECT_EQ(RawDatabase(path).Text("PRAGMA application_id"), std::to_string(LayerSchema::ApplicationID));
    EXPECT_EQ(VersionOf(path), std::to_string(LayerSchema::CurrentVersion));
    EXPECT_EQ(IndexNames(path), m_allIndexes);
}

TEST_F(LayerSchemaTest, ANewFileKeepsAWriteAheadLog)
{
    EXPECT_EQ(RawDatabase(MadeFile(0)).Text("PRAGMA journal_mode"), "wal");
}

TEST_F(LayerSchemaTest, AFileOfVersion1BecomesCurrentAndKeepsItsRows)
{
    const QString path = Version1File();
    const auto database = SqliteLayerDatabase::Open(path);
    EXPECT_EQ(VersionOf(path), std::to_string(LayerSchema::CurrentVersion));
    EXPECT_EQ(IndexNames(path), m_allIndexes);
    EXPECT_EQ(NameOfLayer(*database, 5), QStringLiteral("Old roads"));
    EXPECT_EQ(
        Column(*database, QStringLiteral("SELECT LayerID FROM LayerGroupMembers WHERE GroupID=1"), "LayerID"),
        (std::vector<qint32>{5}));
}

TEST_F(LayerSchemaTest, AMigratedFileHasTheTablesOfANewOne)
{
    const QString old = Version1File();
    SqliteLayerDatabase::Open(old);
    const QString made = MadeFile(0);
    for (const char* table : {"Layers", "LayerGroups", "LayerGroupMembers"}) {
        const std::string columns
            = "SELECT group_concat(name || ' ' || type || ' ' || ifnull(dflt_value, '-'))"
              " FROM pragma_table_info('"
            + std::string(table) + "')";
        EXPECT_EQ(RawDatabase(old).Text(columns.c_str()), RawDatabase(made).Text(columns.c_str()));
    }
}

TEST_F(LayerSchemaTest, AFileThatWasMarkedAndNeverFilledGetsItsTables)
{
    const QString path = PathOf(QStringLiteral("marked.ovl"));
    RawDatabase(path).Run("PRAGMA application_id = 0x4F52564E");
    const auto database = SqliteLayerDatabase::Open(path);
    EXPECT_EQ(IndexNames(path), m_allIndexes);
    AddLayer(*database, 1, QStringLiteral("Roads"));
    EXPECT_EQ(NameOfLayer(*database, 1), QStringLiteral("Roads"));
}

TEST_F(LayerSchemaTest, AFileThatWasMarkedAndNeverFilledCannotBeRead)
{
    const QString path = PathOf(QStringLiteral("marked.ovl"));
    RawDatabase(path).Run("PRAGMA application_id = 0x4F52564E");
    EXPECT_EQ(
        ErrorOf([&] { SqliteLayerDatabase::Open(path, OpenMode::ReadOnly); }),
        int(ErrorNumber::NotALayerDatabase));
}

TEST_F(LayerSchemaTest, AnOlderFileThatIsOnlyReadStaysAsItIs)
{
    const QString path = Version1File();
    const QByteArray before = BytesOf(path);
    {
        const auto database = SqliteLayerDatabase::Open(path, OpenMode::ReadOnly);
        EXPECT_EQ(NameOfLayer(*database, 5), QStringLiteral("Old roads"));
    }
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_EQ(FilesThere().size(), 1);
}

TEST_F(LayerSchemaTest, AMigrationThatFailsLeavesTheFileAsItWas)
{
    const QString path = Version1File();
    RawDatabase(path).Run("CREATE TABLE MemberLayerIDX (SomethingElse)");
    const QByteArray before = BytesOf(path);
    EXPECT_EQ(ErrorOf([&] { SqliteLayerDatabase::Open(path); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_EQ(VersionOf(path), "1");
}

TEST_F(LayerSchemaTest, DeletingALayerOrAGroupDeletesItsMemberships)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    for (const qint32 id : {1, 2}) {
        AddLayer(*database, id, QStringLiteral("Layer"));
        AddGroup(*database, id, QStringLiteral("Group"), id);
    }
    for (const auto& [group, layer] : {std::pair(1, 1), std::pair(1, 2), std::pair(2, 1), std::pair(2, 2)})
        AddMember(*database, group, layer, 0);
    database->Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 1"));
    database->Execute(QStringLiteral("DELETE FROM LayerGroups WHERE ID = 2"));
    const auto rows = database->OpenRecordset(QStringLiteral("SELECT * FROM LayerGroupMembers"));
    EXPECT_EQ(ToInt32(rows->Field("GroupID")), 1);
    EXPECT_EQ(ToInt32(rows->Field("LayerID")), 2);
    rows->MoveNext();
    EXPECT_TRUE(rows->AtEOF());
}

TEST_F(LayerSchemaTest, ALayerIsInAGroupOnlyOnce)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    AddLayer(*database, 1, QStringLiteral("Layer"));
    AddGroup(*database, 1, QStringLiteral("Group"), 1);
    AddMember(*database, 1, 1, 0);
    EXPECT_EQ(ErrorOf([&] { AddMember(*database, 1, 1, 5); }), int(ErrorNumber::DatabaseFailure));
}

TEST_F(LayerSchemaTest, ANewLayerIsVisibleAndCanBeSelected)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    AddLayer(*database, 1, QStringLiteral("Layer"));
    const auto layer = SeekLayer(*database, 1);
    for (const char* column : {"Visible", "Selectable", "Hitable", "Enquirable"})
        EXPECT_EQ(ToInt32(layer->Field(column)), 1) << column;
    for (const char* column : {"locked", "SnapRequired", "SystemLayer", "Pseudo", "OverrideMode", "Code"})
        EXPECT_EQ(ToInt32(layer->Field(column)), 0) << column;
}

} // namespace Orvane::Testing

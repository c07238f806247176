// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeTables.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/common/HostTables.h"
#include "hostkit/schemes/LayerSchemes.h"

namespace Orvane::Testing {
namespace {

const QString Standard = QStringLiteral("Standard");
const QString Night = QStringLiteral("Night");
const QString Name = QStringLiteral("LayerSchemes");

/// A map with two schemes, whose tables are then changed to those of an earlier version.
class OlderSchemes : public HostKitTest
{
protected:
    OlderSchemes()
    {
        AddLayers(3);
        LayerSchemes schemes(Database());
        schemes.Create(Night);
        Set(1, "Priority", 7);
        schemes.Save(Night);
        Set(1, "Priority", 9);
        Execute("ALTER TABLE LayerSchemeValues DROP COLUMN Priority");
        Execute("DROP TABLE HostTables");
    }

    void Execute(const char* sql) { Database().Execute(QString::fromUtf8(sql)); }
};

TEST_F(OlderSchemes, ALayerKeepsAValueThatTheSchemesSayNothingAbout)
{
    LayerSchemes schemes(Database());
    schemes.Load(Standard);
    EXPECT_THAT(Get(1, "Priority"), IsNumber(9));
}

TEST_F(OlderSchemes, DifferFromTheLayersInNothingNew)
{
    EXPECT_TRUE(LayerSchemes(Database()).LayersThatDiffer().isEmpty());
}

TEST_F(OlderSchemes, AreSavedWithAllValuesFromThenOn)
{
    LayerSchemes schemes(Database());
    Set(1, "Priority", 11);
    schemes.Save(Night);
    schemes.Load(Standard);
    schemes.Load(Night);
    EXPECT_THAT(Get(1, "Priority"), IsNumber(11));
    EXPECT_EQ(HostTables::VersionOf(Database(), Name), SchemeTables::Version);
}

TEST_F(OlderSchemes, AreBroughtUpToDateOnce)
{
    SchemeTables tables(Database());
    EXPECT_TRUE(tables.HaveSchemes());
    const QStringList statements = StatementsOf([&] { EXPECT_TRUE(tables.HaveSchemes()); });
    EXPECT_TRUE(statements.filter(QStringLiteral("UPDATE")).isEmpty());
    EXPECT_TRUE(statements.filter(QStringLiteral("ALTER")).isEmpty());
}

TEST_F(OlderSchemes, OfANewerProgramAreRefusedByName)
{
    SchemeTables tables(Database());
    tables.Create();
    HostTables::SetVersion(Database(), Name, SchemeTables::Version + 1);
    EXPECT_EQ(ErrorOf([&] { tables.HaveSchemes(); }), int(HostError::TablesTooNew));
    EXPECT_EQ(ErrorOf([&] { LayerSchemes(Database()).Load(Night); }), int(HostError::TablesTooNew));
    EXPECT_TRUE(DescriptionOf([&] { tables.HaveSchemes(); }).contains(QStringLiteral("layer schemes")));
}

/// Tables of schemes in a map that cannot be changed.
class TablesOfAReadOnlyMap : public HostKitTest
{
};

TEST_F(TablesOfAReadOnlyMap, CountAsMissingIfTheyAreOlder)
{
    const QString path = OtherMap();
    {
        const auto database = Maker().Create(path);
        LayerSchemes(*database).Create(Night);
        database->Execute(QStringLiteral("ALTER TABLE LayerSchemeValues DROP COLUMN Priority"));
        database->Execute(QStringLiteral("DROP TABLE HostTables"));
    }
    const auto database = Maker().Open(path, OpenMode::ReadOnly);
    EXPECT_FALSE(SchemeTables(*database).HaveSchemes());
    EXPECT_EQ(LayerSchemes(*database).Names(), QStringList{Standard});
}

TEST_F(TablesOfAReadOnlyMap, CanBeReadIfTheyAreOfTheFirstVersion)
{
    const QString path = OtherMap();
    {
        const auto database = Maker().Create(path);
        LayerSchemes(*database).Create(Night);
        database->Execute(QStringLiteral("DROP TABLE HostTables"));
    }
    const auto database = Maker().Open(path, OpenMode::ReadOnly);
    EXPECT_EQ(LayerSchemes(*database).Current(), Night);
}

} // namespace
} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectSchemes.h"

#include "hostkit/common/HostErrors.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "qgis/project/ProjectFixture.h"
#include "support/Errors.h"

namespace Orvane::Testing {

namespace {

class ProjectSchemesTest : public ProjectFixture
{
protected:
    /// Saves the project, and gives a second store what the file has.
    void Reopen()
    {
        const QTemporaryDir folder;
        ASSERT_TRUE(project.write(folder.filePath("map.qgz")));
        opened.clear();
        ASSERT_TRUE(opened.read(folder.filePath("map.qgz")));
        again.Forget();
        again.ReadAll();
        ProjectSchemes(opened, *second).Read();
    }

    LayerSchemes schemes{*store};
    ProjectSchemes kept{project, *store};
    QgsProject opened;
    std::unique_ptr<ILayerStore> second = LayerStores::CreateInMemory();
    ProjectMirror again{opened, *second};
};

TEST_F(ProjectSchemesTest, SchemesComeBackWithTheirValues)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    Paint(*roads, Qt::red);
    mirror.ReadAll();
    schemes.Create("Night");
    StoreValue(*roads, "FillForeColor", 5);
    schemes.Create("Day");
    kept.Write();
    Reopen();
    LayerSchemes read(*second);
    EXPECT_EQ(read.Names(), (QStringList{"Day", "Night", "Standard"}));
    EXPECT_EQ(read.Current(), "Day");
    read.Load("Night");
    const auto row = StoredRows::Read(*second, mirror.IDOf(*roads));
    EXPECT_EQ(ToInt32(ValueOf(*row, "FillForeColor")), 0x0000FF);
    EXPECT_EQ(read.Load("Day").size(), 1);
}

TEST_F(ProjectSchemesTest, PartialSchemesDatesAndTheUsersOrderComeBack)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    mirror.ReadAll();
    StoreValue(*roads, "locked", 1);
    schemes.Add("Locks", SchemePart::Flags);
    schemes.SetOrder({"Standard", "Locks"});
    schemes.SetAtOpening("Locks");
    kept.Write();
    Reopen();
    LayerSchemes read(*second);
    EXPECT_EQ(read.Names(), (QStringList{"Standard", "Locks"}));
    EXPECT_EQ(read.All()[1].holds, SchemeParts(SchemePart::Flags));
    EXPECT_EQ(read.All()[0].holds, WholeScheme);
    EXPECT_EQ(read.All()[1].saved, schemes.All()[1].saved);
    EXPECT_EQ(read.AtOpening(), "Locks");
    second->Execute("UPDATE Layers SET Color = 3, locked = 0");
    read.Load("Locks");
    EXPECT_EQ(ToInt32(ValueOf(*StoredRows::Read(*second, mirror.IDOf(*roads)), "Color")), 3);
    EXPECT_EQ(ToInt32(ValueOf(*StoredRows::Read(*second, mirror.IDOf(*roads)), "locked")), 1);
}

TEST_F(ProjectSchemesTest, AnUnknownValueStaysUnknown)
{
    QgsVectorLayer* table = AddLayer("Table", "None");
    mirror.ReadAll();
    schemes.Create("Night");
    kept.Write();
    Reopen();
    LayerSchemes read(*second);
    second->Execute("UPDATE Layers SET FillForeColor = 3");
    read.Load("Night");
    EXPECT_TRUE(ValueOf(*StoredRows::Read(*second, mirror.IDOf(*table)), "FillForeColor").IsNull());
}

TEST_F(ProjectSchemesTest, OnlyAChangeMarksTheProject)
{
    AddLayer("Roads");
    mirror.ReadAll();
    schemes.Create("Night");
    kept.Write();
    project.setDirty(false);
    kept.Write();
    EXPECT_FALSE(project.isDirty());
    schemes.Delete("Night");
    kept.Write();
    EXPECT_TRUE(project.isDirty());
}

TEST_F(ProjectSchemesTest, DamagedSchemesAreNamedAndLeaveNone)
{
    mirror.ReadAll();
    schemes.Create("Night");
    project.writeEntry("Orvane", "LayerSchemes", QString("{\"version\": 1"));
    EXPECT_EQ(ErrorOf([&] { kept.Read(); }), int(HostError::SchemeTextDamaged));
    EXPECT_EQ(schemes.Names(), QStringList{"Standard"});
}

TEST_F(ProjectSchemesTest, SchemesOfANewerProgramAreNotRead)
{
    project.writeEntry(
        "Orvane", "LayerSchemes", QString("{\"version\": 3, \"schemes\": [{\"name\": \"A\"}]}"));
    EXPECT_EQ(ErrorOf([&] { kept.Read(); }), int(HostError::SchemeTextTooNew));
}

TEST_F(ProjectSchemesTest, SchemesThatCannotBeReadStayBesideNewOnes)
{
    const QString newer("{\"version\": 3, \"schemes\": [{\"name\": \"A\"}]}");
    project.writeEntry("Orvane", "LayerSchemes", newer);
    EXPECT_EQ(ErrorOf([&] { kept.Read(); }), int(HostError::SchemeTextTooNew));
    schemes.Create("Night");
    kept.Write();
    EXPECT_TRUE(project.readEntry("Orvane", "LayerSchemes").contains("Night"));
    EXPECT_EQ(project.readEntry("Orvane", "LayerSchemesUnread"), newer);
}

TEST_F(ProjectSchemesTest, ColumnsThatTheEntryLacksAreThoseOfTheLayer)
{
    QgsVectorLayer* roads = AddLayer("Roads");
    mirror.ReadAll();
    StoreValue(*roads, "Priority", 9);
    project.writeEntry(
        "Orvane", "LayerSchemes",
        QString("{\"version\": 1, \"current\": \"A\", \"columns\": [\"Later\", \"FillForeColor\"],"
                " \"schemes\": [{\"name\": \"A\", \"layers\": {\"%1\": [1, 7], \"999\": [1, 7]}}]}")
            .arg(mirror.IDOf(*roads)));
    kept.Read();
    StoreValue(*roads, "Priority", 10);
    schemes.Load("A");
    EXPECT_EQ(ToInt32(Stored(*roads, "Priority")), 9);
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), 7);
}

} // namespace

} // namespace Orvane::Testing

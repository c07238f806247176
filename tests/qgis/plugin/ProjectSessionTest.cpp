// SPDX-License-Identifier: MIT
#include "qgis/plugin/ProjectSession.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/lists/StoredList.h"
#include "qgis/plugin/SessionFixture.h"
#include "support/Errors.h"

namespace Orvane::Testing {

namespace {

constexpr qint32 GreenBgr = 0x00FF00;

class ProjectSessionTest : public SessionFixture
{
};

TEST_F(ProjectSessionTest, WhatChangesInQGISIsStoredSoon)
{
    Paint(*roads, Qt::green);
    roads->setName("Streets");
    QgsVectorLayer* lakes = AddLayer("Lakes");
    Settle();
    EXPECT_EQ(ToInt32(Stored(roads, "FillForeColor")), GreenBgr);
    EXPECT_EQ(ToText(Stored(roads, "Name")), "Streets");
    EXPECT_EQ(ToInt32(Stored(lakes, "Priority")), 128);
    project.removeMapLayer(lakes);
    Settle();
    EXPECT_EQ(StoredList::Layers(session.Store()).size(), 1u);
}

TEST_F(ProjectSessionTest, AStepThatWasOvertakenByQGISIsNotUndone)
{
    Apply({roads}, "FillForeColor", qint32(0xFF0000));
    Paint(*roads, Qt::green);
    Settle();
    EXPECT_NE(ErrorOf([this] { History().Undo(); }), 0);
    EXPECT_EQ(FillOf(*roads), QColor(Qt::green));
}

TEST_F(ProjectSessionTest, AnErrorIsToldAndGoesNoFurther)
{
    EXPECT_FALSE(session.Guard([] { throw RunTimeError(10001, "The scheme is gone."); }));
    EXPECT_FALSE(session.Guard([] { throw 5; }));
    ASSERT_EQ(failed.count(), 2);
    EXPECT_EQ(failed.at(0).at(0).toString(), "The scheme is gone.");
    EXPECT_FALSE(failed.at(1).at(0).toString().isEmpty());
}

TEST_F(ProjectSessionTest, AnErrorInASlotIsTold)
{
    session.Store().Execute("INSERT INTO Layers (LayerID) VALUES (?1)", {IDOf(roads) + 1});
    AddLayer("Lakes");
    Settle();
    EXPECT_EQ(failed.count(), 1);
}

TEST_F(ProjectSessionTest, SchemesAreSavedWithTheProject)
{
    const QTemporaryDir folder;
    Host().CreateScheme("Night");
    EXPECT_TRUE(project.isDirty());
    ASSERT_TRUE(project.write(folder.filePath("map.qgz")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("map.qgz")));
    ProjectSession other(opened);
    other.ReadSchemes();
    IStyleEditorClient& host = other.Client();
    EXPECT_EQ(host.GetSchemeNames(), (QStringList{"Night", "Standard"}));
    EXPECT_EQ(host.GetCurrentScheme(), "Night");
}

TEST_F(ProjectSessionTest, TheFirstSchemeIsSavedWithoutAChangeOfTheUser)
{
    const QTemporaryDir folder;
    Host().GetSchemeNames();
    ASSERT_TRUE(project.write(folder.filePath("map.qgs")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("map.qgs")));
    EXPECT_FALSE(opened.readEntry("Orvane", "LayerSchemes").isEmpty());
}

TEST_F(ProjectSessionTest, NewAndRemovedStylesAreTold)
{
    const QSignalSpy told(&session, &ProjectSession::RendererStylesChanged);
    AddStyle(*roads, "Night", Qt::blue);
    Settle();
    EXPECT_EQ(told.count(), 1);
    Paint(*roads, Qt::green);
    Settle();
    EXPECT_EQ(told.count(), 1);
    roads->styleManager()->removeStyle("Night");
    Settle();
    EXPECT_EQ(told.count(), 2);
}

TEST_F(ProjectSessionTest, ASavedLayerHasItsNumberInEachStyle)
{
    const QTemporaryDir folder;
    AddStyle(*roads, "Night", Qt::blue);
    roads->styleManager()->removeStyle("Night");
    AddStyle(*roads, "Evening", Qt::blue);
    Apply({roads}, "Code", 7);
    ASSERT_TRUE(project.write(folder.filePath("map.qgz")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("map.qgz")));
    QgsMapLayer* saved = opened.mapLayer(roads->id());
    ASSERT_TRUE(saved->styleManager()->setCurrentStyle("Evening"));
    EXPECT_EQ(saved->customProperty("orvane/id").toInt(), IDOf(roads));
    EXPECT_EQ(saved->customProperty("orvane/Code").toInt(), 7);
}

TEST_F(ProjectSessionTest, AnotherProjectStartsWithoutStepsAndSchemes)
{
    const QTemporaryDir folder;
    Host().CreateScheme("Night");
    QgsProject other;
    other.addMapLayer(new QgsVectorLayer("Point?crs=EPSG:4326", "Wells", "memory"));
    ASSERT_TRUE(other.write(folder.filePath("other.qgs")));
    ASSERT_TRUE(project.read(folder.filePath("other.qgs")));
    Settle();
    EXPECT_FALSE(History().CanUndo());
    EXPECT_EQ(Host().GetSchemeNames(), QStringList{"Standard"});
    const auto layers = StoredList::Layers(session.Store());
    ASSERT_EQ(layers.size(), 1u);
    EXPECT_EQ(layers[0].name, "Wells");
    EXPECT_EQ(failed.count(), 0);
}

TEST_F(ProjectSessionTest, AColourIsTheSameInASavedProject)
{
    const QTemporaryDir folder;
    Apply({roads}, "FillForeColor", GreenBgr);
    ASSERT_TRUE(project.write(folder.filePath("map.qgz")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("map.qgz")));
    const auto* saved = qobject_cast<QgsVectorLayer*>(opened.mapLayer(roads->id()));
    ASSERT_TRUE(saved);
    EXPECT_EQ(FillOf(*saved), QColor(0, 255, 0));
}

} // namespace

} // namespace Orvane::Testing

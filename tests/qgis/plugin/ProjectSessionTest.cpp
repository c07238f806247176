// SPDX-License-Identifier: MIT
#include "qgis/plugin/ProjectSession.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/lists/StoredList.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "hosts/EmptyEditorForm.h"
#include "qgis/plugin/SessionFixture.h"
#include "support/Errors.h"

#include <OrvaneShellLib/IStyleEditorRefresh.h>

#include <QWidget>

namespace Orvane::Testing {

namespace {

constexpr qint32 GreenBgr = 0x00FF00;

// An editor's form that notes what it is to read again.
class NotingForm : public QWidget, public EmptyEditorForm, public IStyleEditorRefresh
{
public:
    int refreshed = 0;
    QSet<qint32> layers;

private:
    void IStyleEditorForm_Refresh() override { ++refreshed; }
    void IStyleEditorRefresh_RefreshLayers(const QSet<qint32>& layerIDs) override { layers += layerIDs; }
};

class ProjectSessionTest : public SessionFixture
{
};

TEST_F(ProjectSessionTest, AnEditorReadsOnlyTheLayersThatHaveChanged)
{
    AddLayer("Lakes");
    Settle();
    NotingForm form;
    Host().ShowEditor(&form);
    Paint(*roads, Qt::green);
    Settle();
    EXPECT_EQ(form.layers, QSet<qint32>{IDOf(roads)});
    EXPECT_EQ(form.refreshed, 0);
    AddLayer("Woods");
    Settle();
    EXPECT_EQ(form.refreshed, 1);
}

TEST_F(ProjectSessionTest, ReadingAProjectDoesNotMakeItBeReadAgain)
{
    QgsVectorLayer* lakes = AddLayer("Lakes");
    ProjectSession other(project);
    QSignalSpy changed(&other.Watcher(), &ProjectWatcher::Changed);
    Settle();
    EXPECT_EQ(changed.count(), 0);
    lakes->setCustomProperty("theirs", 1);
    Settle();
    EXPECT_EQ(changed.count(), 1);
}

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

TEST_F(ProjectSessionTest, AProjectWithoutSchemesStartsWithThoseForNewMaps)
{
    const QTemporaryDir folder;
    session.SetStartupFile(folder.filePath("startup.orvane"));
    Host().CreateScheme("Day");
    Apply({roads}, "FillForeColor", GreenBgr);
    Host().CreateScheme("Night");
    Host().SaveSchemesToStartup();
    QgsProject other;
    auto* streets = new QgsVectorLayer("Polygon?crs=EPSG:4326", "Roads", "memory");
    Paint(*streets, Qt::red);
    other.addMapLayer(streets);
    other.setDirty(false);
    ProjectSession second(other);
    second.SetStartupFile(folder.filePath("startup.orvane"));
    second.ReadSchemes();
    IStyleEditorClient& host = second.Client();
    EXPECT_EQ(host.GetSchemeNames(), (QStringList{"Day", "Night", "Standard"}));
    EXPECT_FALSE(other.isDirty());
    EXPECT_FALSE(second.Client().History().CanUndo());
    EXPECT_EQ(FillOf(*streets), QColor(Qt::red));
    host.LoadScheme("Night");
    EXPECT_EQ(FillOf(*streets), QColor(0, 255, 0));
}

TEST_F(ProjectSessionTest, WithoutAStartupFileAProjectGetsNoSchemeBeforeItNeedsOne)
{
    EXPECT_TRUE(project.readEntry("Orvane", "LayerSchemes").isEmpty());
}

TEST_F(ProjectSessionTest, ASchemeIsExportedAndImported)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("night.json");
    Apply({roads}, "FillForeColor", GreenBgr);
    Host().CreateScheme("Night");
    session.Client().ExportScheme("Night", file);
    Apply({roads}, "FillForeColor", qint32(0xFF0000));
    Host().LoadScheme("Standard");
    Host().DeleteScheme("Night");
    const auto import = session.Client().ImportSchemeFile(file, [](const QString&) { return true; });
    ASSERT_TRUE(import);
    EXPECT_EQ(import->matched, 1);
    Host().LoadScheme("Night");
    EXPECT_EQ(FillOf(*roads), QColor(0, 255, 0));
}

TEST_F(ProjectSessionTest, ASavedSchemeHasTheNewValues)
{
    Host().GetSchemeNames();
    Host().CreateScheme("Night");
    Apply({roads}, "FillForeColor", GreenBgr);
    EXPECT_TRUE(session.Client().HasUnsavedSchemeChanges());
    Host().SaveScheme("Night");
    Host().LoadScheme("Standard");
    EXPECT_EQ(FillOf(*roads), QColor(Qt::red));
    Host().LoadScheme("Night");
    EXPECT_EQ(FillOf(*roads), QColor(0, 255, 0));
    EXPECT_FALSE(session.Client().HasUnsavedSchemeChanges());
}

TEST_F(ProjectSessionTest, EachSchemeOperationIsUndone)
{
    Host().GetSchemeNames();
    Host().CreateScheme("Night");
    History().Undo();
    EXPECT_EQ(Host().GetSchemeNames(), QStringList{"Standard"});
    History().Redo();
    Host().LoadScheme("Standard");
    Host().DeleteScheme("Night");
    EXPECT_EQ(Host().GetSchemeNames(), QStringList{"Standard"});
    History().Undo();
    EXPECT_EQ(Host().GetSchemeNames(), (QStringList{"Night", "Standard"}));
    EXPECT_EQ(Host().GetCurrentScheme(), "Night");
}

TEST_F(ProjectSessionTest, SchemesStayInAProjectThatIsSavedWithoutThePlugin)
{
    const QTemporaryDir folder;
    Host().CreateScheme("Night");
    ASSERT_TRUE(project.write(folder.filePath("map.qgz")));
    QgsProject plain;
    ASSERT_TRUE(plain.read(folder.filePath("map.qgz")));
    ASSERT_TRUE(plain.write(folder.filePath("again.qgz")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("again.qgz")));
    ProjectSession last(opened);
    last.ReadSchemes();
    IStyleEditorClient& host = last.Client();
    EXPECT_EQ(host.GetSchemeNames(), (QStringList{"Night", "Standard"}));
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

TEST_F(ProjectSessionTest, TheSchemeForTheOpeningIsAppliedWhenAProjectIsOpened)
{
    const QTemporaryDir folder;
    QSignalSpy done(&session, &ProjectSession::Done);
    Host().GetSchemeNames(); // makes "Standard"
    Apply({roads}, "FillForeColor", GreenBgr);
    LayerSchemes schemes(session.Store());
    schemes.Create("Green");
    schemes.SetAtOpening("Green");
    Host().LoadScheme("Standard");
    ASSERT_TRUE(project.write(folder.filePath("map.qgs")));
    ASSERT_TRUE(project.read(folder.filePath("map.qgs")));
    Settle();
    EXPECT_EQ(Host().GetCurrentScheme(), "Green");
    EXPECT_EQ(done.count(), 1);
    EXPECT_TRUE(project.isDirty());
    History().Undo();
    EXPECT_EQ(Host().GetCurrentScheme(), "Standard");
    EXPECT_EQ(failed.count(), 0);
}

TEST_F(ProjectSessionTest, AProjectThatIsInTheSchemeForTheOpeningIsNotChanged)
{
    const QTemporaryDir folder;
    Host().GetSchemeNames(); // makes "Standard"
    LayerSchemes(session.Store()).SetAtOpening("Standard");
    ASSERT_TRUE(project.write(folder.filePath("map.qgs")));
    const QSignalSpy done(&session, &ProjectSession::Done);
    ASSERT_TRUE(project.read(folder.filePath("map.qgs")));
    Settle();
    EXPECT_EQ(LayerSchemes(session.Store()).AtOpening(), "Standard");
    EXPECT_EQ(done.count(), 0);
    EXPECT_FALSE(project.isDirty());
    EXPECT_FALSE(History().CanUndo());
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

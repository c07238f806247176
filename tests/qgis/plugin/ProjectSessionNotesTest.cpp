// SPDX-License-Identifier: MIT
// The notes of "Show Only These", which a session keeps in its project.
#include "hostkit/undo/UndoHistory.h"
#include "qgis/plugin/DialogFixture.h"

#include <QLabel>

namespace Orvane::Testing {

namespace {

class ProjectSessionNotes : public DialogFixture
{
protected:
    ProjectSessionNotes() : woods(AddLayer("Woods"))
    {
        Settle();
        project.layerTreeRoot()->findLayer(lakes)->setItemVisibilityChecked(false);
        Settle();
        project.setDirty(false);
    }

    void ShowOnlyRoads()
    {
        Select(*roads);
        ASSERT_TRUE(user.Pick(2, "Show Only These"));
        Settle();
    }

    bool ShowAllAgain()
    {
        const bool picked = user.Pick(2, "Show All Again");
        Settle();
        return picked;
    }

    QString BarText()
    {
        const auto& bar = user.Find<QWidget>("tvLayers2_shown");
        return bar.isVisible() ? bar.findChild<QLabel*>()->text() : QString();
    }

    bool HasEntry() const { return !project.readEntry("Orvane", "LayerNotes").isEmpty(); }

    QString Saved(QgsProject& which)
    {
        const QString path = folder.filePath("map.qgz");
        EXPECT_TRUE(which.write(path));
        return path;
    }

    void Open(const QString& path)
    {
        ASSERT_TRUE(project.read(path));
        Settle();
        roads = Layer("Roads");
        lakes = Layer("Lakes");
        woods = Layer("Woods");
    }

    QgsVectorLayer* Layer(const QString& name)
    {
        return qobject_cast<QgsVectorLayer*>(project.mapLayersByName(name).value(0));
    }

    QgsVectorLayer* woods;
};

TEST_F(ProjectSessionNotes, HideTheOtherLayersInQgisAndBringThemBack)
{
    ShowOnlyRoads();
    EXPECT_TRUE(IsTicked(*roads));
    EXPECT_FALSE(IsTicked(*woods));
    EXPECT_EQ(BarText(), "Only 1 of 3 layers is shown.");
    EXPECT_TRUE(project.isDirty());
    EXPECT_TRUE(ShowAllAgain());
    EXPECT_TRUE(IsTicked(*woods));
    EXPECT_FALSE(IsTicked(*lakes)) << "it was not ticked before";
    EXPECT_EQ(BarText(), "");
    EXPECT_FALSE(HasEntry());
    EXPECT_EQ(told, QStringList());
}

TEST_F(ProjectSessionNotes, AreOneStepWithWhatTheyShow)
{
    ShowOnlyRoads();
    ASSERT_TRUE(HasEntry());
    session->Undo();
    Settle();
    EXPECT_TRUE(IsTicked(*woods));
    EXPECT_FALSE(HasEntry());
    EXPECT_EQ(BarText(), "");
    EXPECT_FALSE(session->Client().History().CanUndo());
    session->Redo();
    Settle();
    EXPECT_FALSE(IsTicked(*woods));
    EXPECT_TRUE(HasEntry());
    EXPECT_EQ(BarText(), "Only 1 of 3 layers is shown.");
}

TEST_F(ProjectSessionNotes, ComeBackFromASavedProject)
{
    ShowOnlyRoads();
    Open(Saved(project));
    EXPECT_FALSE(project.isDirty());
    EXPECT_FALSE(IsTicked(*woods));
    EXPECT_EQ(BarText(), "Only 1 of 3 layers is shown.");
    EXPECT_TRUE(ShowAllAgain());
    EXPECT_TRUE(IsTicked(*woods));
    EXPECT_FALSE(IsTicked(*lakes));
}

TEST_F(ProjectSessionNotes, ComeBackFromAProjectThatWasSavedWithoutThePlugin)
{
    ShowOnlyRoads();
    QgsProject plain;
    ASSERT_TRUE(plain.read(Saved(project)));
    QgsMapLayer* shown = plain.mapLayersByName("Lakes").value(0);
    plain.layerTreeRoot()->findLayer(shown)->setItemVisibilityChecked(true);
    Open(Saved(plain));
    EXPECT_TRUE(IsTicked(*lakes));
    EXPECT_TRUE(ShowAllAgain());
    EXPECT_TRUE(IsTicked(*woods));
    EXPECT_TRUE(IsTicked(*lakes)) << "what the user has shown in QGIS stays";
}

TEST_F(ProjectSessionNotes, AreNotThoseOfAnotherProject)
{
    ShowOnlyRoads();
    QgsProject other;
    other.addMapLayer(new QgsVectorLayer("Point?crs=EPSG:4326", "Wells", "memory"));
    ASSERT_TRUE(project.read(Saved(other)));
    Settle();
    EXPECT_EQ(BarText(), "");
    user.ClickNode(2, 0);
    EXPECT_FALSE(ShowAllAgain());
}

} // namespace

} // namespace Orvane::Testing

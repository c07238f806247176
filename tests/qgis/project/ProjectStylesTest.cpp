// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectStyles.h"

#include "qgis/project/LayerOwnValues.h"
#include "qgis/project/ProjectFixture.h"

#include <qgsmaplayerstylemanager.h>

namespace Orvane::Testing {

namespace {

constexpr qint32 BlueBgr = 0xFF0000;

class ProjectStylesTest : public ProjectFixture
{
protected:
    /// A layer that is red, and blue in its style "Night".
    QgsVectorLayer* AddStyledLayer(const QString& name)
    {
        QgsVectorLayer* layer = AddLayer(name);
        QgsMapLayerStyleManager& styles = *layer->styleManager();
        const QString standard = styles.currentStyle();
        styles.addStyleFromLayer("Night");
        Paint(*layer, Qt::red);
        styles.setCurrentStyle("Night");
        Paint(*layer, Qt::blue);
        styles.setCurrentStyle(standard);
        return layer;
    }

    qint32 NumberOf(const QString& style)
    {
        for (const RendererStyle& offered : mirror.Styles().Offered()) {
            if (offered.name == style)
                return offered.number;
        }
        return -1;
    }

    QStringList Names()
    {
        QStringList names;
        for (const RendererStyle& offered : mirror.Styles().Offered())
            names << offered.name;
        return names;
    }

    /// As the dialog applies it.
    bool SwitchTo(QgsVectorLayer& layer, const QString& style)
    {
        StoreValue(layer, "Style", NumberOf(style));
        return bool(mirror.Write({mirror.IDOf(layer)}, ProjectMirror::Meant::Changes));
    }
};

TEST_F(ProjectStylesTest, TheStylesOfAllLayersAreOfferedOnceAndSorted)
{
    AddStyledLayer("Roads");
    AddStyledLayer("Lakes")->styleManager()->addStyleFromLayer("Black");
    EXPECT_EQ(Names(), (QStringList{"Black", "Night"}));
}

TEST_F(ProjectStylesTest, TheDefaultStyleIsStandard)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    mirror.ReadAll();
    EXPECT_EQ(ToInt32(Stored(*roads, "Style")), 0);
    roads->styleManager()->setCurrentStyle("Night");
    mirror.ReadLayers({roads->id()});
    EXPECT_EQ(ToInt32(Stored(*roads, "Style")), NumberOf("Night"));
}

TEST_F(ProjectStylesTest, AStoredStyleIsTheCurrentOneWithItsColours)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    mirror.ReadAll();
    EXPECT_TRUE(SwitchTo(*roads, "Night"));
    EXPECT_EQ(roads->styleManager()->currentStyle(), "Night");
    EXPECT_EQ(FillOf(*roads), QColor(Qt::blue));
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), BlueBgr);
}

TEST_F(ProjectStylesTest, AnEditBesideTheStyleBelongsToTheNewStyle)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    mirror.ReadAll();
    StoreValue(*roads, "FillForeColor", qint32(0x00FF00));
    SwitchTo(*roads, "Night");
    EXPECT_EQ(FillOf(*roads), QColor(0, 255, 0));
    StoreValue(*roads, "Style", 0);
    mirror.Write({mirror.IDOf(*roads)}, ProjectMirror::Meant::Changes);
    EXPECT_EQ(FillOf(*roads), QColor(Qt::red));
}

TEST_F(ProjectStylesTest, AWholeRowCountsWhateverTheStyleHas)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    mirror.ReadAll();
    StoreValue(*roads, "Style", NumberOf("Night"));
    mirror.Write({mirror.IDOf(*roads)}, ProjectMirror::Meant::WholeRows);
    EXPECT_EQ(roads->styleManager()->currentStyle(), "Night");
    EXPECT_EQ(FillOf(*roads), QColor(Qt::red));
}

TEST_F(ProjectStylesTest, ALayerWithoutTheStyleRefusesItAndIsNamed)
{
    QString told;
    mirror.SetTeller([&told](const QString& message) { told = message; });
    QgsVectorLayer* lakes = AddLayer("Lakes");
    AddStyledLayer("Roads");
    mirror.ReadAll();
    SwitchTo(*lakes, "Night");
    EXPECT_EQ(ToInt32(Stored(*lakes, "Style")), 0);
    EXPECT_THAT(told.toStdString(), testing::AllOf(testing::HasSubstr("Night"), testing::HasSubstr("Lakes")));
}

TEST_F(ProjectStylesTest, ALayerWhoseDataAreMissingKeepsItsStyle)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    const QString current = roads->styleManager()->currentStyle();
    roads->setDataSource("/no/such/file.gpkg", "Roads", "ogr", QgsDataProvider::ProviderOptions());
    ASSERT_FALSE(roads->isValid());
    mirror.ReadAll();
    SwitchTo(*roads, "Night");
    EXPECT_EQ(roads->styleManager()->currentStyle(), current);
}

TEST_F(ProjectStylesTest, ANewStyleLeavesTheLayerItsNumberCodeAndFlags)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads"); // "Night" knows no number
    mirror.ReadAll();
    const qint32 layerID = mirror.IDOf(*roads);
    StoreValue(*roads, "Code", 7);
    for (const char* flag : {"Selectable", "Hitable"})
        StoreValue(*roads, flag, false);
    StoreValue(*roads, "locked", true);
    mirror.Write({layerID});
    SwitchTo(*roads, "Night");
    EXPECT_EQ(ToInt32(Stored(*roads, "Code")), 7);
    for (const char* flag : {"Selectable", "Hitable"})
        EXPECT_FALSE(ToBoolean(Stored(*roads, flag))) << flag;
    for (const char* flag : {"Enquirable", "locked"})
        EXPECT_TRUE(ToBoolean(Stored(*roads, flag))) << flag;
    ProjectMirror again(project, *LayerStores::CreateInMemory());
    EXPECT_EQ(again.IDOf(*roads), layerID);
}

TEST_F(ProjectStylesTest, AStyleChosenInQGISLeavesTheLayerItsCode)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    mirror.ReadAll();
    StoreValue(*roads, "Code", 7);
    StoreValue(*roads, "Selectable", false);
    mirror.Write({mirror.IDOf(*roads)});
    roads->styleManager()->setCurrentStyle("Night");
    mirror.ReadLayers({roads->id()});
    EXPECT_EQ(ToInt32(Stored(*roads, "Code")), 7);
    EXPECT_FALSE(ToBoolean(Stored(*roads, "Selectable")));
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), BlueBgr);
}

TEST_F(ProjectStylesTest, AQuickModeBelongsToTheLayer)
{
    for (const qint32 mode : {1, 2}) {
        QgsVectorLayer* roads = AddStyledLayer("Roads");
        mirror.ReadAll();
        StoreValue(*roads, "OverrideMode", mode);
        mirror.Write({mirror.IDOf(*roads)});
        SwitchTo(*roads, "Night");
        EXPECT_EQ(ToInt32(Stored(*roads, "OverrideMode")), mode);
        StoreValue(*roads, "OverrideMode", 0);
        mirror.Write({mirror.IDOf(*roads)});
        EXPECT_EQ(roads->opacity(), 1);
        EXPECT_TRUE(project.layerTreeRoot()->findLayer(roads)->itemVisibilityChecked());
    }
}

TEST_F(ProjectStylesTest, AHiddenLayerStaysHiddenWithAStyleChosenInQGIS)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    mirror.ReadAll();
    StoreValue(*roads, "OverrideMode", 2);
    mirror.Write({mirror.IDOf(*roads)});
    roads->styleManager()->setCurrentStyle("Night");
    mirror.ReadLayers({roads->id()});
    EXPECT_EQ(ToInt32(Stored(*roads, "OverrideMode")), 2);
    EXPECT_TRUE(ToBoolean(Stored(*roads, "Visible")));
}

TEST_F(ProjectStylesTest, StylesThatAreNotCurrentGetTheNumberToo)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    mirror.ReadAll();
    const qint32 layerID = mirror.IDOf(*roads);
    StoreValue(*roads, "Code", 7);
    mirror.Write({layerID});
    LayerOwnValues::CarriedStyles carried;
    LayerOwnValues::CarryToStyles(*roads, carried);
    roads->styleManager()->setCurrentStyle("Night"); // nobody watches
    EXPECT_EQ(FillOf(*roads), QColor(Qt::blue));
    const auto other = LayerStores::CreateInMemory();
    ProjectMirror again(project, *other);
    again.ReadAll();
    EXPECT_EQ(again.IDOf(*roads), layerID);
    EXPECT_EQ(ToInt32(ValueOf(*StoredRows::Read(*other, layerID), "Code")), 7);
}

TEST_F(ProjectStylesTest, ACodeThatHasChangedIsCarriedToTheStylesAgain)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    mirror.ReadAll();
    LayerOwnValues::CarriedStyles carried;
    for (const qint32 code : {7, 8, 8}) {
        StoreValue(*roads, "Code", code);
        mirror.Write({mirror.IDOf(*roads)});
        LayerOwnValues::CarryToStyles(*roads, carried);
    }
    roads->styleManager()->setCurrentStyle("Night");
    EXPECT_EQ(roads->customProperty("orvane/Code").toInt(), 8);
}

TEST_F(ProjectStylesTest, AStyleThatIsRenamedEverywhereKeepsItsNumber)
{
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    QgsVectorLayer* lakes = AddStyledLayer("Lakes");
    const qint32 number = NumberOf("Night");
    for (QgsVectorLayer* layer : {roads, lakes}) {
        layer->styleManager()->renameStyle("Night", "Evening");
        mirror.Styles().Rename("Night", "Evening");
    }
    EXPECT_EQ(Names(), QStringList{"Evening"});
    EXPECT_EQ(NumberOf("Evening"), number);
}

TEST_F(ProjectStylesTest, NumbersAreThoseOfTheSavedProject)
{
    const QTemporaryDir folder;
    QgsVectorLayer* roads = AddStyledLayer("Roads");
    const qint32 number = NumberOf("Night");
    roads->styleManager()->addStyleFromLayer("Black");
    NumberOf("Black");
    ASSERT_TRUE(project.write(folder.filePath("map.qgz")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("map.qgz")));
    ProjectStyles styles(opened);
    const auto offered = styles.Offered();
    ASSERT_EQ(offered.size(), 2u);
    EXPECT_EQ(offered[1].number, number);
    EXPECT_FALSE(opened.isDirty());
}

} // namespace

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "qgis/project/MapThemes.h"

#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/undo/IUndoStep.h"
#include "qgis/project/ProjectFixture.h"
#include "support/Errors.h"

#include <qgscategorizedsymbolrenderer.h>
#include <qgsmaplayerstylemanager.h>

namespace Orvane::Testing {

namespace {

using Record = QgsMapThemeCollection::MapThemeRecord;
using LayerRecord = QgsMapThemeCollection::MapThemeLayerRecord;

constexpr qint32 RedBgr = 0x0000FF;
constexpr qint32 GreenBgr = 0x00FF00;
constexpr qint32 BlueBgr = 0xFF0000;

/// Roads and lakes, both red; roads are blue in their style "Dark".
class MapThemesTest : public ProjectFixture
{
protected:
    MapThemesTest()
    {
        Paint(*roads, Qt::blue);
        roads->styleManager()->addStyleFromLayer("Dark");
        Paint(*roads, Qt::red);
        Paint(*lakes, Qt::red);
        mirror.ReadAll();
    }

    /// A theme with the roads in that style, without the lakes.
    void AddTheme(const QString& name, const QString& style)
    {
        LayerRecord record(roads);
        record.usingCurrentStyle = true;
        record.currentStyle = style;
        Record theme;
        theme.setLayerRecords({record});
        project.mapThemeCollection()->insert(name, theme);
    }

    LayerRecord Exported(const QString& theme, QgsMapLayer* layer)
    {
        return project.mapThemeCollection()->mapThemeState(theme).validLayerRecords().value(layer);
    }

    /// As the dialog changes it.
    void Apply(QgsMapLayer& layer, const QString& column, const Value& value)
    {
        StoreValue(layer, column, value);
        mirror.Write({mirror.IDOf(layer)}, ProjectMirror::Meant::Changes);
    }

    QColor ColourInStyle(QgsVectorLayer* layer, const QString& style)
    {
        layer->styleManager()->setCurrentStyle(style);
        return FillOf(*layer);
    }

    QgsVectorLayer* roads = AddLayer("Roads");
    QgsVectorLayer* lakes = AddLayer("Lakes");
    QString standard = roads->styleManager()->currentStyle();
    LayerSchemes schemes{*store};
    MapThemes themes{project, *store, mirror};
};

TEST_F(MapThemesTest, AnImportedThemeHasVisibilityStyleAndColours)
{
    AddTheme("Night", "Dark");
    themes.Import({"Night"});
    EXPECT_EQ(schemes.Names(), (QStringList{"Night", "Standard"}));
    EXPECT_EQ(schemes.Current(), "Standard");
    EXPECT_EQ(FillOf(*roads), QColor(Qt::red));
    schemes.Load("Night");
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), BlueBgr);
    EXPECT_TRUE(ToBoolean(Stored(*roads, "Visible")));
    EXPECT_FALSE(ToBoolean(Stored(*lakes, "Visible")));
    EXPECT_EQ(ToInt32(Stored(*lakes, "FillForeColor")), RedBgr);
    mirror.Write({mirror.IDOf(*roads), mirror.IDOf(*lakes)});
    EXPECT_EQ(roads->styleManager()->currentStyle(), "Dark");
    EXPECT_EQ(FillOf(*roads), QColor(Qt::blue));
}

TEST_F(MapThemesTest, AThemeImportedAgainReplacesItsScheme)
{
    AddTheme("Night", "Dark");
    themes.Import({"Night"});
    project.mapThemeCollection()->removeMapTheme("Night");
    AddTheme("Night", standard);
    themes.Import({"Night"});
    EXPECT_EQ(schemes.Names(), (QStringList{"Night", "Standard"}));
    schemes.Load("Night");
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), RedBgr);
}

TEST_F(MapThemesTest, AHiddenLayerThatTheThemeShowsIsShown)
{
    AddTheme("Night", standard);
    Apply(*roads, "OverrideMode", 2);
    themes.Import({"Night"});
    schemes.Load("Night");
    EXPECT_EQ(ToInt32(Stored(*roads, "OverrideMode")), 0);
}

TEST_F(MapThemesTest, AnExportedSchemeUsesTheStyleThatLooksAlike)
{
    Apply(*lakes, "Visible", false);
    schemes.Create("Day");
    Apply(*roads, "FillForeColor", BlueBgr);
    schemes.Create("Night");
    Apply(*roads, "FillForeColor", RedBgr);
    themes.Export("Day");
    themes.Export("Night");
    EXPECT_EQ(Exported("Day", roads).currentStyle, standard);
    EXPECT_EQ(Exported("Night", roads).currentStyle, "Dark");
    EXPECT_EQ(roads->styleManager()->styles().size(), 2);
    EXPECT_TRUE(Exported("Night", roads).isVisible);
    EXPECT_TRUE(Exported("Night", roads).usingCurrentStyle);
    EXPECT_FALSE(Exported("Night", lakes).isVisible);
    EXPECT_EQ(lakes->styleManager()->styles().size(), 1);
}

TEST_F(MapThemesTest, LooksThatNoStyleHasBecomeAStyle)
{
    schemes.Create("Day");
    Apply(*roads, "FillForeColor", GreenBgr);
    schemes.Create("Night");
    schemes.Load("Day");
    mirror.Write({mirror.IDOf(*roads)});
    themes.Export("Night");
    EXPECT_EQ(Exported("Night", roads).currentStyle, "Night");
    EXPECT_EQ(FillOf(*roads), QColor(Qt::red));
    EXPECT_EQ(ColourInStyle(roads, "Night"), QColor(0, 255, 0));
    EXPECT_EQ(ColourInStyle(roads, standard), QColor(Qt::red));
}

TEST_F(MapThemesTest, AStyleOfAnotherOriginIsNotReplaced)
{
    lakes->styleManager()->addStyleFromLayer("Night");
    Apply(*lakes, "FillForeColor", GreenBgr);
    schemes.Create("Night");
    Apply(*lakes, "FillForeColor", BlueBgr);
    themes.Export("Night");
    EXPECT_EQ(Exported("Night", lakes).currentStyle, "Night 2");
    EXPECT_EQ(ColourInStyle(lakes, "Night"), QColor(Qt::red));
}

TEST_F(MapThemesTest, AThemeExportedAgainLeavesNoOldStyle)
{
    schemes.Create("Day");
    for (const qint32 colour : {GreenBgr, 0x123456}) {
        Apply(*lakes, "FillForeColor", colour);
        schemes.Save("Day");
        Apply(*lakes, "FillForeColor", RedBgr);
        themes.Export("Day");
    }
    EXPECT_EQ(lakes->styleManager()->styles().size(), 2);
    EXPECT_EQ(ColourInStyle(lakes, "Day"), QColor(0x56, 0x34, 0x12));
}

TEST_F(MapThemesTest, ClassesStayInANewStyle)
{
    auto* classes = new QgsCategorizedSymbolRenderer(
        "kind",
        {{1, QgsFillSymbol::createSimple({{"color", "#ff0000"}}), "A"},
         {2, QgsFillSymbol::createSimple({{"color", "#00ff00"}}), "B"}});
    lakes->setRenderer(classes);
    mirror.ReadLayers({lakes->id()});
    Apply(*lakes, "LineThickness", 5);
    schemes.Create("Night");
    Apply(*lakes, "LineThickness", 1);
    themes.Export("Night");
    lakes->styleManager()->setCurrentStyle("Night");
    EXPECT_EQ(lakes->renderer()->type(), "categorizedSymbol");
    mirror.ReadLayers({lakes->id()});
    EXPECT_EQ(ToInt32(Stored(*lakes, "LineThickness")), 5);
}

TEST_F(MapThemesTest, ABackdropIsAStyle)
{
    Apply(*lakes, "OverrideMode", 1);
    schemes.Create("Night");
    Apply(*lakes, "OverrideMode", 0);
    themes.Export("Night");
    EXPECT_EQ(lakes->opacity(), 1);
    lakes->styleManager()->setCurrentStyle(Exported("Night", lakes).currentStyle);
    EXPECT_NEAR(lakes->opacity(), 0.35, 0.001);
}

TEST_F(MapThemesTest, AHiddenLayerStaysHiddenWhenASchemeWithItsBackdropIsExported)
{
    Apply(*lakes, "OverrideMode", 1);
    schemes.Create("Night");
    Apply(*lakes, "OverrideMode", 2);
    themes.Export("Night");
    EXPECT_FALSE(project.layerTreeRoot()->findLayer(lakes)->itemVisibilityChecked());
    EXPECT_EQ(lakes->opacity(), 1);
    mirror.ReadLayers({lakes->id()});
    EXPECT_EQ(ToInt32(Stored(*lakes, "OverrideMode")), 2);
    EXPECT_TRUE(Exported("Night", lakes).isVisible);
    lakes->styleManager()->setCurrentStyle(Exported("Night", lakes).currentStyle);
    EXPECT_NEAR(lakes->opacity(), 0.35, 0.001);
}

TEST_F(MapThemesTest, AnExportIsUndoneAndRedone)
{
    Apply(*lakes, "FillForeColor", GreenBgr);
    schemes.Create("Night");
    Apply(*lakes, "FillForeColor", RedBgr);
    const auto step = themes.Export("Night");
    step->Undo();
    EXPECT_FALSE(themes.Has("Night"));
    EXPECT_EQ(lakes->styleManager()->styles().size(), 1);
    step->Redo();
    EXPECT_EQ(themes.Names(), QStringList{"Night"});
    EXPECT_EQ(Exported("Night", lakes).currentStyle, "Night");
}

TEST_F(MapThemesTest, AnExportIsNotUndoneIfTheThemeWasChanged)
{
    schemes.Create("Night");
    const auto step = themes.Export("Night");
    project.mapThemeCollection()->update("Night", Record());
    EXPECT_NE(ErrorOf([&] { step->Undo(); }), 0);
    EXPECT_TRUE(themes.Has("Night"));
}

TEST_F(MapThemesTest, QGISShowsAnExportedThemeAsTheScheme)
{
    Apply(*lakes, "Visible", false);
    Apply(*roads, "FillForeColor", GreenBgr);
    schemes.Create("Night");
    Apply(*lakes, "Visible", true);
    Apply(*roads, "FillForeColor", RedBgr);
    themes.Export("Night");
    EXPECT_EQ(project.mapThemeCollection()->mapThemeVisibleLayers("Night"), QList<QgsMapLayer*>{roads});
    EXPECT_TRUE(project.mapThemeCollection()->mapThemeStyleOverrides("Night").contains(roads->id()));
}

} // namespace

} // namespace Orvane::Testing

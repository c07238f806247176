// SPDX-License-Identifier: MIT
#include "mapkit/document/MapThemes.h"

#include "store/sqlite/SqliteLayerDatabase.h"

#include <gmock/gmock.h>

namespace Orvane {

namespace {

class MapThemesTest : public testing::Test
{
protected:
    MapThemesTest()
    {
        for (const char* name : {"Roads", "Rivers", "Parcels"})
            m_database->Execute("INSERT INTO Layers (Name) VALUES (?1)", {QString(name)});
    }

    void Set(const char* column, qint32 layerID, qint32 value)
    {
        m_database->Execute(
            QString("UPDATE Layers SET %1 = ?2 WHERE LayerID = ?1").arg(column), {layerID, value});
    }

    QStringList Names() const
    {
        QStringList names;
        for (const MapThemes::Theme& theme : m_themes.All())
            names << theme.name;
        return names;
    }

    std::unique_ptr<SqliteLayerDatabase> m_database = SqliteLayerDatabase::CreateInMemory();
    MapThemes m_themes{*m_database};
};

} // namespace

TEST_F(MapThemesTest, AMapBeginsWithoutThemes)
{
    EXPECT_TRUE(m_themes.All().empty());
    EXPECT_FALSE(m_themes.Find("Water"));
    EXPECT_EQ(m_themes.NameOf(1), "");
    EXPECT_TRUE(m_themes.LayersOf(1).isEmpty());
}

TEST_F(MapThemesTest, IDsBeyond32BitsHideNothingElse)
{
    const qint32 themeID = m_themes.StoreVisibleLayers("Water");
    m_database->Execute("INSERT INTO Themes (ThemeID, Name) VALUES (4294967296, 'Far')");
    m_database->Execute("INSERT INTO Layers (LayerID, Name) VALUES (4294967297, 'Far')");
    m_database->Execute("INSERT INTO ThemeLayers (ThemeID, LayerID) VALUES (?1, 4294967297)", {themeID});
    EXPECT_EQ(Names(), QStringList("Water"));
    EXPECT_EQ(m_themes.LayersOf(themeID), (QSet<qint32>{1, 2, 3}));
}

TEST_F(MapThemesTest, AThemeHoldsTheVisibleLayers)
{
    Set("Visible", 1, 0);
    const qint32 themeID = m_themes.StoreVisibleLayers("Water");
    EXPECT_EQ(m_themes.NameOf(themeID), "Water");
    EXPECT_EQ(m_themes.LayersOf(themeID), (QSet<qint32>{2, 3}));
}

TEST_F(MapThemesTest, HiddenUnlistedAndPseudoLayersAreNotVisible)
{
    Set("OverrideMode", 1, 2);
    Set("Code", 2, -2);
    Set("Pseudo", 3, 1);
    EXPECT_FALSE(m_themes.HasVisibleLayers());
    Set("OverrideMode", 1, 1); // a backdrop is seen
    EXPECT_TRUE(m_themes.HasVisibleLayers());
}

TEST_F(MapThemesTest, AThemeOfTheSameNameGetsOtherLayers)
{
    const qint32 themeID = m_themes.StoreVisibleLayers("Water");
    Set("Visible", 1, 0);
    EXPECT_EQ(m_themes.StoreVisibleLayers("Water"), themeID);
    EXPECT_EQ(m_themes.LayersOf(themeID), (QSet<qint32>{2, 3}));
    EXPECT_EQ(Names(), QStringList("Water"));
}

TEST_F(MapThemesTest, ThemesAreListedAsAUserOrdersThem)
{
    for (const char* name : {"Water", "Land", "Ash"})
        m_themes.StoreVisibleLayers(name);
    EXPECT_EQ(Names(), QStringList({"Ash", "Land", "Water"}));
}

TEST_F(MapThemesTest, AnyTextIsAName)
{
    for (const QString& name :
         {QString("O'Neill's \"best\""), QString::fromUtf8("🗺 שלום"), QString("a\nb"),
          QString(10000, 'x')}) {
        const qint32 themeID = m_themes.StoreVisibleLayers(name);
        EXPECT_EQ(m_themes.NameOf(themeID), name);
        ASSERT_TRUE(m_themes.Find(name));
        EXPECT_EQ(m_themes.Find(name)->id, themeID);
    }
}

TEST_F(MapThemesTest, ARemovedThemeLeavesItsLayers)
{
    const qint32 water = m_themes.StoreVisibleLayers("Water");
    const qint32 land = m_themes.StoreVisibleLayers("Land");
    m_themes.Remove(water);
    EXPECT_EQ(Names(), QStringList("Land"));
    EXPECT_TRUE(m_themes.LayersOf(water).isEmpty());
    EXPECT_EQ(m_themes.LayersOf(land).size(), 3);
    EXPECT_TRUE(m_themes.HasVisibleLayers());
}

TEST_F(MapThemesTest, ARenamedThemeKeepsItsLayersAndNumber)
{
    const qint32 themeID = m_themes.StoreVisibleLayers("Water");
    m_themes.Rename(themeID, "Rivers and lakes");
    EXPECT_EQ(m_themes.NameOf(themeID), "Rivers and lakes");
    EXPECT_EQ(m_themes.LayersOf(themeID).size(), 3);
    EXPECT_FALSE(m_themes.Find("Water"));
}

TEST_F(MapThemesTest, NoTwoThemesGetOneName)
{
    const qint32 themeID = m_themes.StoreVisibleLayers("Water");
    m_themes.StoreVisibleLayers("Land");
    EXPECT_ANY_THROW(m_themes.Rename(themeID, "Land"));
    EXPECT_EQ(m_themes.NameOf(themeID), "Water");
}

TEST_F(MapThemesTest, ADeletedLayerLeavesItsThemes)
{
    const qint32 themeID = m_themes.StoreVisibleLayers("Water");
    m_database->Execute("DELETE FROM Layers WHERE LayerID = 2");
    EXPECT_EQ(m_themes.LayersOf(themeID), (QSet<qint32>{1, 3}));
}

TEST_F(MapThemesTest, ALayerIsAddedOnce)
{
    Set("Visible", 3, 0);
    const qint32 themeID = m_themes.StoreVisibleLayers("Water");
    m_themes.AddLayer(themeID, 3);
    m_themes.AddLayer(themeID, 3);
    EXPECT_EQ(m_themes.LayersOf(themeID).size(), 3);
}

TEST_F(MapThemesTest, AThemeThatCannotBeStoredChangesNothing)
{
    const qint32 themeID = m_themes.StoreVisibleLayers("Water");
    m_database->Execute("CREATE TEMP TRIGGER Refuse BEFORE INSERT ON ThemeLayers WHEN NEW.LayerID = 3"
                        " BEGIN SELECT RAISE(ABORT, 'kept'); END");
    EXPECT_ANY_THROW(m_themes.StoreVisibleLayers("Water"));
    EXPECT_EQ(m_themes.LayersOf(themeID).size(), 3);
}

} // namespace Orvane

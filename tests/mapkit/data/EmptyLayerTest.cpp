// SPDX-License-Identifier: MIT
#include "mapkit/data/EmptyLayer.h"

#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto System = "EPSG:3857";

class EmptyLayerTest : public testing::Test
{
protected:
    QString Path() const { return m_folder.Path("layers.gpkg"); }
    QString Create(const QString& name, FeatureKind kind = FeatureKind::Area) const
    {
        return CreateEmptyLayer(Path(), name, kind, System);
    }

    DataFolder m_folder;
};

} // namespace

TEST_F(EmptyLayerTest, MakesAFileWithALayerThatCanBeRead)
{
    EXPECT_EQ(Create("Trees", FeatureKind::Point), "Trees");
    const DataSource source(Path());
    ASSERT_EQ(source.Layers().size(), 1u);
    EXPECT_EQ(source.Layers()[0].name, "Trees");
    EXPECT_EQ(source.Layers()[0].kind, FeatureKind::Point);
    Progress progress;
    EXPECT_TRUE(source.Read("Trees", {}, System, progress).Features().empty());
}

TEST_F(EmptyLayerTest, AddsToAFileThatIsThere)
{
    Create("Trees", FeatureKind::Point);
    Create("Paths", FeatureKind::Line);
    EXPECT_EQ(DataSource(Path()).Layers().size(), 2u);
}

TEST_F(EmptyLayerTest, ASecondLayerOfThatNameGetsANumber)
{
    Create("Trees");
    EXPECT_EQ(Create("Trees"), "Trees 2");
    EXPECT_EQ(Create("Trees"), "Trees 3");
}

TEST_F(EmptyLayerTest, AnyNameMakesALayer)
{
    for (const QString& name :
         {QString("O'Neill's \"best\""), QString::fromUtf8("🗺 שלום"), QString("a\nb"),
          QString(10000, 'x'), QString("'); DROP TABLE gpkg_contents; --")}) {
        const QString table = Create(name);
        Progress progress;
        EXPECT_NO_THROW(DataSource(Path()).Read(table, {}, System, progress)) << qPrintable(table);
    }
}

TEST_F(EmptyLayerTest, AFileThatIsNoGeoPackageIsNamedAndStaysAsItWas)
{
    m_folder.Write("layers.gpkg", "a shopping list");
    try {
        Create("Trees");
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), LayerUncreatable);
        EXPECT_TRUE(error.Description().contains("layers.gpkg"));
    }
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("a shopping list"));
}

TEST_F(EmptyLayerTest, AFailureLeavesNoFileBehind)
{
    EXPECT_THROW(CreateEmptyLayer(Path(), "Trees", FeatureKind::Area, "no system"), RunTimeError);
    EXPECT_FALSE(QFile::exists(Path()));
    EXPECT_THROW(
        CreateEmptyLayer(m_folder.Path("no folder/layers.gpkg"), "Trees", FeatureKind::Area, System),
        RunTimeError);
}

} // namespace Orvane

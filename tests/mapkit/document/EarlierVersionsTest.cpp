// SPDX-License-Identifier: MIT
#include "hostkit/common/HostErrors.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "hostkit/schemes/SchemeFile.h"
#include "mapkit/DataFolder.h"
#include "mapkit/RawDatabase.h"
#include "mapkit/document/MapDocument.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QFileInfo>

namespace Orvane::Testing {
namespace {

/// A map that version 0.1 of the program has made.
class MapOfVersion01 : public testing::Test
{
protected:
    MapOfVersion01()
    {
        QFile script(FixturePath("map_0_1.sql"));
        EXPECT_TRUE(script.open(QIODevice::ReadOnly));
        RawDatabase(m_path).Run(script.readAll().constData());
        m_document = MapDocument::Open(m_path);
    }

    static QString FixturePath(const char* name)
    {
        return QStringLiteral(FIXTURE_FOLDER "/") + QLatin1String(name);
    }
    Value Stored(const char* layer, const char* column) const
    {
        return m_document->Database()
            .OpenQuery(QStringLiteral("SELECT * FROM Layers WHERE Name = ?1"), {QString::fromUtf8(layer)})
            ->Field(column);
    }

    const DataFolder m_folder;
    const QString m_path = m_folder.Path("old.orvane");
    std::unique_ptr<MapDocument> m_document;
};

TEST_F(MapOfVersion01, IsReadWithItsDataAndSettings)
{
    EXPECT_EQ(m_document->System(), "EPSG:4326");
    ASSERT_EQ(m_document->Sources().size(), 3u);
    EXPECT_EQ(m_document->Sources()[0].path, QFileInfo(m_folder.Path("land.gpkg")).absoluteFilePath());
    EXPECT_EQ(m_document->Renderings().Of(3).classAttribute, "height");
}

TEST_F(MapOfVersion01, KeepsItsSchemes)
{
    LayerSchemes schemes(m_document->Database());
    EXPECT_EQ(schemes.Names(), (QStringList{"Night", "Standard"}));
    EXPECT_EQ(schemes.Current(), "Night");
    EXPECT_TRUE(schemes.LayersThatDiffer().isEmpty());
    EXPECT_EQ(schemes.Load("Standard"), QSet<qint32>{2});
    EXPECT_EQ(ToInt32(Stored("Rivers", "Color")), 255);
    EXPECT_FALSE(ToBoolean(Stored("Rivers", "Visible")));
}

TEST_F(MapOfVersion01, CanGetLayersAndSchemes)
{
    NewLayer layer;
    layer.name = "Lakes";
    m_document->AddLayer(layer);
    LayerSchemes(m_document->Database()).Create("Summer");
    EXPECT_EQ(LayerSchemes(m_document->Database()).Current(), "Summer");
}

TEST_F(MapOfVersion01, TakesASchemeFileOfThatVersion)
{
    const SchemeImport report
        = SchemeExchange::Import(m_document->Database(), SchemeFile::Read(FixturePath("scheme_0_1.json")));
    EXPECT_EQ(report.matched, 2);
    LayerSchemes(m_document->Database()).Load("Winter");
    EXPECT_EQ(ToInt32(Stored("Roads", "LineThickness")), -4);
    EXPECT_EQ(ToInt32(Stored("Woods", "OverrideMode")), 2);
    EXPECT_TRUE(Stored("Woods", "FillForeColor").IsNull());
}

TEST_F(MapOfVersion01, KeepsWhatASchemeFileSaysNothingAbout)
{
    QFile file(FixturePath("scheme_0_1.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    // As if that version did not have the column.
    const QByteArray text = file.readAll().replace("\"OverrideMode\":2,", "");
    const SchemeDocument scheme = SchemeDocument::FromJson(text);
    m_document->Database().Execute(QStringLiteral("UPDATE Layers SET OverrideMode = 1 WHERE Name = 'Woods'"));
    SchemeExchange::Import(m_document->Database(), scheme);
    LayerSchemes(m_document->Database()).Load("Winter");
    EXPECT_EQ(ToInt32(Stored("Woods", "OverrideMode")), 1);
    EXPECT_EQ(ToInt32(Stored("Woods", "Color")), 65280);
}

} // namespace
} // namespace Orvane::Testing

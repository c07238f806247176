// SPDX-License-Identifier: MIT
#include "mapkit/output/Legend.h"

#include "hostkit/StandardShellServices.h"
#include "mapkit/Drawings.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/output/LegendSample.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/LayerValues.h>

#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class LegendTest : public testing::Test
{
protected:
    qint32 Add(const QString& name)
    {
        NewLayer layer;
        layer.name = name;
        const qint32 layerID = m_document->AddLayer(layer);
        m_layers.push_back(FilledLayer(layerID, Qt::blue, Area(0, 0, 1, 1)));
        return layerID;
    }

    qint32 AddTo(qint32 groupID, const QString& name)
    {
        const qint32 layerID = Add(name);
        m_document->AddMember(groupID, layerID);
        return layerID;
    }

    std::vector<LegendRow> Rows() const { return LegendOf(m_document->Database(), m_services, m_layers); }

    // "# Group", "- Member", "Layer"
    std::vector<std::string> Texts() const
    {
        std::vector<std::string> texts;
        for (const LegendRow& row : Rows())
            texts.push_back(
                (row.heading ? "# " : std::string(size_t(row.indent), '-') + (row.indent ? " " : ""))
                + row.text.toStdString());
        return texts;
    }

    // The last layer becomes one of areas in two classes, with a feature in neither.
    void Classify(int fillStyle)
    {
        MapLayer& layer = m_layers.back();
        layer.values.fillStyle = fillStyle;
        layer.values.fillForeColor = TransparentColour;
        layer.values.fillBackColor = TransparentColour;
        layer.look = LookOf(layer.values, m_services, 4);
        const std::vector<double> numbers{1, std::numeric_limits<double>::quiet_NaN(), 20};
        layer.classes = std::make_shared<const Classification>(numbers, ClassDivision::EqualSteps, 2);
        layer.classLooks = ClassLooksOf(layer.values, {}, m_services, 2);
    }

    // The colour in the middle of each row's sample; white for none.
    std::vector<QColor> Samples() const
    {
        std::vector<QColor> colours;
        for (const LegendRow& row : Rows()) {
            QImage image(48, 28, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            if (row.sample)
                PaintLegendSample(painter, image.rect(), row);
            painter.end();
            colours.push_back(image.pixelColor(24, 14));
        }
        return colours;
    }

    const std::unique_ptr<MapDocument> m_document = MapDocument::Untitled();
    const StandardShellServices m_services{};
    std::vector<MapLayer> m_layers;
};

} // namespace

TEST_F(LegendTest, LayersStandBelowTheirGroupsInTheOrderOfTheLayerControl)
{
    const qint32 roads = m_document->AddGroup("Traffic", true);
    const qint32 land = m_document->AddGroup("Land", true);
    AddTo(land, "Woods");
    AddTo(roads, "Streets");
    AddTo(land, "Meadows");
    AddTo(roads, "Paths");
    Add("Names");
    EXPECT_THAT(
        Texts(), ElementsAre("# Traffic", "- Streets", "- Paths", "# Land", "- Woods", "- Meadows", "Names"));
}

TEST_F(LegendTest, AGroupOfOneLayerNeedsNoHeading)
{
    AddTo(m_document->AddGroup("roads", true), "roads");
    EXPECT_THAT(Texts(), ElementsAre("roads"));
}

TEST_F(LegendTest, ALayerInSeveralGroupsIsListedOnce)
{
    const qint32 first = m_document->AddGroup("First", true);
    const qint32 second = m_document->AddGroup("Second", true);
    m_document->AddMember(second, AddTo(first, "Both"));
    AddTo(first, "Other");
    EXPECT_THAT(Texts(), ElementsAre("# First", "- Both", "- Other"));
}

TEST_F(LegendTest, LayersThatAreNotAskedForAreLeftOut)
{
    Add("Shown");
    Add("Not shown");
    m_layers.pop_back();
    EXPECT_THAT(Texts(), ElementsAre("Shown"));
}

TEST_F(LegendTest, ARowKnowsTheKindOfItsFeaturesAndItsPattern)
{
    Add("Line");
    m_layers.back().features = Line({{0, 0}, {1, 1}});
    m_layers.back().mode = DrawMode::Backdrop;
    m_layers.back().values.fillStyle = 5;
    const std::vector<LegendRow> rows = Rows();
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].kind, FeatureKind::Line);
    EXPECT_TRUE(rows[0].backdrop);
    EXPECT_EQ(rows[0].fillPattern.width, 8);
}

TEST_F(LegendTest, TheClassesOfAGraduatedLayerStandBelowIt)
{
    AddTo(m_document->AddGroup("Land", true), "People");
    MapLayer& layer = m_layers.back();
    const std::vector<double> numbers{1, 2, 10, 20};
    layer.classes = std::make_shared<const Classification>(numbers, ClassDivision::EqualSteps, 2);
    layer.classLooks = {{QBrush(Qt::yellow), Qt::yellow}, {QBrush(Qt::red), Qt::red}};
    const std::vector<LegendRow> rows = Rows();
    EXPECT_THAT(Texts(), ElementsAre("People", "- 1.0 – 10.5", "- 10.5 – 20.0"));
    EXPECT_FALSE(rows[0].sample);
    EXPECT_TRUE(rows[1].sample);
    EXPECT_EQ(rows[1].values.fillForeColor, 0x00FFFF);
    EXPECT_EQ(rows[2].values.fillForeColor, 0x0000FF);
    EXPECT_EQ(rows[2].values.color, layer.values.color) << "areas keep their outline";
}

TEST_F(LegendTest, TheLimitsOfClassesAreWrittenOut)
{
    Add("Inhabitants");
    MapLayer& layer = m_layers.back();
    const std::vector<double> numbers{0.5, 1397715000};
    layer.classes = std::make_shared<const Classification>(numbers, ClassDivision::EqualSteps, 2);
    layer.classLooks = {{QBrush(Qt::yellow), Qt::yellow}, {QBrush(Qt::red), Qt::red}};
    EXPECT_THAT(Texts(), ElementsAre("Inhabitants", "- 1 – 698,857,500", "- 698,857,500 – 1,397,715,000"));
}

TEST_F(LegendTest, AClassOfOneValueIsOneNumber)
{
    Add("Boroughs");
    MapLayer& layer = m_layers.back();
    const std::vector<double> numbers{1, 2, 7, 7, 7, 7};
    layer.classes = std::make_shared<const Classification>(numbers, ClassDivision::Quantiles, 2);
    layer.classLooks = {{QBrush(Qt::yellow), Qt::yellow}, {QBrush(Qt::red), Qt::red}};
    EXPECT_THAT(Texts(), ElementsAre("Boroughs", "- 1 – 7", "- 7"));
}

TEST_F(LegendTest, TheAttributeStandsAboveItsClassesAndFeaturesWithoutDataBelow)
{
    AddTo(m_document->AddGroup("Land", true), "Countries");
    MapLayer& layer = m_layers.back();
    const std::vector<double> numbers{1, std::numeric_limits<double>::quiet_NaN(), 20};
    layer.classes = std::make_shared<const Classification>(numbers, ClassDivision::EqualSteps, 2);
    layer.classLooks = {{QBrush(Qt::yellow), Qt::yellow}, {QBrush(Qt::red), Qt::red}};
    layer.classAttribute = "population";
    EXPECT_THAT(
        Texts(), ElementsAre("Countries", "- population", "- 1.0 – 10.5", "- 10.5 – 20.0", "- No data"));
    EXPECT_FALSE(Rows()[1].sample);
    EXPECT_EQ(ColourFromBgr(Rows()[4].values.fillForeColor), UnclassedLook(layer.values).colour);
}

TEST_F(LegendTest, ClassesOfATransparentFillShowWhatTheMapFillsThemWith)
{
    Add("Countries");
    Classify(SolidFill);
    const std::vector<ClassLook>& looks = m_layers.back().classLooks;
    const QColor grey = UnclassedLook(m_layers.back().values).colour;
    EXPECT_THAT(Samples(), ElementsAre(Qt::white, looks[0].colour, looks[1].colour, grey));
}

TEST_F(LegendTest, FeaturesWithoutDataHaveAPlainFillBesideAPattern)
{
    constexpr int Pattern = 5;
    Add("Countries");
    Classify(Pattern);
    EXPECT_EQ(Samples().back(), UnclassedLook(m_layers.back().values).colour);
    EXPECT_EQ(Rows().back().values.fillStyle, SolidFill);
}

TEST_F(LegendTest, ClassesOfAHollowFillStayHollow)
{
    Add("Countries");
    Classify(HollowFill);
    EXPECT_THAT(Samples(), testing::Each(QColor(Qt::white)));
}

TEST_F(LegendTest, TheClassesOfLinesDifferInTheirColour)
{
    Add("Roads");
    MapLayer& layer = m_layers.back();
    layer.features = Line({{0, 0}, {1, 1}});
    const std::vector<double> numbers{1, 2};
    layer.classes = std::make_shared<const Classification>(numbers, ClassDivision::EqualSteps, 2);
    layer.classLooks = {{QBrush(Qt::yellow), Qt::yellow}, {QBrush(Qt::red), Qt::red}};
    EXPECT_EQ(Rows()[1].look.outline.color(), QColor(Qt::yellow));
    EXPECT_EQ(Rows()[2].look.outline.color(), QColor(Qt::red));
}

TEST_F(LegendTest, AMapWithoutLayersHasNone)
{
    EXPECT_THAT(Texts(), IsEmpty());
}

} // namespace Orvane

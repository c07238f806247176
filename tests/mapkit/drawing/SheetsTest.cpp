// SPDX-License-Identifier: MIT
#include "mapkit/drawing/Sheets.h"

#include "mapkit/DataFolder.h"
#include "mapkit/Drawings.h"
#include "mapkit/RasterFile.h"

#include <QPainter>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const MapView View({50, 50}, 1, QSize(100, 100));
constexpr double Scale = 10000;

std::vector<qint32> IDsOf(const std::vector<MapLayer>& layers, size_t maxSheets = 64)
{
    std::vector<qint32> layerIDs;
    for (const Sheet& sheet : PlanSheets(layers, View, Scale, maxSheets)) {
        for (const MapLayer& layer : sheet.layers)
            layerIDs.push_back(layer.layerID);
    }
    return layerIDs;
}

MapLayer Layer(qint32 layerID, int priority = 128)
{
    return FilledLayer(layerID, Qt::blue, Area(20, 20, 60, 60), priority);
}

MapLayer RasterLayer(const DataFolder& folder, qint32 layerID, int priority = LowestPriority)
{
    const QString path = folder.Path("photo.tif");
    WriteRaster(
        path, {.bands = 3, .transform = {0, 1, 0, 100, 0, -1}, .system = nullptr},
        [](int, int, int band) { return band == 2 ? 255 : 0; });
    MapLayer layer;
    layer.layerID = layerID;
    layer.priority = priority;
    layer.raster = std::make_shared<const MapRaster>(LayerSource{layerID, path, {}, {}}, QString());
    return layer;
}

QImage Picture(const std::vector<MapLayer>& layers, size_t maxSheets = 64)
{
    QImage image(View.Size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const std::atomic<bool> cancelled = false;
    for (const Sheet& sheet : PlanSheets(layers, View, Scale, maxSheets))
        PlaceSheet(painter, sheet, DrawSheet(sheet, View, 1, cancelled));
    return image;
}

} // namespace

TEST(Sheets, PriorityOneIsDrawnOnTop)
{
    EXPECT_THAT(IDsOf({Layer(1, 1), Layer(2, 255), Layer(3, 50)}), ElementsAre(2, 3, 1));
}

TEST(Sheets, TheOrderOfEqualPrioritiesIsTheOrderOfTheLayers)
{
    EXPECT_THAT(IDsOf({Layer(7), Layer(3), Layer(5)}), ElementsAre(3, 5, 7));
}

TEST(Sheets, BackdropLayersLieBelowAllOthers)
{
    MapLayer backdrop = Layer(1, 1);
    backdrop.mode = DrawMode::Backdrop;
    EXPECT_THAT(IDsOf({backdrop, Layer(2, 255)}), ElementsAre(1, 2));
}

TEST(Sheets, ARasterOfTheLowestPriorityLiesBelowAllFeatures)
{
    const DataFolder folder;
    MapLayer backdrop = Layer(1, 200);
    backdrop.mode = DrawMode::Backdrop;
    const std::vector<MapLayer> layers = {RasterLayer(folder, 9), backdrop, Layer(2, LowestPriority)};
    EXPECT_THAT(IDsOf(layers), ElementsAre(9, 1, 2));
    EXPECT_EQ(Picture(layers).pixelColor(5, 5), QColor(Qt::green)) << "not pale";
    EXPECT_NE(Picture({layers[0], backdrop}).pixelColor(40, 60), QColor(Qt::green))
        << "the pale layer is seen";
}

TEST(Sheets, ARasterOfAnyPriorityLiesBelowFeaturesOfTheSame)
{
    const DataFolder folder;
    EXPECT_THAT(IDsOf({RasterLayer(folder, 9, 100), Layer(1, 100), Layer(2, 200)}), ElementsAre(2, 9, 1));
}

TEST(Sheets, ARasterThatIsABackdropIsSeenAboveOneThatIsNot)
{
    const DataFolder folder;
    MapLayer backdrop = RasterLayer(folder, 1);
    backdrop.mode = DrawMode::Backdrop;
    EXPECT_THAT(IDsOf({RasterLayer(folder, 9), backdrop, Layer(2)}), ElementsAre(9, 1, 2));
}

TEST(Sheets, HiddenAndInvisibleLayersAreLeftOut)
{
    MapLayer hidden = Layer(1);
    hidden.mode = DrawMode::Hidden;
    MapLayer invisible = Layer(2);
    invisible.visible = false;
    EXPECT_THAT(IDsOf({hidden, invisible}), IsEmpty());
}

TEST(Sheets, LayersAreShownFromOneLimitOfScaleToTheOtherInclusive)
{
    MapLayer within = Layer(1);
    within.minDenominator = Scale;
    within.maxDenominator = Scale;
    MapLayer closer = Layer(2);
    closer.maxDenominator = Scale - 1;
    MapLayer farther = Layer(3);
    farther.minDenominator = Scale + 1;
    EXPECT_THAT(IDsOf({within, closer, farther}), ElementsAre(1));
}

TEST(Sheets, LayersThatAreOutOfViewOrNotReadAreLeftOut)
{
    MapLayer away = Layer(1);
    away.features = Area(500, 500, 600, 600);
    MapLayer unread = Layer(2);
    unread.features = nullptr;
    EXPECT_THAT(IDsOf({away, unread}), IsEmpty());
}

TEST(Sheets, ManyLayersShareSheetsWithoutChangingTheirOrder)
{
    std::vector<MapLayer> layers;
    for (qint32 layerID = 1; layerID <= 1000; ++layerID)
        layers.push_back(Layer(layerID));
    EXPECT_LE(PlanSheets(layers, View, Scale, 10).size(), 10u);
    EXPECT_EQ(IDsOf(layers, 10), IDsOf(layers, 1000));
}

TEST(Sheets, ABackdropLayerNeverSharesASheetWithANormalOne)
{
    MapLayer backdrop = Layer(1);
    backdrop.mode = DrawMode::Backdrop;
    EXPECT_EQ(PlanSheets({backdrop, Layer(2)}, View, Scale, 1).size(), 2u);
}

TEST(Sheets, TheTopLayersColourWins)
{
    const MapLayer below = FilledLayer(1, Qt::blue, Area(0, 0, 100, 100), 200);
    const MapLayer above = FilledLayer(2, Qt::red, Area(20, 20, 60, 60), 10);
    EXPECT_EQ(Picture({below, above}).pixelColor(40, 60), QColor(Qt::red));
    EXPECT_EQ(Picture({below, above}).pixelColor(5, 5), QColor(Qt::blue));
}

TEST(Sheets, ABackdropIsPale)
{
    MapLayer backdrop = Layer(1);
    backdrop.mode = DrawMode::Backdrop;
    const QColor pale = Picture({backdrop}).pixelColor(40, 60);
    EXPECT_EQ(pale.blue(), 255);
    EXPECT_GT(pale.red(), 120);
    EXPECT_LT(pale.red(), 255);
}

TEST(Sheets, SharingASheetDoesNotChangeThePicture)
{
    const std::vector<MapLayer> layers
        = {FilledLayer(1, Qt::blue, Area(0, 0, 100, 100), 200),
           FilledLayer(2, Qt::red, Area(20, 20, 60, 60), 10),
           FilledLayer(3, Qt::green, Area(50, 50, 90, 90), 5)};
    EXPECT_EQ(Picture(layers, 1), Picture(layers, 64));
}

TEST(Sheets, AnImageIsCutToWhatItsLayersCanCover)
{
    const std::atomic<bool> cancelled = false;
    const SheetImage image = DrawSheet({{Layer(1)}, false}, View, 2, cancelled);
    EXPECT_LT(image.image.width(), 2 * 70);
    EXPECT_GE(image.image.width(), 2 * 40);
    EXPECT_EQ(image.image.devicePixelRatio(), 2);
}

TEST(Sheets, LabelsLieAboveEverythingAndThoseOfTheBackdropAboveTheBackdrop)
{
    AttributeColumn column;
    column.texts = {"A"};
    const auto labels = std::make_shared<const AttributeColumn>(column);
    MapLayer backdrop = Layer(1);
    backdrop.mode = DrawMode::Backdrop;
    backdrop.labels = labels;
    MapLayer normal = Layer(2);
    normal.labels = labels;
    const std::vector<Sheet> sheets = PlanSheets({backdrop, normal, Layer(3)}, View, Scale);
    ASSERT_EQ(sheets.size(), 5u);
    EXPECT_TRUE(sheets[1].labels && sheets[1].backdrop);
    EXPECT_TRUE(sheets[4].labels && !sheets[4].backdrop);
    EXPECT_THAT(sheets[4].layers, testing::SizeIs(1));
    EXPECT_NE(sheets[4].Key(), sheets[2].Key());
}

} // namespace Orvane

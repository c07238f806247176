// SPDX-License-Identifier: MIT
#include "mapkit/canvas/MapPicture.h"

#include "mapkit/Drawings.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

const MapView View({50, 50}, 1, QSize(100, 100));
constexpr double Scale = 10000;

class MapPictureTest : public testing::Test
{
protected:
    void Show(std::vector<MapLayer> layers)
    {
        m_layers = layers;
        m_picture.SetLayers(std::move(layers));
        Wait();
    }

    void Wait()
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !m_picture.IsBusy(); }));
    }

    // The layers drawn since the last call.
    std::vector<qint32> Drawn()
    {
        std::vector<qint32> layerIDs;
        for (const QList<QVariant>& arguments : m_drawn)
            layerIDs.push_back(arguments.first().toInt());
        m_drawn.clear();
        return layerIDs;
    }

    QColor At(int x, int y) const { return m_picture.Image().pixelColor(x, y); }

    void SetUp() override
    {
        m_picture.SetView(View, Scale, 1);
        Show(
            {FilledLayer(1, Qt::blue, Area(0, 0, 100, 100), 200),
             FilledLayer(2, Qt::red, Area(20, 20, 60, 60), 10),
             FilledLayer(3, Qt::green, Area(50, 50, 90, 90), 5)});
        EXPECT_THAT(Drawn(), UnorderedElementsAre(1, 2, 3));
    }

    MapPicture m_picture;
    QSignalSpy m_drawn{&m_picture, &MapPicture::LayerDrawn};
    std::vector<MapLayer> m_layers;
};

} // namespace

TEST_F(MapPictureTest, ShowsTheLayersInTheirOrder)
{
    EXPECT_EQ(At(5, 5), QColor(Qt::blue));
    EXPECT_EQ(At(30, 70), QColor(Qt::red));
    EXPECT_EQ(At(55, 45), QColor(Qt::green));
}

TEST_F(MapPictureTest, AChangedLayerIsDrawnAloneAndOnce)
{
    m_layers[1] = FilledLayer(2, Qt::yellow, m_layers[1].features, 10);
    Show(m_layers);
    EXPECT_THAT(Drawn(), ElementsAre(2));
    EXPECT_EQ(At(30, 70), QColor(Qt::yellow));
}

TEST_F(MapPictureTest, HidingALayerDrawsNothingAgain)
{
    m_layers[1].visible = false;
    Show(m_layers);
    EXPECT_THAT(Drawn(), IsEmpty());
    EXPECT_EQ(At(30, 70), QColor(Qt::blue));
}

TEST_F(MapPictureTest, ALayerThatComesBackIsDrawnAlone)
{
    m_layers[1].visible = false;
    Show(m_layers);
    m_layers[1].visible = true;
    Show(m_layers);
    EXPECT_THAT(Drawn(), ElementsAre(2));
    EXPECT_EQ(At(30, 70), QColor(Qt::red));
}

TEST_F(MapPictureTest, AnotherPriorityDrawsNothingAgain)
{
    m_layers[1].priority = 1;
    Show(m_layers);
    EXPECT_THAT(Drawn(), IsEmpty());
    EXPECT_EQ(At(55, 45), QColor(Qt::red));
}

TEST_F(MapPictureTest, ABackdropLayerIsLaidDownPaleWithoutDrawing)
{
    m_layers[0].visible = false;
    m_layers[1].mode = DrawMode::Backdrop;
    Show(m_layers);
    EXPECT_THAT(Drawn(), IsEmpty());
    EXPECT_EQ(At(30, 70).red(), 255);
    EXPECT_GT(At(30, 70).green(), 120);
}

TEST_F(MapPictureTest, ALayerThatIsGoneIsNoLongerShown)
{
    m_layers.erase(m_layers.begin() + 1);
    Show(m_layers);
    EXPECT_EQ(At(30, 70), QColor(Qt::blue));
}

TEST_F(MapPictureTest, NewFeaturesDrawTheLayerAgain)
{
    m_layers[1].features = Area(0, 0, 10, 10);
    Show(m_layers);
    EXPECT_THAT(Drawn(), ElementsAre(2));
    EXPECT_EQ(At(5, 95), QColor(Qt::red));
}

TEST_F(MapPictureTest, AnotherViewDrawsEverythingAgain)
{
    m_picture.SetView(View.Panned({10, 0}), Scale, 1);
    Wait();
    EXPECT_THAT(Drawn(), UnorderedElementsAre(1, 2, 3));
    EXPECT_EQ(m_picture.ImageView(), View.Panned({10, 0}));
}

TEST_F(MapPictureTest, TheSameViewAgainDrawsNothing)
{
    m_picture.SetView(View, Scale, 1);
    Wait();
    EXPECT_THAT(Drawn(), IsEmpty());
}

TEST_F(MapPictureTest, QuickPansDrawOnlyTheLastView)
{
    for (int step = 1; step <= 20; ++step)
        m_picture.SetView(View.Panned({double(step), 0}), Scale, 1);
    Wait();
    EXPECT_THAT(Drawn(), UnorderedElementsAre(1, 2, 3));
    EXPECT_EQ(m_picture.ImageView(), View.Panned({20, 0}));
}

TEST_F(MapPictureTest, TheOldPictureStaysUntilTheNewOneIsReady)
{
    m_picture.SetView(View.Panned({10, 0}), Scale, 1);
    EXPECT_TRUE(m_picture.IsBusy());
    EXPECT_EQ(m_picture.ImageView(), View);
    Wait();
}

TEST_F(MapPictureTest, BusyIsToldOnceForBeginningAndEnd)
{
    QSignalSpy busy(&m_picture, &MapPicture::BusyChanged);
    m_picture.SetView(View.Panned({10, 0}), Scale, 1);
    Wait();
    ASSERT_EQ(busy.size(), 2);
    EXPECT_TRUE(busy[0][0].toBool());
    EXPECT_FALSE(busy[1][0].toBool());
}

TEST(MapPicture, EndingItWhileItDrawsIsHarmless)
{
    MapPicture picture;
    picture.SetView(View, Scale, 1);
    std::vector<MapLayer> layers;
    for (qint32 layerID = 1; layerID <= 50; ++layerID)
        layers.push_back(FilledLayer(layerID, Qt::blue, Area(0, 0, 100, 100)));
    picture.SetLayers(layers);
    EXPECT_TRUE(picture.IsBusy());
}

TEST_F(MapPictureTest, AnotherBackgroundDrawsTheLabelsAgainWithItsHalo)
{
    MapLayer named = FilledLayer(1, Qt::gray, Area(0, 0, 100, 100));
    AttributeColumn column;
    column.texts = {"Oslo"};
    named.labels = std::make_shared<const AttributeColumn>(column);
    Show({named});
    const QColor night(20, 24, 40);
    const auto count = [&](const QColor& colour) {
        int pixels = 0;
        for (int x = 0; x < 100; ++x) {
            for (int y = 0; y < 100; ++y)
                pixels += At(x, y) == colour;
        }
        return pixels;
    };
    ASSERT_GT(count(Qt::white), 10);
    m_picture.SetBackground(night);
    Wait();
    EXPECT_GT(count(night), 10);
    EXPECT_EQ(count(Qt::white), 0);
}

} // namespace Orvane

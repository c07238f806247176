// SPDX-License-Identifier: MIT
#include "mapkit/output/ScaleBar.h"

#include <QImage>
#include <QLocale>
#include <QPainter>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

QImage Painted(const ScaleBar& bar)
{
    QImage image(300, 60, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    QPainter painter(&image);
    bar.Paint(painter, {10, 10});
    return image;
}

int Count(const QImage& image, Qt::GlobalColor colour, int y)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += image.pixelColor(x, y) == QColor(colour) ? 1 : 0;
    return count;
}

} // namespace

TEST(ScaleBar, TheLengthIsRoundAndFits)
{
    for (double metresPerPixel = 0.01; metresPerPixel < 1e6; metresPerPixel *= 1.37) {
        const auto bar = ScaleBar::Fitting(metresPerPixel, 180);
        EXPECT_LE(bar.Length(), 180);
        EXPECT_GT(bar.Length(), 180 / 2.51) << metresPerPixel;
        EXPECT_DOUBLE_EQ(bar.Length() * metresPerPixel, bar.Metres());
    }
}

TEST(ScaleBar, OneTwoAndFiveAreTheRoundNumbers)
{
    EXPECT_DOUBLE_EQ(ScaleBar::Fitting(1, 199).Metres(), 100);
    EXPECT_DOUBLE_EQ(ScaleBar::Fitting(1, 200).Metres(), 200);
    EXPECT_DOUBLE_EQ(ScaleBar::Fitting(1, 499).Metres(), 200);
    EXPECT_DOUBLE_EQ(ScaleBar::Fitting(1, 500).Metres(), 500);
}

TEST(ScaleBar, LongDistancesAreKilometres)
{
    EXPECT_EQ(ScaleBar::Fitting(1, 500).Label(), "500 m");
    EXPECT_EQ(ScaleBar::Fitting(10, 200).Label(), "2 km");
    EXPECT_EQ(ScaleBar::Fitting(0.005, 100).Label(), QLocale().toString(0.5) + " m");
}

TEST(ScaleBar, HalfOfTheBarIsBlack)
{
    const auto bar = ScaleBar::Fitting(1, 200);
    const QImage image = Painted(bar);
    int most = 0;
    for (int y = 0; y < image.height(); ++y)
        most = std::max(most, Count(image, Qt::black, y));
    EXPECT_NEAR(most, 200 / 2, 6);
}

TEST(ScaleBar, NothingIsPaintedOutsideItsSize)
{
    const auto bar = ScaleBar::Fitting(1, 200, "1:1,000");
    const QImage image = Painted(bar);
    const QRect inside = QRectF({10, 10}, bar.Size()).toAlignedRect().adjusted(-1, -1, 1, 1);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor expected = inside.contains(x, y) ? image.pixelColor(x, y) : QColor(Qt::yellow);
            ASSERT_EQ(image.pixelColor(x, y), expected) << x << ',' << y;
        }
    }
}

} // namespace Orvane

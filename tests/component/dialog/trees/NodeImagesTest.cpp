// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeImages.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <cmath>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

struct Kind {
    bool isGroup;
    qint16 quickMode;
};

const std::vector<Kind> AllKinds{{false, 0}, {false, 1}, {false, 2}, {false, 4},
                                 {true, 0},  {true, 1},  {true, 2},  {true, 4}};

// Black on white, so that the images must differ without colour.
QImage Painted(const Kind& kind, int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintNodeImage(painter, image.rect(), kind.isGroup, kind.quickMode, Qt::black);
    return image;
}

// On a screen of that scale; with an icon, the icon paints it.
QImage PaintedAt(double scale, int side, const Kind& kind, const QIcon* icon)
{
    QImage image(int(side * scale), int(side * scale), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    const QRect area(0, 0, side, side);
    if (icon)
        icon->paint(&painter, area);
    else
        PaintNodeImage(painter, area, kind.isGroup, kind.quickMode, Qt::black);
    return image;
}

int LargestDifference(const QImage& left, const QImage& right)
{
    int largest = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x)
            largest = std::max(largest, std::abs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y))));
    }
    return largest;
}

int DifferingPixels(const QImage& left, const QImage& right)
{
    int differing = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x)
            differing += std::abs(qGray(left.pixel(x, y)) - qGray(right.pixel(x, y))) > 100 ? 1 : 0;
    }
    return differing;
}

QPalette PaletteOf(const QColor& text, const QColor& highlightedText)
{
    QPalette palette;
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::HighlightedText, highlightedText);
    return palette;
}

bool HasPixel(const QImage& image, const QColor& colour)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == colour)
                return true;
        }
    }
    return false;
}

} // namespace

TEST(NodeImages, AreToldApartWithoutColourAtEverySize)
{
    for (int side : {16, 24, 32}) {
        for (size_t left = 0; left < AllKinds.size(); ++left) {
            for (size_t right = left + 1; right < AllKinds.size(); ++right) {
                const int differing
                    = DifferingPixels(Painted(AllKinds[left], side), Painted(AllKinds[right], side));
                EXPECT_GE(differing, side / 2) << left << " and " << right << " at " << side;
            }
        }
    }
}

TEST(NodeImages, KeepTheirMarginFree)
{
    for (const Kind& kind : AllKinds) {
        const QImage image = Painted(kind, 32);
        for (int place = 0; place < 32; ++place) {
            EXPECT_EQ(image.pixelColor(place, 0), QColor(Qt::white));
            EXPECT_EQ(image.pixelColor(0, place), QColor(Qt::white));
        }
    }
}

TEST(NodeImages, AreDrawnAnewForEachResolution)
{
    const QImage small = Painted({true, 1}, 16).scaled(32, 32);
    EXPECT_GT(DifferingPixels(small, Painted({true, 1}, 32)), 0);
}

TEST(NodeImages, ShowAnUnknownModeAsVarious)
{
    EXPECT_EQ(DifferingPixels(Painted({false, 3}, 32), Painted({false, 0}, 32)), 0);
}

TEST(NodeImages, TakeTheTextColoursOfThePalette)
{
    const NodeImages images;
    const QIcon icon = images.Icon(false, 1, PaletteOf(Qt::yellow, Qt::cyan), QPalette::Active);
    EXPECT_TRUE(HasPixel(icon.pixmap(32, 32).toImage(), Qt::yellow));
    EXPECT_TRUE(HasPixel(icon.pixmap(QSize(32, 32), QIcon::Selected).toImage(), Qt::cyan));
}

TEST(NodeImages, LookTheSameAsIconsAtEverySizeAndScale)
{
    const NodeImages images;
    for (const Kind& kind : AllKinds) {
        const QIcon icon
            = images.Icon(kind.isGroup, kind.quickMode, PaletteOf(Qt::black, Qt::cyan), QPalette::Active);
        for (const int side : {16, 24, 16}) {
            for (const double scale : {1.0, 1.5, 2.0}) {
                const QImage painted = PaintedAt(scale, side, kind, nullptr);
                // A pixmap rounds once more.
                EXPECT_LE(LargestDifference(PaintedAt(scale, side, kind, &icon), painted), 2);
            }
        }
    }
}

TEST(NodeImages, AreMadeOnceForAPaletteAndAnewForAnother)
{
    const NodeImages images;
    const QPalette palette = PaletteOf(Qt::yellow, Qt::cyan);
    const qint64 first = images.Icon(false, 1, palette, QPalette::Active).cacheKey();
    EXPECT_EQ(images.Icon(false, 1, palette, QPalette::Active).cacheKey(), first);
    const QIcon dark = images.Icon(false, 1, PaletteOf(Qt::white, Qt::black), QPalette::Active);
    EXPECT_TRUE(HasPixel(dark.pixmap(32, 32).toImage(), Qt::white));
}

TEST(NodeImages, LeaveTheGroundTransparent)
{
    const NodeImages images;
    const QIcon icon = images.Icon(true, 4, QPalette(), QPalette::Active);
    EXPECT_EQ(icon.pixmap(32, 32).toImage().pixelColor(0, 0).alpha(), 0);
}

} // namespace Orvane

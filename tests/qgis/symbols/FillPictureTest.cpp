// SPDX-License-Identifier: MIT
#include "qgis/symbols/FillPicture.h"

#include "hostkit/common/FillPatterns.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

constexpr qint32 Red = Bgr(0xFF0000);
constexpr qint32 Blue = Bgr(0x0000FF);
constexpr qint32 Green = Bgr(0x00FF00);

QImage ImageOf(const FillPicture& picture, qint32 lineColour = 0)
{
    const QString encoded = picture.Encoded(lineColour);
    return QImage::fromData(QByteArray::fromBase64(encoded.mid(7).toLatin1()));
}

} // namespace

TEST(FillPicture, EveryPatternTellsItsNumberAndColours)
{
    for (qint32 style = 0; style <= LastFillStyle; ++style) {
        const FillPicture picture{style, Red, style % 2 == 0 ? TransparentColour : Blue};
        EXPECT_EQ(FillPicture::Decoded(picture.Encoded(0)), picture);
    }
}

TEST(FillPicture, ShowsThePatternInItsColours)
{
    const QImage image = ImageOf({9, Red, Blue});
    const MonochromeBitmap pattern = FillPatterns::Bitmap(9);
    const int bit = image.width() / 8;
    ASSERT_GT(bit, 0);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const bool set = (quint8(pattern.rows.at(y)) << x & 0x80) != 0;
            EXPECT_EQ(image.pixelColor(x * bit, y * bit), set ? QColor(Qt::red) : QColor(Qt::blue));
            EXPECT_EQ(image.pixel(x * bit, y * bit), image.pixel(x * bit + bit - 1, y * bit + bit - 1));
        }
    }
}

TEST(FillPicture, ATransparentBackIsSeenThrough)
{
    const QImage image = ImageOf({13, Red, TransparentColour});
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(image.width() / 2, 0).alpha(), 0);
}

TEST(FillPicture, APatternWithoutColoursIsDrawnInTheLineColour)
{
    const QImage image = ImageOf({13, TransparentColour, TransparentColour}, Green);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(image.width() / 2, 0).alpha(), 0);
}

TEST(FillPicture, OtherPicturesAreNotOurs)
{
    EXPECT_FALSE(FillPicture::Decoded(QStringLiteral("/tmp/stones.png")));
    EXPECT_FALSE(FillPicture::Decoded(QString()));
    EXPECT_FALSE(FillPicture::Decoded(QStringLiteral("base64:")));
    EXPECT_FALSE(FillPicture::Decoded(QStringLiteral("base64:c3RvbmVz")));
}

TEST(FillPicture, PicturesThatTellNonsenseAreNotOurs)
{
    for (const char* text : {"32 0 0", "-1 0 0", "3 0", "3 0 0 0", "a b c", ""}) {
        QImage image(8, 8, QImage::Format_Mono);
        image.fill(0);
        image.setText(QStringLiteral("Orvane"), QString::fromLatin1(text));
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        EXPECT_FALSE(FillPicture::Decoded(QStringLiteral("base64:") + QString::fromLatin1(bytes.toBase64())))
            << text;
    }
}

TEST(FillPicture, ThereIsNoPatternThirtyTwo)
{
    EXPECT_THROW((FillPicture{32, 0, 0}.Encoded(0)), RunTimeError);
}

} // namespace Orvane

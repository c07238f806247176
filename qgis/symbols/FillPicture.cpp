// SPDX-License-Identifier: MIT
#include "qgis/symbols/FillPicture.h"

#include "hostkit/common/FillPatterns.h"
#include "samples/BgrColour.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QStringList>

namespace Orvane {

namespace {

const QString Prefix = QStringLiteral("base64:");
const QString TextKey = QStringLiteral("Orvane");
constexpr int BitSide = 8; // pixels: paper shows a bit on several dots, and it must stay sharp

QRgb PaintOf(qint32 colour)
{
    return IsTransparent(colour) ? qRgba(0, 0, 0, 0) : QColorFromBgr(colour).rgb();
}

bool IsBitSet(const MonochromeBitmap& pattern, int x, int y)
{
    const int stride = (pattern.width + 7) / 8;
    return ((pattern.rows.at(y * stride + x / 8) << (x % 8)) & 0x80) != 0;
}

QImage PictureOf(const MonochromeBitmap& pattern, QRgb fore, QRgb back)
{
    QImage image(pattern.width * BitSide, pattern.height * BitSide, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, IsBitSet(pattern, x / BitSide, y / BitSide) ? fore : back);
    }
    return image;
}

QString TextOf(const FillPicture& picture)
{
    return QStringLiteral("%1 %2 %3").arg(picture.style).arg(picture.fore).arg(picture.back);
}

std::optional<FillPicture> PictureFrom(const QString& text)
{
    const QStringList numbers = text.split(QLatin1Char(' '));
    if (numbers.size() != 3)
        return std::nullopt;
    return FillPicture{numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt()};
}

} // namespace

QString FillPicture::Encoded(qint32 lineColour) const
{
    const bool both = IsTransparent(fore) && IsTransparent(back);
    const QRgb shownFore = both ? QColorFromBgr(lineColour).rgb() : PaintOf(fore);
    QImage image = PictureOf(FillPatterns::Bitmap(style), shownFore, PaintOf(back));
    image.setText(TextKey, TextOf(*this));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return Prefix + QString::fromLatin1(bytes.toBase64());
}

std::optional<FillPicture> FillPicture::Decoded(const QString& path)
{
    if (!path.startsWith(Prefix))
        return std::nullopt;
    QByteArray bytes = QByteArray::fromBase64(path.mid(Prefix.size()).toLatin1());
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return PictureFrom(reader.text(TextKey));
}

} // namespace Orvane

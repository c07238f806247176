// SPDX-License-Identifier: MIT
#include "qgis/symbols/FillPicture.h"

#include "hostkit/common/FillPatterns.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/LayerValues.h>

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

// Two colours pack faster and smaller than the many that a picture can have.
QImage PictureOf(const MonochromeBitmap& pattern, QRgb fore, QRgb back)
{
    const auto* bits = reinterpret_cast<const uchar*>(pattern.rows.constData());
    const QImage small(bits, pattern.width, pattern.height, (pattern.width + 7) / 8, QImage::Format_Mono);
    QImage image = small.scaled(small.size() * BitSide);
    image.setColorTable({back, fore});
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
    bool ok[3] = {};
    const FillPicture picture{
        numbers.at(0).toInt(&ok[0]), numbers.at(1).toInt(&ok[1]), numbers.at(2).toInt(&ok[2])};
    const bool isPattern = ok[0] && ok[1] && ok[2] && picture.style >= 0 && picture.style <= LastFillStyle;
    return isPattern ? std::optional(picture) : std::nullopt;
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

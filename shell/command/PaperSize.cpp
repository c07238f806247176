// SPDX-License-Identifier: MIT
#include "shell/command/PaperSize.h"

#include "mapkit/output/Papers.h"

#include <QRegularExpression>

namespace Orvane {

namespace {

std::optional<PaperSize> ReadSides(const QString& text)
{
    static const QRegularExpression sides(
        QStringLiteral("^(\\d{1,5}(?:\\.\\d+)?)x(\\d{1,5}(?:\\.\\d+)?)(mm|px)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = sides.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const bool inPixels = match.captured(3).compare(QLatin1String("px"), Qt::CaseInsensitive) == 0;
    const QSizeF size(match.captured(1).toDouble(), match.captured(2).toDouble());
    const double most = inPixels ? Papers::MostPixels : Papers::MostMillimetres;
    const auto fits = [most](double side) { return side >= Papers::Least && side <= most; };
    if (!fits(size.width()) || !fits(size.height()))
        return std::nullopt;
    return PaperSize{size, inPixels};
}

} // namespace

QSizeF PaperSize::Millimetres(int resolution) const
{
    return inPixels ? size * (MillimetresPerInch / resolution) : size;
}

std::optional<PaperSize> ReadPaperSize(const QString& text, bool portrait)
{
    for (const Paper& paper : Papers::All()) {
        if (text.compare(paper.name, Qt::CaseInsensitive) == 0)
            return PaperSize{portrait ? paper.upright : paper.upright.transposed()};
    }
    return ReadSides(text.trimmed());
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "mapkit/output/PageLayout.h"

#include "mapkit/output/PageFonts.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr double BlockGap = 12;
constexpr double MostForLegend = 1.0 / 3;

// Removes the title's line from the top of the room, and returns it.
QRectF TakeTitle(QRectF& room)
{
    const double height = std::min(QFontMetricsF(PageFonts::Title()).height(), room.height() / 3);
    const QRectF title(room.topLeft(), QSizeF(room.width(), height));
    room.setTop(title.bottom() + BlockGap / 2);
    return title;
}

QRectF TakeLegend(QRectF& room, const LegendBlock& legend, LegendBlock::Place place)
{
    const bool beside = place == LegendBlock::Place::Beside;
    const QSizeF most(
        beside ? room.width() * MostForLegend : room.width(),
        beside ? room.height() : room.height() * MostForLegend);
    const QSizeF size = legend.SizeWithin(most);
    if (size.isEmpty())
        return {};
    if (beside) {
        const QRectF taken(room.right() - size.width(), room.top(), size.width(), room.height());
        room.setRight(taken.left() - BlockGap);
        return taken;
    }
    const QRectF taken(room.left(), room.bottom() - size.height(), room.width(), size.height());
    room.setBottom(taken.top() - BlockGap);
    return taken;
}

QRectF OnWholePixels(const QRectF& room)
{
    const QSizeF size(std::max(1.0, std::floor(room.width())), std::max(1.0, std::floor(room.height())));
    return {room.topLeft(), size};
}

} // namespace

LegendBlock::Place LegendPlace(const PageSettings& settings)
{
    const bool wide = settings.size.width() >= settings.size.height();
    return wide ? LegendBlock::Place::Beside : LegendBlock::Place::Below;
}

PageLayout LayOutPage(const PageSettings& settings, const std::vector<LegendRow>& legend)
{
    PageLayout layout;
    layout.page = settings.size * PagePixelsPerMillimetre;
    const double widest = std::min(layout.page.width(), layout.page.height()) / 4;
    const double margin = std::min(settings.margin * PagePixelsPerMillimetre, widest);
    QRectF room = QRectF({0, 0}, layout.page).adjusted(margin, margin, -margin, -margin);
    if (!settings.title.isEmpty())
        layout.title = TakeTitle(room);
    if (settings.legend) {
        const LegendBlock::Place place = LegendPlace(settings);
        layout.legend = TakeLegend(room, LegendBlock(legend, place), place);
    }
    layout.map = margin > 0 ? OnWholePixels(room) : QRectF(room.topLeft(), room.toAlignedRect().size());
    return layout;
}

} // namespace Orvane

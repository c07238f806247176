// SPDX-License-Identifier: MIT
#include "mapkit/drawing/Labels.h"

#include "mapkit/drawing/Clipping.h"
#include "mapkit/drawing/LabelSpace.h"
#include "mapkit/drawing/PixelGeometry.h"

#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

constexpr double PixelsPerPoint = 96.0 / 72;
constexpr double Padding = 2; // pixels around a label that no other may enter
constexpr double HaloWidth = 3; // pixels, half of it outside the letters
constexpr float LightHalo = 0.7F; // least lightness
constexpr float DarkHalo = 0.3F; // greatest lightness
constexpr float LightestOnLight = 0.35F;
constexpr float DarkestOnDark = 0.75F;
constexpr double Detail = 1; // pixels by which geometry may be simplified here
constexpr double SameTextApart = 220; // pixels between labels of lines with the same text
constexpr double SymbolGrid = 4; // pixels
constexpr qsizetype LongestText = 80; // characters

QString OneLine(const QString& text)
{
    const QString line = text.simplified();
    return line.size() > LongestText ? line.left(LongestText - 1) + QChar(0x2026) : line;
}

double LengthOf(const QPolygonF& line)
{
    double length = 0;
    for (qsizetype i = 1; i < line.size(); ++i)
        length += QLineF(line[i - 1], line[i]).length();
    return length;
}

QPolygonF BoxOf(const LabelSpot& spot, QSizeF size)
{
    const QRectF box(-size.width() / 2, -size.height() / 2, size.width(), size.height());
    const QTransform place = QTransform().translate(spot.centre.x(), spot.centre.y()).rotate(spot.angle);
    return place.map(QPolygonF(box.adjusted(-Padding, -Padding, Padding, Padding)).mid(0, 4));
}

// Places the labels of one layer after another in the space that they share.
class LabelPlacer
{
public:
    explicit LabelPlacer(const MapView& view)
        : m_view(view), m_window({0, 0}, QSizeF(view.Size())), m_metrics(LabelFont())
    {
    }

    // Reserves the area of each symbol, so that no label covers it. Only one of several symbols in the same
    // place is used.
    void KeepClearOfSymbols(const MapLayer& layer)
    {
        QHash<QPoint, bool> known;
        const double radius = layer.look.symbolRadius;
        for (const FeatureSet::Feature& feature : layer.features->Features()) {
            if (feature.kind != FeatureKind::Point || !feature.bounds.Intersects(m_view.Extent()))
                continue;
            const QPointF centre = ToPixels(feature.bounds, m_view).center();
            if (std::exchange(known[(centre / SymbolGrid).toPoint()], true))
                continue;
            m_space.Block(
                QPolygonF(QRectF(-radius, -radius, 2 * radius, 2 * radius).translated(centre)).mid(0, 4));
        }
    }

    void Place(const MapLayer& layer, const std::atomic<bool>& cancelled)
    {
        m_sameText.clear();
        for (const size_t feature : InView(layer)) {
            if (cancelled)
                return;
            const QString text = OneLine(layer.labels->texts[feature]);
            if (!text.isEmpty())
                PlaceFeature(layer, layer.features->Features()[feature], text);
        }
    }

    std::vector<Label> Take() { return std::move(m_labels); }

private:
    // The features in view, largest first; points stay in their order.
    std::vector<size_t> InView(const MapLayer& layer) const
    {
        const std::vector<FeatureSet::Feature>& features = layer.features->Features();
        const Box extent = m_view.Extent();
        std::vector<size_t> shown;
        for (size_t i = 0; i < features.size() && i < layer.labels->texts.size(); ++i) {
            if (features[i].bounds.Intersects(extent))
                shown.push_back(i);
        }
        const auto size = [&](size_t i) { return features[i].bounds.Width() + features[i].bounds.Height(); };
        std::stable_sort(shown.begin(), shown.end(), [&](size_t a, size_t b) { return size(a) > size(b); });
        return shown;
    }

    void PlaceFeature(const MapLayer& layer, const FeatureSet::Feature& feature, const QString& text)
    {
        const QSizeF size(m_metrics.horizontalAdvance(text), m_metrics.height());
        if (feature.kind != FeatureKind::Point && !CanHold(feature.bounds, size))
            return;
        for (const LabelSpot& spot : SpotsOf(layer, feature, size)) {
            if (feature.kind == FeatureKind::Line && IsRepeated(text, spot.centre))
                continue;
            const QPolygonF box = BoxOf(spot, size);
            if (!m_window.contains(box.boundingRect()) || !m_space.Take(box))
                continue;
            m_labels.push_back({text, spot, layer.look.text});
            m_sameText[text].push_back(spot.centre);
            return;
        }
    }

    // Avoids the search in features that are too small in every direction.
    bool CanHold(const Box& bounds, QSizeF size) const
    {
        const QRectF pixels = ToPixels(bounds, m_view);
        return pixels.width() + pixels.height() >= size.width();
    }

    std::vector<LabelSpot>
    SpotsOf(const MapLayer& layer, const FeatureSet::Feature& feature, QSizeF size) const
    {
        if (feature.endPart == feature.firstPart)
            return {};
        const double pen = layer.look.cased ? layer.look.cased->casing.widthF() : layer.look.outline.widthF();
        switch (feature.kind) {
        case FeatureKind::Point:
            return LabelSpots::AroundPoint(
                m_view.ToPixel(layer.features->Part(feature.firstPart)[0]), layer.look.symbolRadius, size);
        case FeatureKind::Line:
            return LabelSpots::AlongLine(LongestInWindow(*layer.features, feature), pen, size);
        case FeatureKind::Area:
            return LabelSpots::InsideArea(RingsInWindow(*layer.features, feature), size);
        }
        return {};
    }

    // The longest continuous part of the feature that is in the window.
    QPolygonF LongestInWindow(const FeatureSet& features, const FeatureSet::Feature& feature) const
    {
        QPolygonF longest;
        double longestLength = 0;
        for (quint32 part = feature.firstPart; part < feature.endPart; ++part) {
            for (const ClippedRun& run : ClipLine(ToPixels(features.Part(part), m_view, Detail), m_window)) {
                const double length = LengthOf(run.points);
                if (length > longestLength) {
                    longest = run.points;
                    longestLength = length;
                }
            }
        }
        return longest;
    }

    std::vector<QPolygonF> RingsInWindow(const FeatureSet& features, const FeatureSet::Feature& feature) const
    {
        std::vector<QPolygonF> rings;
        for (quint32 part = feature.firstPart; part < feature.endPart; ++part) {
            const QPolygonF ring = ClipRing(ToPixels(features.Part(part), m_view, Detail), m_window);
            if (ring.size() > 2)
                rings.push_back(ring);
        }
        return rings;
    }

    // A street of many pieces is labelled at intervals, not once per piece.
    bool IsRepeated(const QString& text, QPointF centre) const
    {
        const std::vector<QPointF> others = m_sameText.value(text);
        return std::any_of(others.begin(), others.end(), [&](QPointF other) {
            return QLineF(centre, other).length() < SameTextApart;
        });
    }

    const MapView& m_view;
    const QRectF m_window;
    const QFontMetricsF m_metrics;
    LabelSpace m_space;
    QHash<QString, std::vector<QPointF>> m_sameText; // the positions of this layer's labels
    std::vector<Label> m_labels;
};

QColor HaloOn(const QColor& background)
{
    const auto lightness = float(background.lightnessF());
    const bool isClear = lightness >= LightHalo || lightness <= DarkHalo;
    return isClear ? QColor(background.rgb()) : QColor(Qt::white);
}

// The layer's colour, as dark or as light as the halo needs it.
QColor TextOn(const QColor& halo, const QColor& colour)
{
    const QColor text = colour.isValid() ? colour : QColor(Qt::black);
    const auto own = float(text.lightnessF());
    const bool isDark = halo.lightnessF() <= DarkHalo;
    const float lightness = isDark ? std::max(own, DarkestOnDark) : std::min(own, LightestOnLight);
    return QColor::fromHslF(std::max(0.F, float(text.hslHueF())), float(text.hslSaturationF()), lightness);
}

} // namespace

QFont LabelFont()
{
    QFont font;
    if (font.pointSizeF() > 0)
        font.setPixelSize(qRound(font.pointSizeF() * PixelsPerPoint));
    font.setHintingPreference(QFont::PreferNoHinting); // the halo follows the letters' true outlines
    return font;
}

std::vector<Label>
PlaceLabels(std::span<const MapLayer> layers, const MapView& view, const std::atomic<bool>& cancelled)
{
    LabelPlacer placer(view);
    for (const MapLayer& layer : layers)
        placer.KeepClearOfSymbols(layer);
    std::for_each(
        layers.rbegin(), layers.rend(), [&](const MapLayer& layer) { placer.Place(layer, cancelled); });
    return placer.Take();
}

void PaintLabels(QPainter& painter, std::span<const Label> labels, const QColor& background)
{
    const QColor halo = HaloOn(background);
    const QFont font = LabelFont();
    const QFontMetricsF metrics(font);
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setFont(font);
    for (const Label& label : labels) {
        const QPointF origin(
            -metrics.horizontalAdvance(label.text) / 2, (metrics.ascent() - metrics.descent()) / 2);
        QPainterPath letters;
        letters.addText(origin, font, label.text);
        painter.save();
        painter.translate(label.spot.centre);
        painter.rotate(label.spot.angle);
        painter.strokePath(letters, QPen(halo, HaloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setPen(TextOn(halo, label.colour));
        painter.drawText(origin, label.text);
        painter.restore();
    }
    painter.restore();
}

} // namespace Orvane

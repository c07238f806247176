// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>

class QPainter;

namespace Orvane {

/// A bar of a round length on the ground.
///
///     const auto bar = ScaleBar::Fitting(metresPerPixel, 200);
///     bar.Paint(painter, corner);
class ScaleBar
{
public:
    /// The longest bar of 1, 2 or 5 times a power of ten metres that fits. Both arguments are more than 0;
    /// lengths are page pixels. numberText: what stands above the bar, the map's scale; empty for nothing.
    static ScaleBar Fitting(double metresPerPixel, double maxLength, const QString& numberText = {});

    double Metres() const { return m_metres; }
    /// Page pixels.
    double Length() const { return m_length; }
    /// The full length in words: "500 m", "20 km".
    QString Label() const;

    /// What the bar takes with its labels and the paper behind it, in page pixels.
    QSizeF Size() const;
    /// Paints it with that upper left corner.
    void Paint(QPainter& painter, QPointF topLeft) const;

private:
    ScaleBar(double metres, double length, const QString& numberText);
    void PaintLabels(QPainter& painter, const QRectF& bar) const;

    double m_metres;
    double m_length;
    QString m_numberText;
};

} // namespace Orvane

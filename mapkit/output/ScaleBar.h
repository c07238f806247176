// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>

class QPainter;

namespace Orvane {

/// A scale bar that stands for a round length on the ground.
///
///     const auto bar = ScaleBar::Fitting(metresPerPixel, 200);
///     bar.Paint(painter, corner);
class ScaleBar
{
public:
    /// The longest bar of 1, 2 or 5 times a power of ten metres that fits. Both arguments are more than 0;
    /// lengths are in page pixels. numberText: the text above the bar, which is the map's scale; empty for
    /// none.
    static ScaleBar Fitting(double metresPerPixel, double maxLength, const QString& numberText = {});

    double Metres() const { return m_metres; }
    /// In page pixels.
    double Length() const { return m_length; }
    /// The full length as text: "500 m", "20 km".
    QString Label() const;

    /// The size of the bar with its labels and background, in page pixels.
    QSizeF Size() const;
    /// Paints the bar with that upper left corner.
    void Paint(QPainter& painter, QPointF topLeft) const;

private:
    ScaleBar(double metres, double length, const QString& numberText);
    void PaintLabels(QPainter& painter, const QRectF& bar) const;

    double m_metres;
    double m_length;
    QString m_numberText;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
// This test runs on a screen with a scale of 1.5.
#include "component/dialog/panel/ValueLabel.h"

#include <QImage>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

/// True if one of the pixels within one of the place has the colour of the frame.
bool HasFrameAt(const QImage& picture, QPoint place, QPoint step, const QWidget& field)
{
    const QRgb frame = field.palette().color(QPalette::Mid).rgb();
    for (int offset = -1; offset <= 1; ++offset) {
        if (picture.pixel(place + offset * step) == frame)
            return true;
    }
    return false;
}

} // namespace

TEST(ValueLabel, HasAWholeFrameWhereverItStands)
{
    QWidget window;
    window.resize(200, 120);
    ValueLabel field(&window);
    field.setText("dont care");
    for (const QPoint corner : {QPoint(10, 10), QPoint(11, 13), QPoint(12, 15)}) {
        field.setGeometry(QRect(corner, QSize(101, 23)));
        const QImage picture = window.grab().toImage();
        const QPoint first = corner * 1.5;
        const QPoint last = (corner + QPoint(101, 23)) * 1.5 - QPoint(1, 1);
        EXPECT_TRUE(HasFrameAt(picture, {first.x(), first.y() + 10}, {1, 0}, field)) << "left";
        EXPECT_TRUE(HasFrameAt(picture, {first.x() + 10, first.y()}, {0, 1}, field)) << "top";
        EXPECT_TRUE(HasFrameAt(picture, {last.x(), first.y() + 10}, {1, 0}, field)) << "right";
        EXPECT_TRUE(HasFrameAt(picture, {first.x() + 10, last.y()}, {0, 1}, field)) << "bottom";
    }
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace Orvane {

/// How many pixels a window may differ from what was asked for: 1 on a screen whose scale is no whole number,
/// where the window system rounds sizes by the window's position; otherwise 0.
int RoundedPixels(const QWidget& window);

/// Gives a window a width. Where the window system makes it a pixel smaller, it is asked once more.
class ExactWidth : public QObject
{
public:
    /// window: not owned; outlives this object.
    explicit ExactWidth(QWidget& window);

    /// width: pixels. The height stays.
    void Resize(int width);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
    int m_wanted = -1; ///< -1: no width is awaited
};

} // namespace Orvane

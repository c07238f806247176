// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace Orvane {

/// Reports when a left mouse button that was pressed over a widget is released: the click that a widget
/// without such a signal, for example a slider, does not report. The widget has then handled the press, but
/// not yet the release.
class ClickWatcher : public QObject
{
    Q_OBJECT

public:
    /// Watches the widget. The widget also owns this object.
    explicit ClickWatcher(QWidget* widget);

signals:
    void Clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace Orvane {

/// Tells when a left mouse button that went down over a widget goes up again: the click that a widget without
/// a signal of its own, a slider for one, does not report. The widget has then dealt with the press, not yet
/// with the release.
class ClickWatcher : public QObject
{
    Q_OBJECT

public:
    /// Watches the widget, which owns it, too.
    explicit ClickWatcher(QWidget* widget);

signals:
    void Clicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Orvane

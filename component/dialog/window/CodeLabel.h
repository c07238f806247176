// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/ValueLabel.h"

namespace Orvane {

/// A label that can request an edit: on a double click, and on F2, Enter or Space while it has the focus. A
/// frame shows the focus.
class CodeLabel : public ValueLabel
{
    Q_OBJECT

public:
    explicit CodeLabel(QWidget* parent = nullptr);

    /// Wide enough for any code, whatever it shows.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The user wants to edit what the label shows; never sent while it is disabled.
    void EditRequested();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Orvane

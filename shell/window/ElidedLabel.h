// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace Orvane {

/// A line of plain text that asks for the room of its whole text, but can do with less: then it ends in
/// "...". So a long text in a status bar does not keep the window from getting narrow, or make it wider.
class ElidedLabel : public QLabel
{
public:
    explicit ElidedLabel(QWidget* parent);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Orvane

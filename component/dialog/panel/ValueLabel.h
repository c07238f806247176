// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace Orvane {

/// A read-only field: a label with a thin frame, whole on every screen. The frames of styles lose lines where
/// the scale of the screen is no whole number.
class ValueLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ValueLabel(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Orvane

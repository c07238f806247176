// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Orvane {

/// The page that covers the settings with a hint. Its wrapped words must not decide how high the pages are
/// together: a height for a width would be asked of it alone, as the covered page is hidden.
class CoverPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    bool hasHeightForWidth() const override { return false; }
};

} // namespace Orvane

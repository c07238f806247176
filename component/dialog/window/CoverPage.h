// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Orvane {

/// The page that covers the settings with a hint. Its wrapped text must not determine the common height of
/// the pages: only this page would be asked for a height for a width, because the covered page is hidden.
class CoverPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    bool hasHeightForWidth() const override { return false; }
};

} // namespace Orvane

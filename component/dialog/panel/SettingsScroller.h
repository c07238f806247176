// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace Orvane {

/// Shows the settings whole where there is room, and scrolls them in a dialog that is lower. It is always
/// wide enough for them and the scroll bar.
class SettingsScroller : public QScrollArea
{
    Q_OBJECT

public:
    explicit SettingsScroller(QWidget* parent = nullptr);

    /// The whole of the settings, where QScrollArea would ask for a part of it.
    QSize sizeHint() const override;
    /// A few rows, in full width.
    QSize minimumSizeHint() const override;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace Orvane {

/// Shows all settings if there is room, and scrolls them if the dialog is not high enough. It is always wide
/// enough for the settings and the scroll bar.
class SettingsScroller : public QScrollArea
{
    Q_OBJECT

public:
    explicit SettingsScroller(QWidget* parent = nullptr);

    /// The size of all settings; QScrollArea would ask for a part of it.
    QSize sizeHint() const override;
    /// The height of a few rows, at full width.
    QSize minimumSizeHint() const override;
};

} // namespace Orvane

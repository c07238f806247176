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
    static constexpr int UsualRows = 8;

    explicit SettingsScroller(QWidget* parent = nullptr);

    /// How many rows of text are always in sight; UsualRows at first.
    void SetFewestRows(int rows);

    /// The size of all settings; QScrollArea would ask for a part of it.
    QSize sizeHint() const override;
    /// The height of a few rows, at full width.
    QSize minimumSizeHint() const override;

private:
    int m_fewestRows = UsualRows;
};

} // namespace Orvane

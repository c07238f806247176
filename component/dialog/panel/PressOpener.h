// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QAbstractButton;

namespace Orvane {

/// Opens a popup when its button is pressed, not when it is clicked: by mouse, Space, Enter, the Down key or
/// a screen reader. What the action raises is shown to the user.
class PressOpener : public QObject
{
    Q_OBJECT

public:
    /// Lives as long as the button, which becomes its parent.
    PressOpener(QAbstractButton& button, std::function<void()> open);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Open();

    QAbstractButton& m_button;
    std::function<void()> m_open;
};

} // namespace Orvane

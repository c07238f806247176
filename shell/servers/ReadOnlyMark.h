// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QString>

#include <vector>

class QAction;
class QLabel;
class QMainWindow;

namespace Orvane {

/// What the window shows of a map that the user may only read: a word in the status bar, and commands that
/// would change the map and are therefore disabled. Both tell why.
class ReadOnlyMark
{
public:
    /// Adds its label to the status bar of the window, which outlives this object.
    explicit ReadOnlyMark(QMainWindow& window);

    /// To be called for each map. Commands that were added to the menus since the last call count too.
    void Show(bool isReadOnly);

private:
    struct Command {
        QPointer<QAction> action;
        QString statusTip; ///< while the map can be changed
    };

    QMainWindow& m_window;
    QLabel* m_label; // owned by the status bar
    std::vector<Command> m_disabled;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QMenu;
class QWidget;

namespace Orvane {

class GuideWindow;

/// The commands of the menu Help: Guide, F1 in every window of the program, shows the guide at the section
/// about the place where the user is; About tells what the program is.
class HelpActions : public QObject
{
    Q_OBJECT
public:
    /// Adds the guide to the menu, before about. None is owned; all outlive this object. Errors are shown
    /// over the window.
    HelpActions(QWidget& window, QMenu& menu, QAction& about);
    ~HelpActions() override;

protected:
    /// F1 in a window that blocks the others, whose commands have no keys then.
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void ShowGuide();
    void ShowAbout();
    GuideWindow& GuideFor(QWidget* blocking);

    QWidget& m_window;
    QPointer<GuideWindow> m_guide; // owned by this object, or by the window that blocks the others
};

} // namespace Orvane

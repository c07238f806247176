// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

namespace Orvane {

/// The editors' forms that a host shows as windows of their own, in front of its main window.
class EditorWindows
{
public:
    /// The window in front of which forms are shown; nullptr for none. Not owned.
    void SetMainWindow(QWidget* mainWindow) { m_mainWindow = mainWindow; }
    QWidget* MainWindow() const { return m_mainWindow; }

    /// Shows the form as a window, or brings it to the front, and gives it the keys unless it has the
    /// attribute Qt::WA_ShowWithoutActivating. The form stays the caller's.
    void Show(QWidget* form);
    /// Forgets the form; false when it is not known.
    bool Forget(QWidget* form);
    /// The forms that are shown, in the order of their showing.
    std::vector<QWidget*> Shown() const;

    /// True when an editor holds edits that were not applied yet.
    bool HavePendingEdits() const;
    /// Has every editor read the database anew. The first error is raised when all have been asked.
    void RefreshEditors() const;

private:
    QPointer<QWidget> m_mainWindow;
    std::vector<QPointer<QWidget>> m_forms;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QSet>
#include <QWidget>

#include <functional>
#include <vector>

namespace Orvane {

/// The editors' forms that a host shows: as windows of their own, in front of its main window, or in its own
/// widgets.
class EditorWindows
{
public:
    /// The window in front of which forms are shown; nullptr for none. Not owned.
    void SetMainWindow(QWidget* mainWindow) { m_mainWindow = mainWindow; }
    QWidget* MainWindow() const { return m_mainWindow; }
    /// The window that the user works in: the active one. Just after a dialog has closed none is active; then
    /// it is that of the editor shown last, or else the main window. nullptr for none.
    QWidget* FrontWindow() const;

    /// Shows the form as a window, or brings it to the front, and gives it the keyboard focus unless it has
    /// the attribute Qt::WA_ShowWithoutActivating. A form within another widget stays there. The caller keeps
    /// ownership of the form.
    void Show(QWidget* form);
    /// Notes a form that the host shows itself; returns false if it is known already.
    bool Adopt(QWidget* form);
    /// Forgets the form; returns false if it is not known.
    bool Forget(QWidget* form);
    /// The forms that are shown, in the order in which they were shown.
    std::vector<QWidget*> Shown() const;

    /// True when an editor has edits that are not applied yet.
    bool HavePendingEdits() const;
    /// Makes every editor read the database again. The first error is raised after all editors have been
    /// refreshed.
    void RefreshEditors() const;
    /// Makes every editor read these layers again, or everything if it is an editor of an earlier contract.
    void RefreshEditors(const QSet<qint32>& layerIDs) const;

private:
    void RefreshEach(const std::function<void(QWidget& form)>& refresh) const;

    QPointer<QWidget> m_mainWindow;
    std::vector<QPointer<QWidget>> m_forms;
};

} // namespace Orvane

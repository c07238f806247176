// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>
#include <QPointer>
#include <QString>

namespace Orvane {

/// A dock for one editor. The host adds it to its main window once and passes two calls on to it:
///
///     void IStyleEditorClient_ShowEditor(QWidget* form) override { m_dock->ShowEditor(form); }
///     void IStyleEditorClient_EditorClosed(QWidget* form) override { m_dock->EditorClosed(form); }
///
/// The dock has the form's title and icon. It is hidden while there is no editor, and closing it closes the
/// editor, which first asks about edits that were not applied. QMainWindow::saveState remembers side, place
/// and whether it is open; save the state before the main window closes, in its closeEvent.
class EditorDock : public QDockWidget
{
    Q_OBJECT

public:
    /// Hidden and empty. editorID: of the editor that the dock is for; saveState knows the dock by it.
    explicit EditorDock(const QString& editorID, QWidget* parent = nullptr);
    ~EditorDock() override;

    /// Takes the form, shows the dock in front of the docks that share its place, and gives the form the
    /// keyboard focus unless it has the attribute Qt::WA_ShowWithoutActivating. The component keeps ownership
    /// of the form.
    void ShowEditor(QWidget* form);
    /// Hides the dock and lets the form go; does nothing for a form that is not in the dock.
    void EditorClosed(const QWidget* form);

Q_SIGNALS:
    /// The dock is shown without an editor: the user has ticked toggleViewAction, or restoreState has shown
    /// the dock. Show the editor of that ID, or hide the dock.
    void EditorWanted(const QString& editorID);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void AskForEditor();

    QString m_editorID;
    QPointer<QWidget> m_form;
};

} // namespace Orvane

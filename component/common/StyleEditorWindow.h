// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorRefresh.h>

#include <QDialog>

#include <functional>
#include <memory>

namespace Orvane {

/// The window of one style editor, as the registry sees it: a dialog with an ID that emits a signal when it
/// has unloaded.
///
/// The registry creates it through a StyleEditorFactory, sets its ID, owns it, and deletes it after Unloaded.
/// It is not deleted at once, because the window's own code emits the signal, but at the latest together with
/// the registry.
class StyleEditorWindow : public QDialog,
                          public IStyleEditor,
                          public IStyleEditorForm,
                          public IStyleEditorRefresh
{
    Q_OBJECT

public:
    explicit StyleEditorWindow(QWidget* parent = nullptr);
    ~StyleEditorWindow() override;

    /// Sets the editor's ID: once, right after creation and before any other use of the window.
    void SetEditorID(const QString& editorID);

signals:
    /// The window has unloaded: its view state is written and the host no longer refers to it. This is the
    /// last step of an unload, emitted once; the window is not used again.
    void Unloaded(const QString& editorID);

private:
    QString IStyleEditorForm_EditorID() const override;

    QString m_editorID;
};

/// Creates a hidden window that is not initialised yet.
using StyleEditorFactory = std::function<std::unique_ptr<StyleEditorWindow>()>;

} // namespace Orvane

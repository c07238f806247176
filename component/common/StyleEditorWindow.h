// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QDialog>

#include <functional>
#include <memory>

namespace Orvane {

/// The window of one style editor, as the registry knows it: a dialog with an ID that announces its
/// unloading.
///
/// The registry creates it through a StyleEditorFactory, gives it its ID, owns it, and deletes it after
/// Unloaded: not at once, since the signal comes from within the window's own code, but before the component
/// is left.
class StyleEditorWindow : public QDialog, public IStyleEditor, public IStyleEditorForm
{
    Q_OBJECT

public:
    explicit StyleEditorWindow(QWidget* parent = nullptr);
    ~StyleEditorWindow() override;

    /// Names the editor: once, right after creation and before anything else is done with the window.
    void SetEditorID(const QString& editorID);

signals:
    /// The window has unloaded: its view state is written and the host has forgotten it. The last step of an
    /// unload, emitted once; the window is not used again.
    void Unloaded(const QString& editorID);

private:
    QString IStyleEditorForm_EditorID() const override;

    QString m_editorID;
};

/// Makes a hidden window that is not initialised yet.
using StyleEditorFactory = std::function<std::unique_ptr<StyleEditorWindow>()>;

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace Orvane {

/// Learns of every editor, whoever shows it. A host may implement it besides IStyleEditorClient: its
/// application object implements both, and the component finds it by a dynamic cast. hostkit/StandardClient.h
/// does, so that a host which shows editors in its own way loses nothing.
class IEditorWatch
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 3;

    virtual ~IEditorWatch() = default;
    IEditorWatch(const IEditorWatch&) = delete;
    IEditorWatch& operator=(const IEditorWatch&) = delete;

    /// IStyleEditorClient::ShowEditor has returned for that form, and the editor still exists. May be called
    /// again for the same form. form: not owned.
    void EditorShown(QWidget* form) { IEditorWatch_EditorShown(form); }

    /// IStyleEditorClient::EditorClosed has returned for that form. Not called for a form that the host
    /// destroys itself.
    void EditorEnded(QWidget* form) { IEditorWatch_EditorEnded(form); }

protected:
    IEditorWatch() = default;

private:
    virtual void IEditorWatch_EditorShown(QWidget* form) = 0;
    virtual void IEditorWatch_EditorEnded(QWidget* form) = 0;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

#include <utility>

namespace Orvane {

/// A dialog that its parent may destroy while it is shown, as when the host ends an editor: a dialog on the
/// stack would then be destroyed twice. Dialog: a QDialog; the arguments are those of its constructor.
///
///     OwnedDialog<QMessageBox> box(QMessageBox::Question, title, question, buttons, parent);
///     return box->exec() == QMessageBox::Yes; // exec rejects if the dialog is destroyed
template <typename Dialog> class OwnedDialog
{
public:
    template <typename... Arguments>
    explicit OwnedDialog(Arguments&&... arguments)
        : m_dialog(new Dialog(std::forward<Arguments>(arguments)...))
    {
    }
    ~OwnedDialog() { delete m_dialog.data(); }
    OwnedDialog(const OwnedDialog&) = delete;
    OwnedDialog& operator=(const OwnedDialog&) = delete;

    Dialog* operator->() const { return m_dialog.data(); }
    /// Whether the dialog still exists.
    bool Exists() const { return !m_dialog.isNull(); }

private:
    QPointer<Dialog> m_dialog;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

class QWidget;

namespace Orvane {

class ModalSession;

/// Forms that are shown application-modally, one on top of another. Forms are not owned: when Run returns,
/// the form is hidden and has its former modality again.
class ModalForms
{
public:
    ModalForms() = default;
    Q_DISABLE_COPY_MOVE(ModalForms)

    /// Shows the form in front of the active window and returns when it is hidden, closed, destroyed or ended
    /// by End. A form that is already shown modally is only raised.
    void Run(QWidget* form);

    /// Ends the Run call for that form; does nothing for any other form.
    void End(QWidget* form);

private:
    ModalSession* SessionOf(const QWidget* form) const;

    std::vector<ModalSession*> m_sessions; // each exists during its Run call
};

} // namespace Orvane

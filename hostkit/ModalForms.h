// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

class QWidget;

namespace Orvane {

class ModalSession;

/// Forms that are shown application-modally, one over another. Forms stay their owner's: when Run returns,
/// the form is hidden and has the modality it had before.
class ModalForms
{
public:
    ModalForms() = default;
    Q_DISABLE_COPY_MOVE(ModalForms)

    /// Shows the form in front of the active window and returns when it is hidden, closed, destroyed or ended
    /// by End. A form that is shown modally already is only raised.
    void Run(QWidget* form);

    /// Ends the Run of that form; does nothing for any other.
    void End(QWidget* form);

private:
    ModalSession* SessionOf(const QWidget* form) const;

    std::vector<ModalSession*> m_sessions; // each lives in its Run
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtGlobal>

namespace Orvane {

/// Numbers the actions of the user. An action ends when the program returns to its event loop.
class ActionNumber
{
public:
    ActionNumber() = default;
    ActionNumber(const ActionNumber&) = delete;
    ActionNumber& operator=(const ActionNumber&) = delete;

    /// False where no event loop is running on this thread: there an action has no end.
    static bool HasEnd();
    /// The number of the present action, larger than those of earlier ones. To be called on the thread on
    /// which this object was made.
    quint64 Present();

private:
    QObject m_loop; // is told when the event loop runs again
    quint64 m_number = 0;
    bool m_expectsEnd = false;
};

} // namespace Orvane

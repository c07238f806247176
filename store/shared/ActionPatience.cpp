// SPDX-License-Identifier: MIT
#include "store/shared/ActionPatience.h"

#include <QThread>

namespace Orvane {

void ActionPatience::Spend(std::chrono::milliseconds time)
{
    ExpectEndOfAction();
    m_waited += time;
}

void ActionPatience::ExpectEndOfAction()
{
    if (m_expectsEnd)
        return;
    const auto endAction = [this] {
        m_expectsEnd = false;
        m_waited = std::chrono::milliseconds(0);
    };
    QMetaObject::invokeMethod(&m_loop, endAction, Qt::QueuedConnection);
    m_expectsEnd = true;
}

void ActionPatience::NoteSuccess()
{
    if (m_waited > std::chrono::milliseconds(0) && QThread::currentThread()->loopLevel() == 0)
        m_waited = std::chrono::milliseconds(0);
}

} // namespace Orvane

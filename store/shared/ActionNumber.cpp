// SPDX-License-Identifier: MIT
#include "store/shared/ActionNumber.h"

#include <QThread>

namespace Orvane {

bool ActionNumber::HasEnd()
{
    return QThread::currentThread()->loopLevel() > 0;
}

quint64 ActionNumber::Present()
{
    if (m_expectsEnd)
        return m_number;
    const auto endAction = [this] {
        m_expectsEnd = false;
        ++m_number;
    };
    QMetaObject::invokeMethod(&m_loop, endAction, Qt::QueuedConnection);
    m_expectsEnd = true;
    return m_number;
}

} // namespace Orvane

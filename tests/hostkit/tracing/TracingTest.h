// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/HostKitTest.h"
#include "hostkit/tracing/CallTrace.h"
#include "hosts/MemoryHost.h"

#include <QBuffer>

namespace Orvane::Testing {

/// Scenarios whose calls are traced into a buffer, over a host in memory.
class TracingTest : public testing::Test
{
protected:
    TracingTest() { m_buffer.open(QIODevice::WriteOnly); }

    /// The lines written since the last call.
    QStringList Lines()
    {
        const QString text = QString::fromUtf8(m_buffer.data());
        m_buffer.buffer().clear();
        m_buffer.seek(0);
        return text.split(u'\n', Qt::SkipEmptyParts);
    }

    MemoryHost m_host;
    QBuffer m_buffer;
    CallTrace m_trace{m_buffer};
};

} // namespace Orvane::Testing

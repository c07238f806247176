// SPDX-License-Identifier: MIT
#include "support/CuttingProxy.h"

#include "support/ProxyNetwork.h"

namespace Orvane::Testing {

CuttingProxy::CuttingProxy(const QString& serverSocket) : m_network(std::make_unique<Network>(serverSocket))
{
}

CuttingProxy::~CuttingProxy() = default;

QString CuttingProxy::Folder() const
{
    return m_network->Folder();
}

QString CuttingProxy::Socket() const
{
    return m_network->Socket();
}

void CuttingProxy::SetDelay(std::chrono::milliseconds delay)
{
    m_network->Do([&] { m_network->m_delay = delay; });
}

void CuttingProxy::CutAfter(qint64 bytes, Direction direction)
{
    m_network->Do([&] { m_network->m_length = LengthToCutAt{bytes, direction}; });
}

void CuttingProxy::CutAt(const QByteArray& text, Cut cut, Direction direction)
{
    m_network->Do([&] { m_network->m_text = TextToCutAt{text, cut, direction}; });
}

void CuttingProxy::CutNow()
{
    m_network->Do([&] { m_network->CutAll(); });
}

void CuttingProxy::Silence()
{
    m_network->Do([&] { m_network->m_mood = Mood::Silent; });
}

void CuttingProxy::Refuse()
{
    m_network->Do([&] {
        m_network->m_mood = Mood::Refusing;
        m_network->CutAll();
    });
}

void CuttingProxy::Restore()
{
    m_network->Do([&] {
        m_network->m_mood = Mood::Passing;
        m_network->m_length.reset();
        m_network->m_text.reset();
    });
}

int CuttingProxy::Cuts() const
{
    return m_network->Do([&] { return m_network->m_cuts; });
}

int CuttingProxy::Connections() const
{
    return m_network->Do([&] { return int(m_network->m_connections.size()); });
}

int CuttingProxy::RoundTrips() const
{
    return m_network->Do([&] { return m_network->m_roundTrips; });
}

void CuttingProxy::ForgetRoundTrips()
{
    m_network->Do([&] { m_network->m_roundTrips = 0; });
}

qint64 CuttingProxy::Bytes(Direction direction) const
{
    return m_network->Do([&] { return m_network->m_bytes[size_t(direction)]; });
}

} // namespace Orvane::Testing

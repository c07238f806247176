// SPDX-License-Identifier: MIT
#include "sweep/HostFault.h"

#include "hosts/FailingClient.h"

#include <limits>

namespace Orvane::Testing {

namespace {

constexpr int NoCall = std::numeric_limits<int>::max();

PlannedFailure FailureOfCall(int number)
{
    const QString text = QStringLiteral("The host is out of order.");
    return PlannedFailure::InAnyMember(number, RunTimeError(10001, text));
}

} // namespace

void HostFault::Attach(FailingClient* client)
{
    m_client = client;
    if (m_client)
        m_client->Plan(FailureOfCall(NoCall));
}

void HostFault::Arm(int number)
{
    m_firstFailure.clear();
    if (m_client)
        m_client->Plan(FailureOfCall(number));
}

void HostFault::Disarm()
{
    if (!m_client)
        return;
    m_firstFailure = m_client->FailedMember();
    m_client->Plan(FailureOfCall(NoCall));
}

} // namespace Orvane::Testing

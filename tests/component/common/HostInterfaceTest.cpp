// SPDX-License-Identifier: MIT
#include "component/common/HostInterface.h"

#include "hosts/MemoryHost.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IConflictQuestion.h>
#include <OrvaneShellLib/IEditorWatch.h>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class HostInterfaces : public testing::Test
{
protected:
    ~HostInterfaces() override
    {
        Component::Get().SetHost(nullptr, nullptr);
        Component::Get().SetHostContract(CurrentContract);
    }

    static void Use(IStyleEditorClient& client, qint32 minor)
    {
        Component::Get().SetHost(&client, nullptr);
        Component::Get().SetHostContract({CurrentContract.major, minor});
    }

    Testing::MemoryHost m_host;
    ForwardingClient m_client{m_host};
};

} // namespace

TEST_F(HostInterfaces, AreFoundInAHostOfTheVersionThatAddedThem)
{
    Use(m_client, IConflictQuestion::ContractMinor);
    EXPECT_NE(HostInterface<IConflictQuestion>(), nullptr);
    EXPECT_EQ(HostInterface<IEditorWatch>(), nullptr);
    Use(m_client, IEditorWatch::ContractMinor);
    EXPECT_NE(HostInterface<IEditorWatch>(), nullptr);
}

TEST_F(HostInterfaces, AreNotAskedOfAnOlderHost)
{
    Use(m_client, IConflictQuestion::ContractMinor - 1);
    EXPECT_EQ(HostInterface<IConflictQuestion>(), nullptr);
}

TEST_F(HostInterfaces, AreMissingInAHostThatDoesNotImplementThem)
{
    Use(m_host, CurrentContract.minor);
    EXPECT_EQ(HostInterface<IConflictQuestion>(), nullptr);
}

TEST_F(HostInterfaces, AreMissingWithoutAHost)
{
    EXPECT_EQ(HostInterface<IConflictQuestion>(), nullptr);
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "component/common/HostInterface.h"

#include "hosts/MemoryHost.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IChoiceWatch.h>
#include <OrvaneShellLib/IConflictQuestion.h>
#include <OrvaneShellLib/IEditorWatch.h>
#include <OrvaneShellLib/ILayerSource.h>
#include <OrvaneShellLib/IManyLayers.h>
#include <OrvaneShellLib/IMapNotes.h>
#include <OrvaneShellLib/IMapScale.h>
#include <OrvaneShellLib/INodeCommands.h>
#include <OrvaneShellLib/ISchemeManager.h>

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
    EXPECT_EQ(HostInterface<IManyLayers>(), nullptr);
    EXPECT_EQ(HostInterface<IMapScale>(), nullptr);
    EXPECT_EQ(HostInterface<ISchemeManager>(), nullptr);
    EXPECT_EQ(HostInterface<IMapNotes>(), nullptr);
    EXPECT_EQ(HostInterface<INodeCommands>(), nullptr);
    EXPECT_EQ(HostInterface<ILayerSource>(), nullptr);
    EXPECT_EQ(HostInterface<IChoiceWatch>(), nullptr);
    Use(m_client, IManyLayers::ContractMinor);
    EXPECT_NE(HostInterface<IManyLayers>(), nullptr);
    Use(m_client, IMapScale::ContractMinor);
    EXPECT_NE(HostInterface<IMapScale>(), nullptr);
    Use(m_client, ISchemeManager::ContractMinor);
    EXPECT_NE(HostInterface<ISchemeManager>(), nullptr);
    EXPECT_NE(HostInterface<IMapNotes>(), nullptr);
    EXPECT_NE(HostInterface<INodeCommands>(), nullptr);
    Use(m_client, IChoiceWatch::ContractMinor);
    EXPECT_NE(HostInterface<IChoiceWatch>(), nullptr);
    Use(m_client, ILayerSource::ContractMinor);
    EXPECT_NE(HostInterface<ILayerSource>(), nullptr);
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

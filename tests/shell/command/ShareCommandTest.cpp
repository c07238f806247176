// SPDX-License-Identifier: MIT
#include "shell/command/ShareCommand.h"

#include "mapkit/document/MapDocument.h"
#include "shell/command/CommandFixture.h"
#include "store/opening/ServerMaps.h"
#include "support/PrivateServer.h"

namespace Orvane {

using namespace Testing;

namespace {

class ShareCommandTest : public CommandFixture
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
        m_place = SharedServer().Place("Shared town");
        MapDocument::Make(m_place, IfExists::Refuse);
    }
    void TearDown() override
    {
        if (!m_place.isEmpty())
            ServerMaps::Remove(m_place, {});
    }

    QString m_place;
};

} // namespace

TEST_F(ShareCommandTest, AnOwnersMapIsGivenToRolesAndListed)
{
    EXPECT_EQ(Run({"share", m_place}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_EQ(m_out, "");
    EXPECT_EQ(Run({"share", m_place, "--edit", "public"}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_EQ(Run({"share", m_place}), ExitCode::Done);
    EXPECT_EQ(m_out, "public: may edit\n");
}

TEST_F(ShareCommandTest, ARightIsReplacedAndTakenBack)
{
    ASSERT_EQ(Run({"share", m_place, "--edit", "public"}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_EQ(Run({"share", m_place, "--read", "public"}), ExitCode::Done);
    EXPECT_EQ(ServerMaps::Holders(m_place, {}).at(0).right, MapRight::Read);
    EXPECT_EQ(Run({"share", m_place, "--revoke", "public"}), ExitCode::Done);
    EXPECT_TRUE(ServerMaps::Holders(m_place, {}).empty());
}

TEST_F(ShareCommandTest, ARoleThatDoesNotExistIsAProblem)
{
    EXPECT_EQ(Run({"share", m_place, "--read", "nobody at all"}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("nobody at all")) << m_errors.toStdString();
}

TEST_F(ShareCommandTest, AFileIsNotShared)
{
    EXPECT_EQ(Run({"share", "town.orvane"}), ExitCode::Usage);
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapPresence.h"

#include "store/postgres/MapTest.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MapPresenceTest : public MapTest
{
protected:
    static std::vector<MapUser> Users(ServerConnection& asked)
    {
        return MapPresence::UsersIn(asked.Run(MapPresence::UsersQuery()));
    }
};

} // namespace

TEST_F(MapPresenceTest, ShowsWhoHasAMapOpen)
{
    const auto asked = Connected();
    EXPECT_THAT(Users(*asked), IsEmpty());
    const auto other = Connected();
    other->Run("SET application_name = 'Orvane'");
    other->Run(MapPresence::Joining(Map()));
    const std::vector<MapUser> users = Users(*asked);
    ASSERT_EQ(users.size(), 1U);
    EXPECT_EQ(users[0].map, Map());
    EXPECT_EQ(users[0].role, QStringLiteral("orvane"));
    EXPECT_EQ(users[0].program, QStringLiteral("Orvane"));
    EXPECT_EQ(users[0].backend, other->Backend());
}

TEST_F(MapPresenceTest, EndsWhenTheMapIsClosed)
{
    const auto asked = Connected();
    const auto other = Connected();
    other->Run(MapPresence::Joining(Map()));
    other->Run(MapPresence::Leaving(Map()));
    EXPECT_THAT(Users(*asked), IsEmpty());
}

TEST_F(MapPresenceTest, IsSeenByARoleWithoutRights)
{
    Owner().Run("CREATE ROLE \"Dora\" LOGIN");
    Owner().Run(MapPresence::Joining(Map()));
    EXPECT_EQ(Users(*Connected(QStringLiteral("Dora"))).size(), 1U);
    Owner().Run("DROP ROLE \"Dora\"");
}

TEST_F(MapPresenceTest, NamesEachOtherRoleOnce)
{
    const std::vector<MapUser> users{
        {7, QStringLiteral("anna"), {}, 1},
        {7, QStringLiteral("anna"), {}, 2},
        {7, QStringLiteral("ben"), {}, 3},
        {8, QStringLiteral("carl"), {}, 4}};
    EXPECT_THAT(MapPresence::RolesOf(users, 7, 3), ElementsAre(QStringLiteral("anna")));
}

TEST_F(MapPresenceTest, OneWhoExcludesOthersFindsThem)
{
    const auto remover = Connected();
    const auto excludes = [&] {
        remover->Run("BEGIN");
        const bool succeeds = remover->Run(MapPresence::Excluding(Map())).Flag(0, 0);
        remover->Run("ROLLBACK");
        return succeeds;
    };
    EXPECT_TRUE(excludes());
    {
        const auto other = Connected();
        other->Run(MapPresence::Joining(Map()));
        EXPECT_FALSE(excludes());
        other->Run(MapPresence::Leaving(Map()));
    }
    EXPECT_TRUE(excludes());
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "store/postgres/EditingTeam.h"

#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"
#include "store/postgres/MapTest.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::IsEmpty;
using testing::SizeIs;

constexpr int Clients = 20;
constexpr int ActsOfEach = 40;

class EditingTeamTest : public MapTest
{
protected:
    QString Place() const { return SharedServer().Place(m_schema); }
};

bool HasMoreToDo(int acts)
{
    return acts < ActsOfEach;
}

} // namespace

TEST_F(EditingTeamTest, TwentyClientsOfOneMapLoseNothing)
{
    EditingTeam team(Place(), Clients);
    EXPECT_EQ(team.Work(HasMoreToDo).acts, Clients * ActsOfEach);
    EXPECT_EQ(team.Faults().join('\n').toStdString(), "");
}

TEST_F(EditingTeamTest, WhatIsLostIsFound)
{
    EditingTeam team(Place(), 2);
    team.Work(HasMoreToDo);
    ASSERT_THAT(team.Faults(), IsEmpty());
    Owner().Run("UPDATE Layers SET Code = Code - 1 WHERE LayerID = 3");
    Owner().Run("UPDATE Layers SET Priority = 7 WHERE LayerID = 130");
    Owner().Run("UPDATE Layers SET Name = 'taken back' WHERE LayerID = 1001");
    EXPECT_THAT(team.Faults(), SizeIs(3));
}

} // namespace Orvane::Testing

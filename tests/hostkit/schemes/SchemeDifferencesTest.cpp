// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeDifferences.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/schemes/LayerSchemes.h"

namespace Orvane::Testing {
namespace {

class Differences : public HostKitTest
{
protected:
    Differences()
    {
        AddLayers(5);
        m_schemes.Names();
    }

    void Change(qint32 layerID) { Set(layerID, "Priority", 77); }
    QStringList StatementsOfCount()
    {
        return StatementsOf([this] { m_differences.Count(); });
    }

    LayerSchemes m_schemes{Database()};
    SchemeDifferences m_differences{m_schemes};
};

TEST_F(Differences, AreNoneAfterASave)
{
    EXPECT_EQ(m_differences.Count(), 0);
}

TEST_F(Differences, AreFoundAtTheFirstQuestion)
{
    Change(2);
    Change(4);
    EXPECT_EQ(m_differences.Count(), 2);
}

TEST_F(Differences, FollowTheLayersThatAreNoted)
{
    EXPECT_EQ(m_differences.Count(), 0);
    Change(2);
    m_differences.Note({2});
    EXPECT_EQ(m_differences.Count(), 1);
    Set(2, "Priority", 0);
    m_differences.Note({2});
    EXPECT_EQ(m_differences.Count(), 0);
}

TEST_F(Differences, CountANewLayerAndForgetADeletedOne)
{
    EXPECT_EQ(m_differences.Count(), 0);
    AddLayer(9, QStringLiteral("Later"));
    m_differences.Note({9});
    EXPECT_EQ(m_differences.Count(), 1);
    Database().Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 9"));
    m_differences.Note({9});
    EXPECT_EQ(m_differences.Count(), 0);
}

TEST_F(Differences, AreComparedAnewAfterForget)
{
    EXPECT_EQ(m_differences.Count(), 0);
    Change(3);
    EXPECT_EQ(m_differences.Count(), 0);
    m_differences.Forget();
    EXPECT_EQ(m_differences.Count(), 1);
}

TEST_F(Differences, TakeNoStatementWhenNothingWasNoted)
{
    m_differences.Count();
    EXPECT_TRUE(StatementsOfCount().isEmpty());
}

TEST_F(Differences, OfOneLayerAreFoundWithoutAWalkThroughAllLayers)
{
    m_differences.Count();
    m_differences.Note({2});
    const QStringList statements = StatementsOfCount();
    ASSERT_FALSE(statements.isEmpty());
    const auto plan = Database().OpenQuery(
        QStringLiteral("EXPLAIN QUERY PLAN ") + statements.last(), {qint32(1), qint32(2)});
    for (; !plan->AtEOF(); plan->MoveNext())
        EXPECT_FALSE(ToText(plan->Field("detail")).startsWith(QStringLiteral("SCAN")))
            << qPrintable(ToText(plan->Field("detail")));
}

TEST_F(Differences, OfVeryManyLayersAreFoundByOneComparisonOfAll)
{
    AddLayer(10, QStringLiteral("Later"));
    m_differences.Count();
    QSet<qint32> many;
    for (qint32 layerID = 1; layerID <= 2000; ++layerID)
        many.insert(layerID);
    Change(1);
    m_differences.Note(many);
    EXPECT_LT(StatementsOfCount().size(), 10);
    EXPECT_EQ(m_differences.Count(), 2);
}

} // namespace
} // namespace Orvane::Testing

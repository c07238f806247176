// SPDX-License-Identifier: MIT
#include "hostkit/common/LayerNames.h"

#include "hostkit/HostKitTest.h"

namespace Orvane::Testing {
namespace {

class Names : public HostKitTest
{
protected:
    LayerNames m_names{Database()};
};

TEST_F(Names, OfAllLayersAreReadByOneQuery)
{
    AddLayers(500);
    const QStringList statements = StatementsOf([&] {
        for (qint32 layerID = 1; layerID <= 500; ++layerID)
            EXPECT_EQ(m_names.Name(layerID), QStringLiteral("Layer %1").arg(layerID));
    });
    EXPECT_EQ(statements.size(), 1);
}

TEST_F(Names, OfOneLayerAreReadWithoutThoseOfOthers)
{
    AddLayers(3);
    const QStringList statements
        = StatementsOf([&] { EXPECT_EQ(m_names.NameOfOne(2), QStringLiteral("Layer 2")); });
    ASSERT_EQ(statements.size(), 1);
    EXPECT_TRUE(statements.first().contains(QLatin1String("WHERE LayerID = 2")));
    Set(2, "Name", QStringLiteral("Roads"));
    EXPECT_EQ(m_names.NameOfOne(2), QStringLiteral("Roads")); // nothing is kept that nobody keeps up to date
    EXPECT_TRUE(m_names.NameOfOne(9).isEmpty());
}

TEST_F(Names, AreNotReadBeforeTheFirstQuestion)
{
    AddLayers(1);
    EXPECT_TRUE(StatementsOf([&] { m_names.Set(1, QStringLiteral("Roads")); }).isEmpty());
    EXPECT_EQ(m_names.Name(1), QStringLiteral("Layer 1")); // the stored name is used
}

TEST_F(Names, AreReadAlthoughALayerHasAnIDBeyond32Bits)
{
    AddLayers(2);
    Database().Execute(QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (2147483648, 'far')"));
    EXPECT_EQ(m_names.Name(2), QStringLiteral("Layer 2"));
    EXPECT_EQ(m_names.All().size(), 2);
}

TEST_F(Names, OfAMissingLayerAreEmpty)
{
    AddLayers(1);
    EXPECT_TRUE(m_names.Name(99).isEmpty());
}

TEST_F(Names, OfALayerWithoutANameAreEmpty)
{
    AddLayers(1);
    Set(1, "Name", Value::Null());
    EXPECT_TRUE(m_names.Name(1).isEmpty());
}

TEST_F(Names, OfAFewLayersAreReadAgain)
{
    AddLayers(3);
    m_names.Name(1);
    Set(1, "Name", QStringLiteral("Roads"));
    Database().Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 2"));
    const QStringList statements = StatementsOf([&] { m_names.ReadAgain({1, 2}); });
    EXPECT_EQ(statements.size(), 1);
    EXPECT_EQ(m_names.All(), (QSet<QString>{QStringLiteral("Roads"), QStringLiteral("Layer 3")}));
}

TEST_F(Names, OfManyLayersAreReadAgainByOneQuery)
{
    AddLayers(500);
    m_names.Name(1);
    Set(1, "Name", QStringLiteral("Roads"));
    QSet<qint32> all;
    for (qint32 layerID = 1; layerID <= 500; ++layerID)
        all.insert(layerID);
    const QStringList statements = StatementsOf([&] {
        m_names.ReadAgain(all);
        EXPECT_EQ(m_names.Name(1), QStringLiteral("Roads"));
    });
    EXPECT_EQ(statements.size(), 1);
}

TEST_F(Names, FollowARenaming)
{
    AddLayers(2);
    m_names.Name(1);
    m_names.Set(1, QStringLiteral("Roads"));
    EXPECT_EQ(m_names.Name(1), QStringLiteral("Roads"));
}

TEST_F(Names, FindALayerThatWasAddedBehindTheirBack)
{
    AddLayers(1);
    m_names.Name(1);
    AddLayer(7, QStringLiteral("Rivers"));
    EXPECT_EQ(m_names.Name(7), QStringLiteral("Rivers"));
    EXPECT_TRUE(StatementsOf([&] { m_names.Name(7); }).isEmpty());
}

TEST_F(Names, ForgetADeletedLayer)
{
    AddLayers(2);
    m_names.Name(1);
    Database().Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = 1"));
    m_names.Remove(1);
    EXPECT_TRUE(m_names.Name(1).isEmpty());
    EXPECT_EQ(m_names.All(), QSet<QString>{QStringLiteral("Layer 2")});
}

TEST_F(Names, AreReadAnewAfterInvalidate)
{
    AddLayers(1);
    m_names.Name(1);
    Set(1, "Name", QStringLiteral("Roads"));
    m_names.Invalidate();
    EXPECT_EQ(m_names.Name(1), QStringLiteral("Roads"));
}

} // namespace
} // namespace Orvane::Testing

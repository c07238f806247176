// SPDX-License-Identifier: MIT
#include "hostkit/schemes/LayerMatch.h"

#include "hostkit/HostKitTest.h"

namespace Orvane::Testing {
namespace {

using Matches = QHash<qint32, qint32>;

class Matching : public HostKitTest
{
protected:
    void There(qint32 layerID, const char* name, const Value& code)
    {
        AddLayer(layerID, QString::fromUtf8(name), code);
    }
    void Here(qint32 layerID, const char* name, const Value& code)
    {
        AddLayer(*m_here, layerID, QString::fromUtf8(name), code);
    }
    Matches Found() { return MatchLayers(Database(), *m_here); }

    std::unique_ptr<ILayerStore> m_here = Maker().CreateNameless();
};

TEST_F(Matching, GoesByCodeBeforeName)
{
    There(1, "Roads", 10);
    Here(5, "Roads", 11);
    Here(6, "Streets", 10);
    EXPECT_EQ(Found(), (Matches{{1, 6}}));
}

TEST_F(Matching, GoesByNameWhereNoLayerHasTheCode)
{
    There(1, "Roads", 10);
    Here(5, "Roads", 11);
    EXPECT_EQ(Found(), (Matches{{1, 5}}));
}

TEST_F(Matching, GoesByNameWhereACodeIsNotOneLayersAlone)
{
    There(1, "Roads", 0);
    There(2, "Rivers", 0);
    Here(5, "Rivers", 0);
    EXPECT_EQ(Found(), (Matches{{2, 5}}));
}

TEST_F(Matching, TakesACodeThatIsATextForNone)
{
    There(1, "Roads", QStringLiteral("x"));
    Here(5, "Roads", 11);
    EXPECT_EQ(Found(), (Matches{{1, 5}}));
}

TEST_F(Matching, LeavesALayerWithAnIDBeyond32BitsOut)
{
    There(1, "Roads", 10);
    Here(5, "Roads", 10);
    Database().Execute(QStringLiteral("INSERT INTO Layers (LayerID, Code) VALUES (2147483648, 10)"));
    EXPECT_EQ(Found(), (Matches{{1, 5}}));
}

TEST_F(Matching, TakesNegativeAndMissingCodesForNone)
{
    There(1, "Roads", -1);
    There(2, "Rivers", Value::Null());
    Here(5, "Streets", -1);
    Here(6, "Rivers", 3);
    EXPECT_EQ(Found(), (Matches{{2, 6}}));
}

TEST_F(Matching, OfSeveralLayersOfOneNameTheLowestIDCounts)
{
    There(1, "Roads", Value::Null());
    Here(9, "Roads", Value::Null());
    Here(4, "Roads", Value::Null());
    EXPECT_EQ(Found(), (Matches{{1, 4}}));
}

TEST_F(Matching, LayersOfOneDatabaseOnlyHaveNoMatch)
{
    There(1, "Roads", 1);
    Here(1, "Rivers", 2);
    EXPECT_TRUE(Found().isEmpty());
}

} // namespace
} // namespace Orvane::Testing

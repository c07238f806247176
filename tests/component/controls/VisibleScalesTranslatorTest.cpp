// SPDX-License-Identifier: MIT
#include "component/controls/VisibleScalesTranslator.h"

#include "component/common/Component.h"
#include "component/controls/ControlsTestSupport.h"
#include "hosts/MemoryShellServices.h"
#include "support/PseudoLanguage.h"

#include <limits>

namespace Orvane::Testing {

namespace {

// A host whose scale table is set by the test.
class ScaleTable : public MemoryShellServices
{
public:
    explicit ScaleTable(CallLog& log) : MemoryShellServices(log) { }

    double denominator = 50000;
    qint32 index = 5;
    mutable std::vector<qint32> askedIndices;
    mutable std::vector<double> askedDenominators;

private:
    double IShellServices_ScaleFromIndex(qint32 asked) const override
    {
        askedIndices.push_back(asked);
        return denominator;
    }
    qint32 IShellServices_IndexFromScale(double asked) const override
    {
        askedDenominators.push_back(asked);
        return index;
    }
};

class VisibleScalesTranslatorTest : public testing::Test
{
protected:
    VisibleScalesTranslatorTest() { Component::Get().SetHost(nullptr, &m_table); }
    ~VisibleScalesTranslatorTest() override { Component::Get().SetHost(nullptr, nullptr); }

    CallLog m_log;
    ScaleTable m_table{m_log};
    VisibleScalesTranslator m_scales;
};

TEST_F(VisibleScalesTranslatorTest, NullIsVarious)
{
    EXPECT_EQ(m_scales.toString(Value::Null()), "various");
    EXPECT_THAT(m_scales.FromString("various"), IsNullValue());
}

TEST_F(VisibleScalesTranslatorTest, BothEndsOfTheRangeMeanDontCare)
{
    EXPECT_EQ(m_scales.toString(0), "dont care");
    EXPECT_EQ(m_scales.toString(256), "dont care");
    EXPECT_TRUE(m_table.askedIndices.empty());
}

TEST_F(VisibleScalesTranslatorTest, AnEndOfAnyNumericKindMeansDontCare)
{
    EXPECT_EQ(m_scales.toString(qint16(256)), "dont care");
    EXPECT_EQ(m_scales.toString(0.0), "dont care");
    EXPECT_EQ(m_scales.toString(256.0f), "dont care");
}

TEST_F(VisibleScalesTranslatorTest, DontCareReadsBackAsA16BitZeroAndNeverAs256)
{
    EXPECT_THAT(m_scales.FromString(m_scales.toString(0)), IsValue(qint16(0)));
    EXPECT_THAT(m_scales.FromString(m_scales.toString(256)), IsValue(qint16(0)));
}

TEST_F(VisibleScalesTranslatorTest, AnIndexShowsTheHostsDenominator)
{
    EXPECT_EQ(m_scales.toString(5), "1:50000");
    EXPECT_EQ(m_table.askedIndices, std::vector<qint32>{5});
}

TEST_F(VisibleScalesTranslatorTest, AnotherHostIsAskedOnceItIsThere)
{
    ScaleTable other(m_log);
    other.denominator = 777;
    Component::Get().SetHost(nullptr, &other);
    EXPECT_EQ(m_scales.toString(qint32(5)), "1:777");
    EXPECT_TRUE(m_table.askedIndices.empty());
}

TEST_F(VisibleScalesTranslatorTest, ADenominatorKeepsItsFraction)
{
    m_table.denominator = 2500.5;
    EXPECT_EQ(m_scales.toString(5), "1:2500.5");
}

TEST_F(VisibleScalesTranslatorTest, ALargeDenominatorHasNoExponent)
{
    m_table.denominator = 1e9;
    EXPECT_EQ(m_scales.toString(5), "1:1000000000");
}

TEST_F(VisibleScalesTranslatorTest, AnIndexOutsideTheRangeIsFormattedLikeAnyOther)
{
    EXPECT_EQ(m_scales.toString(257), "1:50000");
    EXPECT_EQ(m_scales.toString(-1), "1:50000");
    EXPECT_EQ(m_table.askedIndices, (std::vector<qint32>{257, -1}));
}

TEST_F(VisibleScalesTranslatorTest, AFractionIsRoundedOnlyAfterBothEndsWereExcluded)
{
    EXPECT_EQ(m_scales.toString(0.5), "1:50000");
    EXPECT_EQ(m_table.askedIndices, std::vector<qint32>{0});
}

TEST_F(VisibleScalesTranslatorTest, AScaleTextGivesTheHostsIndexAsA32BitInteger)
{
    m_table.index = 17;
    EXPECT_THAT(m_scales.FromString("1:50000"), IsValue(17));
    EXPECT_EQ(m_table.askedDenominators, std::vector<double>{50000});
}

TEST_F(VisibleScalesTranslatorTest, TheDenominatorStartsAtTheThirdCharacterWhateverStandsBefore)
{
    m_scales.FromString("x!1234");
    EXPECT_EQ(m_table.askedDenominators, std::vector<double>{1234});
}

TEST_F(VisibleScalesTranslatorTest, AHalfDenominatorGoesToTheEvenNeighbour)
{
    m_scales.FromString("1:2500.5");
    m_scales.FromString("1:2501.5");
    EXPECT_EQ(m_table.askedDenominators, (std::vector<double>{2500, 2502}));
}

TEST_F(VisibleScalesTranslatorTest, AnotherCaseIsNotVarious)
{
    EXPECT_EQ(ErrorOf([&] { m_scales.FromString("Various"); }), typeMismatch);
    EXPECT_EQ(ErrorOf([&] { m_scales.FromString("Dont care"); }), typeMismatch);
}

TEST_F(VisibleScalesTranslatorTest, ATailThatIsNoNumberIsATypeMismatch)
{
    for (const char* text : {"", "1", "1:", "1:abc", "1:10,000", "abc"})
        EXPECT_EQ(ErrorOf([&] { m_scales.FromString(text); }), typeMismatch) << text;
}

TEST_F(VisibleScalesTranslatorTest, ADenominatorBeyond32BitsOverflows)
{
    EXPECT_EQ(ErrorOf([&] { m_scales.FromString("1:2147483647"); }), 0);
    EXPECT_EQ(ErrorOf([&] { m_scales.FromString("1:2147483648"); }), overflow);
}

TEST_F(VisibleScalesTranslatorTest, AValueThatIsNoNumberIsATypeMismatch)
{
    EXPECT_EQ(ErrorOf([&] { m_scales.toString(QString("abc")); }), typeMismatch);
    EXPECT_EQ(ErrorOf([&] { m_scales.toString(Value()); }), typeMismatch);
}

TEST_F(VisibleScalesTranslatorTest, ATranslatedInterfaceReadsItsOwnTexts)
{
    const UsingMessages german({{"various", "verschieden"}, {"dont care", "beliebig"}, {"1:^1", "M ^1"}});

    EXPECT_EQ(m_scales.toString(5), "M 50000");
    EXPECT_THAT(m_scales.FromString("M 50000"), IsValue(5));
    EXPECT_THAT(m_scales.FromString(m_scales.toString(256)), IsValue(qint16(0)));
    EXPECT_THAT(m_scales.FromString(m_scales.toString(Value::Null())), IsNullValue());
    EXPECT_EQ(ErrorOf([&] { m_scales.FromString("various"); }), typeMismatch);
}

TEST_F(VisibleScalesTranslatorTest, TextsReadBackInThePseudoLanguage)
{
    const PseudoLanguage pseudo;

    EXPECT_EQ(m_scales.toString(0), Pseudo("dont care"));
    EXPECT_THAT(m_scales.FromString(m_scales.toString(0)), IsValue(qint16(0)));
    EXPECT_THAT(m_scales.FromString(m_scales.toString(5)), IsValue(5));
    EXPECT_THAT(m_scales.FromString(m_scales.toString(Value::Null())), IsNullValue());
}

TEST_F(VisibleScalesTranslatorTest, TheInterfaceForwardsUnchanged)
{
    const IUITranslator& translator = m_scales;

    EXPECT_EQ(translator.toString(5), "1:50000");
    EXPECT_THAT(translator.FromString("1:50000"), IsValue(5));
}

} // namespace

} // namespace Orvane::Testing

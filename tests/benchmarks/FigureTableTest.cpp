// SPDX-License-Identifier: MIT
#include "benchmarks/FigureTable.h"

#include <QString>
#include <QStringList>

#include <gmock/gmock.h>

namespace Orvane::Benchmarks {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class FigureTableTest : public testing::Test
{
protected:
    /// The line of the table for that level of "Open" with so many layers, with single blanks.
    std::string Line(const QString& level, int layers = 1000) const
    {
        const QString begin = QStringLiteral("Open %1 0 %2 ").arg(layers).arg(level);
        for (const QString& line : QString::fromStdString(m_table.Text()).split(u'\n')) {
            if ((line.simplified() + u' ').startsWith(begin))
                return line.simplified().toStdString();
        }
        return {};
    }

    /// The line about the growth of that level of "Open".
    std::string Growth(const QString& level) const
    {
        const QString text = QString::fromStdString(m_table.Text()).section("to the power of", 1);
        for (const QString& line : text.split(u'\n')) {
            if (line.simplified().startsWith("Open " + level))
                return line.simplified().toStdString();
        }
        return {};
    }

    FigureTable m_table;
};

} // namespace

TEST_F(FigureTableTest, ShowsTheMedianAndTheQuartilesOfBothTimes)
{
    for (const double time : {50.0, 20.0, 10.0, 40.0, 30.0})
        m_table.Add("Open", BareLevel, {1000, 0}, {time, time / 10});
    EXPECT_THAT(Line("bare"), HasSubstr("bare 30.0 [20.0 - 40.0] 3.000 [2.000 - 4.000]"));
}

TEST_F(FigureTableTest, ComparesBothTimesWithTheBareLoopOfTheSameSize)
{
    m_table.Add("Open", BareLevel, {1000, 0}, {10, 10});
    m_table.Add("Open", "dialog", {1000, 0}, {25, 15});
    m_table.Add("Open", BareLevel, {10000, 0}, {100, 100});
    EXPECT_THAT(Line("dialog"), HasSubstr(" 2.50 1.50 "));
}

TEST_F(FigureTableTest, GivesTheBareLoopNoRatio)
{
    m_table.Add("Open", BareLevel, {1000, 0}, {10, 10});
    EXPECT_THAT(Line("bare"), AllOf(HasSubstr(" - - - -"), Not(HasSubstr("1.00"))));
}

TEST_F(FigureTableTest, ShowsTheMemoryThatIsKnown)
{
    m_table.Add("Open", BareLevel, {1000, 0}, {10, 10});
    m_table.SetMemory("Open", BareLevel, {1000, 0}, {42.4, 512});
    EXPECT_THAT(Line("bare"), HasSubstr(" 512 42"));
}

TEST_F(FigureTableTest, NamesWhatHasNoBareLoop)
{
    m_table.Add("Open", "dialog", {1000, 0}, {10, 10});
    m_table.Add("Open", BareLevel, {10000, 0}, {10, 10});
    EXPECT_THAT(m_table.WithoutBareLoop(), ElementsAre("Open/1000/0"));
}

TEST_F(FigureTableTest, ShowsHowTheProcessorTimeGrows)
{
    for (const int layers : {1000, 10000, 100000})
        m_table.Add("Open", BareLevel, {layers, 0}, {5, layers / 100.0});
    EXPECT_THAT(Growth("bare"), HasSubstr("bare 1.00 (sizes over a factor of 100)"));
}

TEST_F(FigureTableTest, LetsGroupsGrowInTheLargestMapOnly)
{
    m_table.Add("Open", BareLevel, {1000, 50}, {5, 5000});
    m_table.Add("Open", BareLevel, {100000, 50}, {5, 5});
    m_table.Add("Open", BareLevel, {100000, 5000}, {5, 500});
    EXPECT_THAT(Growth("bare"), HasSubstr("bare 1.00 (sizes over a factor of 100)"));
}

TEST_F(FigureTableTest, SaysNothingAboutTheGrowthOfOneSize)
{
    m_table.Add("Open", BareLevel, {1000, 0}, {10, 10});
    EXPECT_THAT(Growth("bare"), IsEmpty());
}

} // namespace Orvane::Benchmarks

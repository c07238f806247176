// SPDX-License-Identifier: MIT
#include "soak/UsageTrend.h"

#include "hosts/ValueMatchers.h"

#include <QByteArray>
#include <QFile>
#include <QWidget>

#include <functional>
#include <gmock/gmock.h>
#include <memory>

namespace Orvane::Testing {

namespace {

using testing::Contains;
using testing::IsEmpty;

MATCHER_P(Names, resource, "names " + std::string(resource))
{
    return arg.startsWith(QLatin1String(resource));
}

QStringList GrowthsOf(const std::function<void()>& act)
{
    UsageTrend trend;
    for (int round = 0; round < 40; ++round) {
        act();
        trend.Add(MeasureUsage());
    }
    return trend.Growths();
}

TEST(UsageTrend, IsFlatWhenWhatIsTakenIsGivenBack)
{
    EXPECT_THAT(GrowthsOf([] { (void)std::make_unique<QWidget>(); }), IsEmpty());
}

TEST(UsageTrend, NoticesMemoryThatIsKept)
{
    std::vector<QByteArray> kept;
    const QStringList growths = GrowthsOf([&] { kept.emplace_back(64 * 1024, 'x'); });
    EXPECT_THAT(growths, Contains(Names("heap")));
}

TEST(UsageTrend, NoticesOneObjectInEachRound)
{
    QObject owner;
    EXPECT_THAT(GrowthsOf([&] { new QObject(&owner); }), Contains(Names("QObjects")));
}

TEST(UsageTrend, NoticesHiddenWidgets)
{
    QWidget owner;
    EXPECT_THAT(GrowthsOf([&] { new QWidget(&owner); }), Contains(Names("widgets")));
}

TEST(UsageTrend, NoticesFilesThatStayOpen)
{
    std::vector<std::unique_ptr<QFile>> files;
    const QStringList growths = GrowthsOf([&] {
        files.push_back(std::make_unique<QFile>(QStringLiteral("/dev/null")));
        EXPECT_TRUE(files.back()->open(QIODevice::ReadOnly));
    });
    EXPECT_THAT(growths, Contains(Names("open files")));
}

TEST(UsageTrend, DoesNotCountTheWarmUp)
{
    UsageTrend trend;
    for (int round = 0; round < 100; ++round)
        trend.Add(Usage{qint64(std::min(round, 10)) * 1'000'000});
    EXPECT_THAT(trend.Growths(), IsEmpty());
}

TEST(UsageTrend, RefusesToJudgeAFewMeasurements)
{
    UsageTrend trend;
    trend.Add({});
    EXPECT_THAT(trend.Growths(), Contains(Names("too few")));
}

} // namespace

} // namespace Orvane::Testing

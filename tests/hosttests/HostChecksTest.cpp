// SPDX-License-Identifier: MIT
#include "hosttests/HostChecks.h"

#include "hosttests/StoreHost.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QSet>

#include <gmock/gmock.h>
#include <stdexcept>

namespace Orvane::Testing {

namespace {

using HostTests::CheckResult;
using HostTests::HostCheck;

HostCheck CheckThat(std::function<void(HostTests::CheckRun&)> run, std::vector<Ability> needs = {})
{
    return {"Group", "Name", "Duty", std::move(needs), [] { return HostContents(); }, std::move(run)};
}

CheckResult OnStore(const HostCheck& check)
{
    return HostTests::RunCheck(check, HostTests::HostMaker<StoreHost>());
}

} // namespace

TEST(HostChecks, HaveNamesOfTheirOwnAndDuties)
{
    QSet<QString> names;
    for (const HostCheck& check : HostTests::AllHostChecks()) {
        const QString name = QString::fromLatin1(check.group) + QLatin1Char('.') + QLatin1String(check.name);
        EXPECT_FALSE(names.contains(name)) << name.toStdString();
        EXPECT_TRUE(QString::fromLatin1(check.duty).endsWith(QLatin1Char('.'))) << name.toStdString();
        names.insert(name);
    }
    EXPECT_GT(names.size(), 90);
}

TEST(HostChecks, AnErrorOfTheHostIsAFinding)
{
    const CheckResult result = OnStore(CheckThat(
        [](HostTests::CheckRun&) { throw RunTimeError(4711, QStringLiteral("Something is wrong")); }));
    ASSERT_EQ(result.findings.size(), 1);
    EXPECT_TRUE(result.findings[0].contains(QLatin1String("4711")));
    EXPECT_TRUE(result.findings[0].contains(QLatin1String("Something is wrong")));
}

TEST(HostChecks, AnotherExceptionIsAFinding)
{
    const CheckResult result
        = OnStore(CheckThat([](HostTests::CheckRun&) { throw std::logic_error("not allowed"); }));
    ASSERT_EQ(result.findings.size(), 1);
    EXPECT_TRUE(result.findings[0].contains(QLatin1String("not allowed")));
    EXPECT_EQ(OnStore(CheckThat([](HostTests::CheckRun&) { throw 7; })).findings.size(), 1);
}

TEST(HostChecks, AHostThatCannotBeMadeIsAFinding)
{
    const HostCheck check = CheckThat([](HostTests::CheckRun&) {});
    const auto none = [](const HostContents&) { return std::unique_ptr<HostTests::IHostUnderTest>(); };
    EXPECT_EQ(HostTests::RunCheck(check, none).findings.size(), 1);
}

TEST(HostChecks, WhatAHostLeavesOutIsSkippedWithItsReason)
{
    bool wasRun = false;
    const HostCheck check = CheckThat([&wasRun](HostTests::CheckRun&) { wasRun = true; }, {Ability::Writing});
    const CheckResult result = HostTests::RunCheck(check, HostTests::HostMaker<ReadOnlyHost>());
    EXPECT_EQ(result.skipped, QStringLiteral("the file is opened for reading only"));
    EXPECT_TRUE(result.findings.isEmpty());
    EXPECT_FALSE(wasRun);
}

TEST(HostChecks, ASecondProgramIsLeftOutUnlessTheHostSaysOtherwise)
{
    EXPECT_FALSE(StoreHost(HostContents()).WhyNot(Ability::SecondProgram).isEmpty());
    EXPECT_TRUE(StoreHost(HostContents()).WhyNot(Ability::Writing).isEmpty());
}

} // namespace Orvane::Testing

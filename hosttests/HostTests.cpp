// SPDX-License-Identifier: MIT
#include "hosttests/HostTests.h"

#include "hosttests/DialogChecks.h"
#include "hosttests/HostChecks.h"

#include <gtest/gtest.h>
#include <string>

namespace Orvane::HostTests {

namespace {

class OneCheck : public testing::Test
{
public:
    OneCheck(HostCheck check, MakeHost makeHost) : m_check(std::move(check)), m_makeHost(std::move(makeHost))
    {
    }

    void TestBody() override
    {
        const CheckResult result = RunCheck(m_check, m_makeHost);
        for (const QString& finding : result.findings)
            ADD_FAILURE() << finding.toStdString() << "\nA host must do this: " << m_check.duty;
        if (result.findings.isEmpty() && !result.skipped.isEmpty())
            GTEST_SKIP() << result.skipped.toStdString();
    }

private:
    HostCheck m_check;
    MakeHost m_makeHost;
};

void Register(const char* name, const std::vector<HostCheck>& checks, const MakeHost& makeHost)
{
    for (const HostCheck& check : checks) {
        const std::string suite = std::string(name) + '_' + check.group;
        testing::RegisterTest(
            suite.c_str(), check.name, nullptr, nullptr, __FILE__, __LINE__,
            [check, makeHost]() -> OneCheck* { return new OneCheck(check, makeHost); });
    }
}

} // namespace

void RegisterHostTests(const char* name, const MakeHost& makeHost)
{
    Register(name, AllHostChecks(), makeHost);
}

void RunWithDialog(const char* name, const MakeHost& makeHost, const QString& component)
{
    Register(name, DialogChecks(component), makeHost);
}

} // namespace Orvane::HostTests

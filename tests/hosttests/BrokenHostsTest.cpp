// SPDX-License-Identifier: MIT
#include "hosttests/BrokenHosts.h"

#include "hosttests/DialogChecks.h"
#include "hosttests/HostChecks.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace Orvane::Testing {

namespace {

using HostTests::HostCheck;

const std::vector<HostCheck>& Checks()
{
    static const std::vector<HostCheck> checks = [] {
        std::vector<HostCheck> all = HostTests::AllHostChecks();
        const auto dialog = HostTests::DialogChecks(QStringLiteral(ORVANE_COMPONENT));
        all.insert(all.end(), dialog.begin(), dialog.end());
        return all;
    }();
    return checks;
}

const std::vector<BrokenHost>& BrokenHosts()
{
    static const std::vector<BrokenHost> hosts = [] {
        std::vector<BrokenHost> all;
        for (const auto list :
             {HostsWithBrokenQueries, HostsWithBrokenCursors, HostsWithBrokenTransactions,
              HostsWithBrokenClients, HostsWithBrokenOptionals}) {
            const std::vector<BrokenHost> some = list();
            all.insert(all.end(), some.begin(), some.end());
        }
        return all;
    }();
    return hosts;
}

class BrokenHostTest : public testing::TestWithParam<BrokenHost>
{
};

std::string FaultOf(const testing::TestParamInfo<BrokenHost>& host)
{
    return host.param.fault;
}

} // namespace

TEST_P(BrokenHostTest, IsFound)
{
    for (const std::string name : GetParam().foundBy) {
        const auto check = std::find_if(
            Checks().begin(), Checks().end(), [&name](const HostCheck& each) { return each.name == name; });
        ASSERT_NE(check, Checks().end()) << "there is no check " << name;
        EXPECT_FALSE(HostTests::RunCheck(*check, GetParam().make).findings.isEmpty()) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(All, BrokenHostTest, testing::ValuesIn(BrokenHosts()), FaultOf);

TEST(BrokenHosts, EachCheckFindsOneOfThem)
{
    std::set<std::string> finding;
    for (const BrokenHost& host : BrokenHosts())
        finding.insert(host.foundBy.begin(), host.foundBy.end());
    for (const HostCheck& check : Checks())
        EXPECT_EQ(finding.count(check.name), 1u) << check.name << " finds none of the broken hosts";
}

} // namespace Orvane::Testing

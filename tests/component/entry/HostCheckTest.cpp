// SPDX-License-Identifier: MIT
#include "component/entry/HostCheck.h"

#include <gtest/gtest.h>
#include <string>

namespace Orvane {

namespace {

std::string ReasonText(const HostDescription& host)
{
    return ReasonAgainst(host).toStdString();
}

TEST(HostCheck, AcceptsAHostOfThisBuild)
{
    EXPECT_EQ(ReasonText(DescribeHost()), "");
}

TEST(HostCheck, AcceptsOtherMinorVersionsAndLongerDescriptions)
{
    HostDescription host = DescribeHost();
    host.size += 8;
    host.contract.minor = 0;
    EXPECT_EQ(ReasonText(host), "");
    host.contract.minor = CurrentContract.minor + 1;
    EXPECT_EQ(ReasonText(host), "");
}

TEST(HostCheck, RefusesAnotherMajorVersionWithBothVersions)
{
    HostDescription host = DescribeHost();
    host.contract = {7, 5};
    EXPECT_EQ(
        ReasonText(host),
        "it uses version " + std::to_string(CurrentContract.major) + "."
            + std::to_string(CurrentContract.minor) + " of the interface, this program uses version 7.5");
}

TEST(HostCheck, RefusesAnotherQtWithBothVersions)
{
    HostDescription host = DescribeHost();
    host.qtMajor = 9;
    host.qtMinor = 8;
    EXPECT_NE(ReasonText(host).find("this program with Qt 9.8"), std::string::npos) << ReasonText(host);
    host.qtMajor = DescribeHost().qtMajor;
    EXPECT_NE(ReasonText(host), ""); // two Qt of one major version in one process
}

TEST(HostCheck, RefusesAnotherStandardLibraryByName)
{
    HostDescription host = DescribeHost();
    host.compilerAbi = "home made";
    EXPECT_NE(ReasonText(host).find("\"home made\""), std::string::npos) << ReasonText(host);
    host.compilerAbi = nullptr;
    EXPECT_NE(ReasonText(host), "");
}

TEST(HostCheck, RefusesADescriptionThatIsTooShortWithoutReadingOn)
{
    HostDescription host = DescribeHost();
    host.size = sizeof host - 1;
    host.contract = {7, 5};
    EXPECT_EQ(ReasonText(host), "this program does not tell which version it uses");
}

TEST(WrittenReason, EndsWithAWholeCharacterInsideTheBuffer)
{
    char text[8] = "xxxxxxx";
    WriteReason(QStringLiteral("abc\u00e9\u00e9"), text, 6); // 3 bytes, then 2 for each
    EXPECT_STREQ(text, "abc\xC3\xA9");
    WriteReason(QStringLiteral("abc\u00e9\u00e9"), text, 5);
    EXPECT_STREQ(text, "abc");
    WriteReason(QStringLiteral("ab"), text, sizeof text);
    EXPECT_STREQ(text, "ab");
}

TEST(WrittenReason, IsNotWrittenWithoutABuffer)
{
    char text[2] = "x";
    WriteReason(QStringLiteral("ab"), text, 0);
    EXPECT_STREQ(text, "x");
    WriteReason(QStringLiteral("ab"), nullptr, 9);
}

} // namespace

} // namespace Orvane

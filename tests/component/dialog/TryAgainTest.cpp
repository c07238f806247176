// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"
#include "hosts/FailingClient.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QTest>

namespace Orvane::Testing {

namespace {

RunTimeError Locked()
{
    return {ErrorNumber::DatabaseLocked, QStringLiteral("The map is in use.")};
}

RunTimeError Lost()
{
    return {ErrorNumber::ConnectionLost, QStringLiteral("The connection was lost.")};
}

/// A layer with an edit that is not applied, in a host that fails when a test asks for it.
class TryAgain : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        UseClient(m_client);
        Open();
        ClickLayer("Roads");
        Click("chkVisible");
    }
    bool IsApplied() { return Stored(1, "Visible") == 0 && !CanApply(); }

    FailingClient m_client{host, {"Update", 1000, Lost()}}; // later than any test
};

/// The same, and the number of the search that fails.
class TryAgainAfterSeeking : public TryAgain, public testing::WithParamInterface<int>
{
};

} // namespace

TEST_F(TryAgain, AppliesOnceMoreWhenTheStoreWasLocked)
{
    m_client.Plan({"Update", 1, Locked()});
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(user.Only().text, Locked().Description());
    EXPECT_EQ(user.Only().buttons, QStringList({"&Try Again", "&Close"}));
    EXPECT_EQ(user.Only().defaultButton, QString("&Try Again"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsApplied(); }));
}

TEST_F(TryAgain, AppliesOnceMoreWhenTheServerWasNotReached)
{
    m_client.Plan({"Update", 1, Lost()});
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsApplied(); }));
}

// The first finds the layer to change, the second its code, the third what is stored then.
TEST_P(TryAgainAfterSeeking, EndsWithWhatTheUserWanted)
{
    m_client.Plan({"Seek", GetParam(), Lost()});
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsApplied() && CheckState("chkVisible") == 0; }));
    EXPECT_EQ(TextOf("lblCode"), "11");
    EXPECT_FALSE(IsUnderlined("chkVisible"));
}

INSTANTIATE_TEST_SUITE_P(TryAgain, TryAgainAfterSeeking, testing::Values(1, 2, 3));

TEST_F(TryAgain, ClosingTheBoxKeepsTheEdits)
{
    m_client.Plan({"Update", 1, Lost()});
    MessageBoxRobot user{BoxKey::Escape};
    Click("cmdApply");
    EXPECT_TRUE(CanApply());
    EXPECT_TRUE(IsUnderlined("chkVisible"));
    EXPECT_EQ(Stored(1, "Visible"), 1);
    Click("cmdApply");
    EXPECT_TRUE(IsApplied());
}

TEST_F(TryAgain, AsksAgainAsLongAsItFails)
{
    m_client.Plan({"Update", 1, Lost()});
    MessageBoxRobot user{BoxKey::Enter, BoxKey::Enter};
    user.BeforeAnswer([&](QMessageBox&) {
        if (user.Boxes().size() == 1)
            m_client.Plan({"Update", 1, Locked()});
    });
    Click("cmdApply");
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsApplied(); }));
    EXPECT_EQ(user.Boxes().size(), 2u);
}

TEST_F(TryAgain, OtherErrorsAreOnlyTold)
{
    m_client.Plan({"Update", 1, RunTimeError(ErrorNumber::DatabaseReadOnly, QStringLiteral("Read-only."))});
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(user.Only().buttons, QStringList("OK"));
    EXPECT_TRUE(CanApply());
}

} // namespace Orvane::Testing

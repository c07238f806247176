// SPDX-License-Identifier: MIT
#include "store/IChangeNews.h"
#include "store/IServerLogin.h"
#include "store/postgres/OwnServerTest.h"
#include "support/Errors.h"

#include <OrvaneShellLib/Cancellation.h>

namespace Orvane::Testing {

namespace {

using Link = IChangeNews::Link;

class NewsOfServerTest : public OwnServerTest
{
};

/// Knows no password, and asks nobody.
class NobodyAsked final : public IServerLogin
{
public:
    std::optional<QString> AskPassword(const QString&, const QString&, bool) override { return {}; }
    bool AsksSomebody() const override { return false; }
};

} // namespace

TEST_F(NewsOfServerTest, AServerThatIsStartedAgainIsFoundAgain)
{
    const auto store = PostgresLayerDatabase::Open(Place("orvane"));
    IChangeNews& news = *store->News();
    ForeignChange change;
    news.SetListener({[&](const ForeignChange& told) { change = told; }, {}});
    m_server->Stop();
    EXPECT_TRUE(ComesAbout([&] { return news.State() != Link::Present; }));
    m_server->Start();
    SetName(*PostgresLayerDatabase::Open(Place("orvane")), "Roads");
    EXPECT_TRUE(ComesAbout([&] { return news.State() == Link::Present; }));
    EXPECT_TRUE(ComesAbout([&] { return change.layerIDs.contains(1) || change.all; }));
}

TEST_F(NewsOfServerTest, APasswordThatWasChangedIsAskedForWhenTheUserTriesAgain)
{
    Owner().Run("CREATE ROLE kim LOGIN SUPERUSER PASSWORD 'one'");
    RequirePassword("kim");
    TypingUser user({QStringLiteral("one"), QStringLiteral("two")});
    const auto store = Opened("kim", &user);
    ASSERT_EQ(user.wasWrongs.size(), 1U);
    IChangeNews& news = *store->News();
    int tries = 0;
    news.SetListener({{}, [&] { tries += news.State() == Link::Trying ? 1 : 0; }});
    Owner().Run("ALTER ROLE kim PASSWORD 'two'");
    Owner().Run("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE usename = 'kim'");
    EXPECT_TRUE(ComesAbout([&] { return tries > 0 && news.State() == Link::Lost; }));
    EXPECT_EQ(user.wasWrongs.size(), 1U) << "nobody is asked in the background";
    news.TryAgain();
    EXPECT_TRUE(ComesAbout([&] { return news.State() == Link::Present; }));
    EXPECT_EQ(user.wasWrongs, (std::vector<bool>{false, true}));
    SetName(*store, "Roads");
}

TEST_F(NewsOfServerTest, WithoutAPasswordAndAUserToAskTheServersErrorIsTold)
{
    Owner().Run("CREATE ROLE kim LOGIN SUPERUSER PASSWORD 'one'");
    RequirePassword("kim");
    const auto open = [&](IServerLogin& login) {
        StoreOptions options;
        options.login = &login;
        return ErrorOf([&] { PostgresLayerDatabase::Open(Place("kim"), OpenMode::ReadOnly, options); });
    };
    NobodyAsked nobody;
    EXPECT_EQ(open(nobody), int(ErrorNumber::DatabaseFailure));
    TypingUser gone({});
    EXPECT_EQ(open(gone), int(UserCancelled));
}

} // namespace Orvane::Testing

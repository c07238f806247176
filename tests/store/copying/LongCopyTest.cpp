// SPDX-License-Identifier: MIT
#include "store/copying/CopyTest.h"
#include "store/copying/StoreCopy.h"
#include "support/CuttingProxy.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QFile>
#include <QUrl>

#include <algorithm>

namespace Orvane::Testing {

namespace {

constexpr int ManyLayers = 9000;

/// Copies that take their time: others change the map meanwhile, the user cancels, the network is cut.
class LongCopyTest : public CopyTest
{
protected:
    /// The map as it is reached through that network.
    QString PlaceThrough(const CuttingProxy& proxy) const
    {
        return QStringLiteral("postgresql://orvane@/postgres?host=%1&schema=%2")
            .arg(proxy.Folder(), QString::fromUtf8(QUrl::toPercentEncoding(m_schema)));
    }
};

} // namespace

TEST_F(LongCopyTest, ACopyShowsOneMoment)
{
    AddLayers(*m_server, ManyLayers);
    const auto other = Other();
    bool isChanged = false;
    m_server->SetWatcher([&](double done) {
        if (done > 0 && !isChanged) {
            isChanged = true;
            other->Run("UPDATE Layers SET Code = 7; DELETE FROM Layers WHERE LayerID > 8000");
        }
        return true;
    });
    m_server->CopyToFile(Path("copy.orvane"));
    m_server->SetWatcher({});
    EXPECT_TRUE(isChanged);
    const auto copy = LayerStores::Open(Path("copy.orvane"));
    EXPECT_EQ(NumberIn(*copy, "SELECT count(*) AS N FROM Layers WHERE Code = 0"), ManyLayers);
    EXPECT_EQ(NumberIn(*m_server, "SELECT count(*) AS N FROM Layers WHERE Code = 7"), 8000);
}

TEST_F(LongCopyTest, TheWatcherLearnsHowMuchIsDoneAndMayCancel)
{
    AddLayers(*m_file, ManyLayers);
    double last = 0;
    m_file->SetWatcher([&](double done) {
        EXPECT_GE(done, done < 0 ? done : last);
        last = std::max(last, done);
        return last < 0.5;
    });
    EXPECT_EQ(ErrorOf([&] { CopyStore(*m_file, *m_server); }), int(UserCancelled));
    m_file->SetWatcher({});
    EXPECT_GE(last, 0.5);
    EXPECT_EQ(Everything(*m_server), QStringList());
}

TEST_F(LongCopyTest, ACancelledCopyOfAServerLeavesNoFileAndTheMapUsable)
{
    AddLayers(*m_server, ManyLayers);
    m_server->SetWatcher([](double done) { return done <= 0; });
    EXPECT_EQ(ErrorOf([&] { m_server->CopyToFile(Path("copy.orvane")); }), int(UserCancelled));
    m_server->SetWatcher({});
    EXPECT_FALSE(QFile::exists(Path("copy.orvane")));
    EXPECT_FALSE(QFile::exists(Path("copy.orvane.part")));
    Execute(*m_server, "UPDATE Layers SET Code = 5");
}

TEST_F(LongCopyTest, ACutOnTheWayLeavesNoCopy)
{
    AddLayers(*m_server, ManyLayers);
    CuttingProxy proxy(SharedServer().Socket());
    const auto cut = LayerStores::Open(PlaceThrough(proxy));
    proxy.CutAfter(200'000, CuttingProxy::Direction::ToClient);
    EXPECT_EQ(ErrorOf([&] { cut->CopyToFile(Path("copy.orvane")); }), int(ErrorNumber::ConnectionLost));
    EXPECT_EQ(proxy.Cuts(), 1);
    EXPECT_FALSE(QFile::exists(Path("copy.orvane")));
    cut->CopyToFile(Path("copy.orvane"));
    EXPECT_EQ(
        NumberIn(*LayerStores::Open(Path("copy.orvane")), "SELECT count(*) AS N FROM Layers"), ManyLayers);
}

TEST_F(LongCopyTest, ACopyToAServerThatIsCutStoresNothingThere)
{
    AddLayers(*m_file, ManyLayers);
    CuttingProxy proxy(SharedServer().Socket());
    const auto cut = LayerStores::Open(PlaceThrough(proxy));
    proxy.CutAfter(200'000, CuttingProxy::Direction::ToServer);
    EXPECT_EQ(ErrorOf([&] { CopyStore(*m_file, *cut); }), int(ErrorNumber::ConnectionLost));
    EXPECT_EQ(Everything(*m_server), QStringList());
    CopyStore(*m_file, *cut);
    EXPECT_EQ(NumberIn(*m_server, "SELECT count(*) AS N FROM Layers"), ManyLayers);
}

TEST_F(LongCopyTest, ACopyTakesFewRoundTripsHoweverManyRowsThereAre)
{
    AddLayers(*m_file, ManyLayers);
    CuttingProxy proxy(SharedServer().Socket());
    const auto slow = LayerStores::Open(PlaceThrough(proxy));
    proxy.ForgetRoundTrips();
    CopyStore(*m_file, *slow);
    EXPECT_LE(proxy.RoundTrips(), 12);
    proxy.ForgetRoundTrips();
    slow->CopyToFile(Path("copy.orvane"));
    EXPECT_LE(proxy.RoundTrips(), 12);
}

} // namespace Orvane::Testing

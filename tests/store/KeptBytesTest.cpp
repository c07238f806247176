// SPDX-License-Identifier: MIT
#include "store/KeptBytes.h"

#include "store/sqlite/StoreTest.h"
#include "support/FileSizeLimit.h"

#include <QDir>

namespace Orvane::Testing {

namespace {

constexpr qsizetype Large = 4 * KeptBytes::Small;

/// Nothing else in the test program keeps bytes meanwhile.
class KeptBytesTest : public StoreTest
{
protected:
    ~KeptBytesTest() override { KeptBytes::SetMost(KeptBytes::UsualMost); }

    static void AllowInMemory(qsizetype bytes) { KeptBytes::SetMost(KeptBytes::AllInMemory() + bytes); }
};

TEST_F(KeptBytesTest, OfNothingAreEmpty)
{
    EXPECT_TRUE(KeptBytes().IsEmpty());
    EXPECT_TRUE(KeptBytes(QByteArray()).IsEmpty());
    EXPECT_EQ(KeptBytes().Read(), QByteArray());
}

TEST_F(KeptBytesTest, AreReadAsTheyWereKept)
{
    const QByteArray bytes(Large, 'a');
    for (const qsizetype allowed : {Large, qsizetype(0)}) {
        AllowInMemory(allowed);
        const KeptBytes kept(bytes);
        EXPECT_EQ(kept.Read(), bytes);
        EXPECT_EQ(kept.Read(), bytes);
        EXPECT_EQ(kept.InMemory(), allowed);
    }
}

TEST_F(KeptBytesTest, TakeNoMoreMemoryThanAllowed)
{
    const qsizetype before = KeptBytes::AllInMemory();
    AllowInMemory(3 * Large);
    {
        std::vector<KeptBytes> all;
        all.reserve(10);
        for (char letter = 'a'; letter < 'k'; ++letter)
            all.emplace_back(QByteArray(Large, letter));
        EXPECT_EQ(KeptBytes::AllInMemory(), before + 3 * Large);
        for (char letter = 'a'; letter < 'k'; ++letter)
            EXPECT_EQ(all[size_t(letter - 'a')].Read(), QByteArray(Large, letter));
    }
    EXPECT_EQ(KeptBytes::AllInMemory(), before);
}

TEST_F(KeptBytesTest, AreReadPieceByPieceWhereverEachIs)
{
    AllowInMemory(2 * Large);
    KeptBytes::Maker maker;
    for (char letter = 'a'; letter < 'f'; ++letter)
        maker.Add(QByteArray(Large, letter));
    const KeptBytes kept = maker.Finish();
    EXPECT_EQ(kept.InMemory(), 2 * Large);
    EXPECT_EQ(kept.Size(), 5 * Large);
    ASSERT_EQ(kept.PieceCount(), 5u);
    for (const size_t number : {4u, 0u, 2u, 3u, 1u})
        EXPECT_EQ(kept.Piece(number), QByteArray(Large, char('a' + number)));
    EXPECT_EQ(kept.Read(), kept.Piece(0) + kept.Piece(1) + kept.Piece(2) + kept.Piece(3) + kept.Piece(4));
    EXPECT_TRUE(maker.Finish().IsEmpty());
}

TEST_F(KeptBytesTest, AreSharedByCopies)
{
    const qsizetype before = KeptBytes::AllInMemory();
    AllowInMemory(Large);
    const KeptBytes kept(QByteArray(Large, 'a'));
    const KeptBytes copy = kept; // NOLINT(performance-unnecessary-copy-initialization): the copy is the point
    EXPECT_EQ(KeptBytes::AllInMemory(), before + Large);
    EXPECT_EQ(copy.Read(), kept.Read());
}

TEST_F(KeptBytesTest, RaiseWhenThereIsNoRoomForThem)
{
    AllowInMemory(0);
    const FileSizeLimit noRoom(0);
    const auto keep = [] { KeptBytes(QByteArray(Large, 'a')); };
    EXPECT_EQ(ErrorOf(keep), int(ErrorNumber::DatabaseFailure));
    EXPECT_TRUE(DescriptionOf(keep).contains(QDir::toNativeSeparators(QDir::tempPath())));
    EXPECT_NO_THROW(KeptBytes(QByteArray(KeptBytes::Small, 'a')));
}

} // namespace

} // namespace Orvane::Testing

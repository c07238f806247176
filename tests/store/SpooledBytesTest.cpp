// SPDX-License-Identifier: MIT
#include "store/SpooledBytes.h"

#include "store/sqlite/StoreTest.h"
#include "support/FileSizeLimit.h"

namespace Orvane::Testing {

namespace {

constexpr quint64 Many = 300000; // take three times the memory that is allowed

std::string Record(quint64 number)
{
    return std::to_string(number) + std::string(number % 150, 'x');
}

class SpooledBytesTest : public StoreTest
{
protected:
    // Returns where each begins.
    std::vector<quint64> Append(quint64 first, quint64 count)
    {
        std::vector<quint64> places;
        places.reserve(count);
        for (quint64 number = first; number < first + count; ++number) {
            places.push_back(m_bytes.Size());
            m_bytes.Append(Record(number));
        }
        return places;
    }
    void ExpectRecords(quint64 count) const
    {
        std::string buffer;
        quint64 place = 0;
        for (quint64 number = 0; number < count; ++number)
            ASSERT_EQ(m_bytes.Read(place, buffer), Record(number)) << number;
        EXPECT_EQ(place, m_bytes.Size());
    }

    SpooledBytes m_bytes;
};

TEST_F(SpooledBytesTest, AreReadInTheirOrder)
{
    for (const quint64 count : {quint64(0), quint64(3), Many}) {
        m_bytes.ShrinkTo(0);
        Append(0, count);
        ExpectRecords(count);
    }
}

TEST_F(SpooledBytesTest, AreReadFromAnyPlace)
{
    const std::vector<quint64> places = Append(0, Many);
    std::string buffer;
    for (quint64 number = 0; number < Many; number += 997) {
        quint64 place = places[Many - 1 - number];
        EXPECT_EQ(m_bytes.Read(place, buffer), Record(Many - 1 - number));
        place = places[number];
        EXPECT_EQ(m_bytes.Read(place, buffer), Record(number));
    }
}

TEST_F(SpooledBytesTest, GoOnWhereTheyWereShrunkTo)
{
    for (const quint64 kept : {quint64(0), quint64(5), Many / 2, Many - 5}) {
        m_bytes.ShrinkTo(0);
        const std::vector<quint64> places = Append(0, Many);
        std::string buffer;
        quint64 place = places[kept];
        m_bytes.Read(place, buffer); // what was read before must not be read again
        m_bytes.ShrinkTo(places[kept]);
        ExpectRecords(kept);
        Append(kept, Many - kept);
        ExpectRecords(Many);
    }
}

TEST_F(SpooledBytesTest, StayAsTheyAreWhenThereIsNoRoomForMore)
{
    quint64 count = 0;
    const FileSizeLimit noRoom(0);
    EXPECT_EQ(
        ErrorOf([&] {
            for (; count < Many; ++count)
                m_bytes.Append(Record(count));
        }),
        int(ErrorNumber::DatabaseFailure));
    EXPECT_GT(count, 0u);
    EXPECT_LT(count, Many);
    ExpectRecords(count);
}

} // namespace

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "store/Changeset.h"

#include "store/ChangeCoding.h"
#include "store/ChangeLog.h"
#include "store/ChangesetReader.h"

#include <gmock/gmock.h>
#include <limits>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string Coded(qint64 number)
{
    std::string bytes;
    ChangeCoding::AppendInteger(bytes, number);
    return bytes;
}

std::string Coded(std::string_view text)
{
    std::string bytes;
    ChangeCoding::AppendText(bytes, text);
    return bytes;
}

/// Changes of a table of cities: number, name, size.
class ChangesetTest : public testing::Test
{
protected:
    ChangesetTest() { m_log.AddTable({"Cities", {"Number", "Name", "Size"}, {0}}); }

    void Insert(qint64 number, std::string_view name, qint64 size)
    {
        Whole(ChangeKind::Inserted, number, name, size);
    }
    void Delete(qint64 number, std::string_view name, qint64 size)
    {
        Whole(ChangeKind::Deleted, number, name, size);
    }
    void Rename(qint64 number, std::string_view before, std::string_view after)
    {
        m_log.BeginRow(0, ChangeKind::Updated, Coded(number));
        m_log.AddColumn(1, Coded(before), Coded(after));
        m_log.FinishRow();
    }
    void Resize(qint64 number, qint64 before, qint64 after)
    {
        m_log.BeginRow(0, ChangeKind::Updated, Coded(number));
        m_log.AddColumn(2, Coded(before), Coded(after));
        m_log.FinishRow();
    }
    /// Into a second table, with nothing but a number.
    void InsertRiver(qint64 number)
    {
        const int table = m_log.AddTable({"Rivers", {"Number"}, {0}});
        m_log.BeginRow(table, ChangeKind::Inserted, Coded(number));
        m_log.AddColumn(0, Coded(number), Coded(number));
        m_log.FinishRow();
    }
    Changeset Taken()
    {
        const Changeset changes = m_log.ChangesSince(m_start);
        m_start = m_log.Size();
        return changes;
    }

    static std::string Text(std::string_view coded)
    {
        if (coded.empty())
            return "-";
        const StoredValue value = ChangeBytes::Decoded(coded);
        if (const auto* number = std::get_if<qint64>(&value))
            return std::to_string(*number);
        return std::string(std::get<std::string_view>(value));
    }

    /// "+1 ...", "-1 ..." or "1 Name: old > new".
    static std::vector<std::string> Told(const Changeset& changes)
    {
        std::vector<std::string> rows;
        ChangesetReader reader(changes);
        while (reader.Next()) {
            const ChangedRow& row = reader.Row();
            std::string text = row.kind == ChangeKind::Inserted ? "+"
                : row.kind == ChangeKind::Deleted               ? "-"
                                                                : "";
            text += Text(row.key);
            for (const ChangedRow::Column& column : row.columns) {
                text += ' ' + reader.Table().columns[size_t(column.position)] + ' ' + Text(column.before)
                    + '>' + Text(column.after);
            }
            rows.push_back(text);
        }
        return rows;
    }

private:
    void Whole(ChangeKind kind, qint64 number, std::string_view name, qint64 size)
    {
        m_log.BeginRow(0, kind, Coded(number));
        m_log.AddColumn(0, Coded(number), Coded(number));
        m_log.AddColumn(1, Coded(name), Coded(name));
        m_log.AddColumn(2, Coded(size), Coded(size));
        m_log.FinishRow();
    }

    ChangeLog m_log;
    size_t m_start = 0;
};

} // namespace

TEST_F(ChangesetTest, OfNothingIsEmpty)
{
    EXPECT_TRUE(Taken().IsEmpty());
    EXPECT_TRUE(Taken().Inverted().IsEmpty());
}

TEST_F(ChangesetTest, KeepsWhatChangedOfEachRow)
{
    Insert(7, "Ulm", 12);
    Rename(3, "Bonn", "Bern");
    Delete(4, "Rom", 99);
    EXPECT_THAT(
        Told(Taken()),
        ElementsAre(
            "+7 Number ->7 Name ->Ulm Size ->12", "3 Name Bonn>Bern", "-4 Number 4>- Name Rom>- Size 99>-"));
}

TEST_F(ChangesetTest, InvertedGoesBackFromTheLastRowToTheFirst)
{
    Insert(7, "Ulm", 12);
    Rename(3, "Bonn", "Bern");
    EXPECT_THAT(
        Told(Taken().Inverted()), ElementsAre("3 Name Bern>Bonn", "-7 Number 7>- Name Ulm>- Size 12>-"));
}

TEST_F(ChangesetTest, ARowThatChangedTwiceIsThereOnce)
{
    Rename(3, "Bonn", "Bern");
    Resize(3, 1, 2);
    Rename(3, "Bern", "Basel");
    EXPECT_THAT(Told(Taken()), ElementsAre("3 Name Bonn>Basel Size 1>2"));
}

TEST_F(ChangesetTest, ARowThatIsAsBeforeIsNotThere)
{
    Rename(3, "Bonn", "Bern");
    Rename(3, "Bern", "Bonn");
    Insert(8, "Ulm", 1);
    Delete(8, "Ulm", 1);
    Delete(9, "Rom", 5);
    Insert(9, "Rom", 5);
    EXPECT_TRUE(Taken().IsEmpty());
}

TEST_F(ChangesetTest, AnInsertedRowHasTheValuesItGotLast)
{
    Insert(8, "Ulm", 1);
    Resize(8, 1, 2);
    EXPECT_THAT(Told(Taken()), ElementsAre("+8 Number ->8 Name ->Ulm Size ->2"));
}

TEST_F(ChangesetTest, ADeletedRowHasTheValuesItHadFirst)
{
    Resize(8, 1, 2);
    Delete(8, "Ulm", 2);
    EXPECT_THAT(Told(Taken()), ElementsAre("-8 Number 8>- Name Ulm>- Size 1>-"));
}

TEST_F(ChangesetTest, ARowThatCameBackChangedOnlyInWhatDiffers)
{
    Delete(8, "Ulm", 1);
    Insert(8, "Ulm", 2);
    Resize(8, 2, 3);
    EXPECT_THAT(Told(Taken()), ElementsAre("8 Size 1>3"));
}

TEST_F(ChangesetTest, ARowThatCameAndWentCanComeAgain)
{
    Insert(8, "Ulm", 1);
    Delete(8, "Ulm", 1);
    Insert(8, "Bern", 2);
    EXPECT_THAT(Told(Taken()), ElementsAre("+8 Number ->8 Name ->Bern Size ->2"));
}

TEST_F(ChangesetTest, TwoInARowAreOne)
{
    Rename(3, "Bonn", "Bern");
    Insert(8, "Ulm", 1);
    const Changeset first = Taken();
    Rename(3, "Bern", "Basel");
    Delete(8, "Ulm", 1);
    Insert(9, "Rom", 5);
    EXPECT_THAT(
        Told(first.Then(Taken())), ElementsAre("3 Name Bonn>Basel", "+9 Number ->9 Name ->Rom Size ->5"));
}

TEST_F(ChangesetTest, TwoOfDifferentTablesAreOne)
{
    ChangeLog other;
    other.AddTable({"Rivers", {"Number"}, {0}});
    other.BeginRow(0, ChangeKind::Inserted, Coded(3));
    other.AddColumn(0, {}, Coded(3));
    other.FinishRow();
    Rename(3, "Bonn", "Bern");
    EXPECT_THAT(Told(Taken().Then(other.ChangesSince(0))), ElementsAre("3 Name Bonn>Bern", "+3 Number ->3"));
}

TEST_F(ChangesetTest, WithoutATableKeepsTheRowsOfTheOthers)
{
    Rename(1, "Ulm", "Bonn");
    InsertRiver(2);
    const Changeset changes = Taken();
    EXPECT_EQ(Told(changes).size(), 2u);
    EXPECT_THAT(Told(changes.Without("Rivers")), ElementsAre("1 Name Ulm>Bonn"));
    EXPECT_EQ(Told(changes.Without("Lakes")).size(), 2u);
    EXPECT_TRUE(changes.Without("Rivers").Without("Cities").IsEmpty());
}

TEST_F(ChangesetTest, LargeChangesAreKeptSmall)
{
    for (int number = 0; number < 5000; ++number)
        Rename(number, "Bonn", "Bern");
    const Changeset changes = Taken();
    EXPECT_LT(changes.BytesInMemory() * 4, changes.Bytes().size());
    EXPECT_EQ(Told(changes).size(), 5000u);
}

TEST(ChangeCoding, EveryValueComesBackAsItWas)
{
    for (const qint64 number :
         {qint64(0), qint64(-1), qint64(127), qint64(-16777216), std::numeric_limits<qint64>::min(),
          std::numeric_limits<qint64>::max()})
        EXPECT_EQ(std::get<qint64>(ChangeBytes::Decoded(Coded(number))), number);
    for (const double number : {0.0, -0.1, 2e9, std::numeric_limits<double>::infinity()}) {
        std::string bytes;
        ChangeCoding::AppendReal(bytes, number);
        EXPECT_EQ(std::get<double>(ChangeBytes::Decoded(bytes)), number);
    }
    const std::string text(1000, 'x');
    EXPECT_EQ(std::get<std::string_view>(ChangeBytes::Decoded(Coded(text))), text);
    std::string blob;
    ChangeCoding::AppendBlob(blob, std::string_view("a\0b", 3));
    EXPECT_EQ(std::get<Blob>(ChangeBytes::Decoded(blob)).bytes, QByteArray("a\0b", 3));
    std::string null;
    ChangeCoding::AppendNull(null);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(ChangeBytes::Decoded(null)));
}

// More than one piece, and more than the log holds in memory.
TEST_F(ChangesetTest, OfManyRowsIsMergedInvertedAndCombinedAsAFewRowsAre)
{
    constexpr qint64 Count = 200000;
    const std::string name(100, 'n');
    for (qint64 number = 0; number < Count; ++number)
        Delete(number, name, 1);
    for (qint64 number = 0; number < Count; ++number)
        Insert(number, number % 2 ? name : "other", 1);
    const Changeset changes = Taken();
    const Changeset back = changes.Inverted();
    qint64 number = 0;
    for (ChangesetReader reader(changes); reader.Next(); number += 2) {
        ASSERT_EQ(reader.Row().kind, ChangeKind::Updated);
        ASSERT_EQ(reader.Row().key, Coded(number));
        ASSERT_EQ(reader.Row().columns.size(), 1u);
        ASSERT_EQ(Text(reader.Row().columns[0].after), "other");
    }
    EXPECT_EQ(number, Count);
    for (ChangesetReader reader(back); reader.Next();) {
        number -= 2;
        ASSERT_EQ(reader.Row().key, Coded(number));
        ASSERT_EQ(Text(reader.Row().columns[0].before), "other");
    }
    EXPECT_EQ(number, 0);
    EXPECT_TRUE(changes.Then(back).IsEmpty());
}

TEST_F(ChangesetTest, TellsHowMuchOfItIsRead)
{
    for (qint64 number = 0; number < 100000; ++number)
        Resize(number, 1, 2);
    const Changeset changes = Taken();
    ChangesetReader reader(changes);
    double before = reader.Done();
    EXPECT_EQ(before, 0);
    while (reader.Next()) {
        ASSERT_GE(reader.Done(), before);
        before = reader.Done();
    }
    EXPECT_EQ(reader.Done(), 1);
}

TEST_F(ChangesetTest, OfARowThatOftenChangesHoldsItsFirstAndItsLastValue)
{
    for (qint64 size = 0; size < 1000; ++size)
        Resize(1, size, size + 1);
    ChangesetReader reader(Taken());
    ASSERT_TRUE(reader.Next());
    EXPECT_EQ(Text(reader.Row().columns[0].before), "0");
    EXPECT_EQ(Text(reader.Row().columns[0].after), "1000");
    EXPECT_FALSE(reader.Next());
}
} // namespace Orvane::Testing

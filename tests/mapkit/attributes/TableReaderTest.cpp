// SPDX-License-Identifier: MIT
#include "mapkit/attributes/TableReader.h"

#include "mapkit/attributes/TableFile.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;

namespace {

class TableReaderTest : public testing::Test
{
protected:
    bool WaitForTask(TableReader& reader)
    {
        return QTest::qWaitFor([&] { return reader.Current() == TableReader::Task::None; });
    }

    DataFolder m_folder;
    LayerSource m_source = WriteTowns(m_folder, "towns.gpkg", "GPKG");
};

} // namespace

TEST_F(TableReaderTest, GivesColumnsThenIDsAndTellsWhenAllAreThere)
{
    TableReader reader(m_source);
    std::vector<std::string> news;
    std::vector<qint64> all;
    QObject::connect(&reader, &TableReader::Opened, [&](const auto&, qint64 count) {
        news.push_back("opened " + std::to_string(count));
    });
    QObject::connect(&reader, &TableReader::IDsRead, [&](const std::vector<qint64>& ids) {
        all.insert(all.end(), ids.begin(), ids.end());
    });
    QObject::connect(&reader, &TableReader::IDsComplete, [&] { news.push_back("complete"); });
    reader.Open();
    EXPECT_EQ(reader.Current(), TableReader::Task::Opening);
    ASSERT_TRUE(WaitForTask(reader));
    EXPECT_THAT(news, ElementsAre("opened 4", "complete"));
    EXPECT_THAT(all, ElementsAre(1, 2, 3, 4));
}

TEST_F(TableReaderTest, GivesOnlyTheLastOfTwoRequestsToSort)
{
    TableReader reader(m_source);
    std::vector<std::vector<qint64>> sorted;
    QObject::connect(
        &reader, &TableReader::Sorted, [&](const std::vector<qint64>& ids) { sorted.push_back(ids); });
    reader.Sort(1, Qt::AscendingOrder, QLocale::c());
    reader.Sort(1, Qt::DescendingOrder, QLocale::c());
    ASSERT_TRUE(WaitForTask(reader));
    EXPECT_THAT(sorted, ElementsAre(ElementsAre(3, 1, 2, 4)));
}

TEST_F(TableReaderTest, GivesNothingThatWasCancelled)
{
    TableReader reader(m_source);
    QSignalSpy found(&reader, &TableReader::Found);
    reader.Find({"by", -1, QLocale::c()});
    reader.Cancel();
    EXPECT_EQ(reader.Current(), TableReader::Task::None);
    QSignalSpy complete(&reader, &TableReader::IDsComplete);
    reader.Open();
    ASSERT_TRUE(complete.wait());
    EXPECT_EQ(found.size(), 0);
}

TEST_F(TableReaderTest, TellsWhyTheSourceCannotBeRead)
{
    QFile::remove(m_source.path);
    TableReader reader(m_source);
    QString reason;
    TableReader::Task failed = TableReader::Task::None;
    QObject::connect(&reader, &TableReader::Failed, [&](TableReader::Task task, const QString& text) {
        failed = task;
        reason = text;
    });
    reader.Open();
    ASSERT_TRUE(WaitForTask(reader));
    EXPECT_EQ(failed, TableReader::Task::Opening);
    EXPECT_TRUE(reason.contains("towns.gpkg")) << qPrintable(reason);
}

TEST_F(TableReaderTest, MayEndWhileItReads)
{
    auto reader = std::make_unique<TableReader>(m_source);
    reader->Open();
    reader->ReadRows({1, 2});
    reader->Sort(0, Qt::AscendingOrder, QLocale::c());
    reader.reset();
    SUCCEED();
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "store/sqlite/files/LayerFileUse.h"

#include "store/sqlite/SqliteLayerDatabase.h"
#include "support/ProcessorTime.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace Orvane {

namespace {

class LayerFileUseTest : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(LayerFileUseTest, AnOpenFileIsInUseUntilItIsClosed)
{
    auto database = SqliteLayerDatabase::Create(Path("map"));
    EXPECT_TRUE(IsLayerFileInUse(Path("map")));
    database.reset();
    EXPECT_FALSE(IsLayerFileInUse(Path("map")));
}

TEST_F(LayerFileUseTest, OfTwoWhoHaveItOpenTheLastOneCounts)
{
    auto first = SqliteLayerDatabase::Create(Path("map"));
    auto second = SqliteLayerDatabase::Open(Path("map"));
    first.reset();
    EXPECT_TRUE(IsLayerFileInUse(Path("map")));
    second.reset();
    EXPECT_FALSE(IsLayerFileInUse(Path("map")));
}

TEST_F(LayerFileUseTest, AskingChangesNothingForThoseWhoHaveItOpen)
{
    const auto database = SqliteLayerDatabase::Create(Path("map"));
    EXPECT_TRUE(IsLayerFileInUse(Path("map")));
    database->Execute("INSERT INTO Layers (LayerID, Name) VALUES (7, 'Roads')");
    const auto other = SqliteLayerDatabase::Open(Path("map"));
    EXPECT_EQ(
        ToText(other->OpenRecordset("SELECT Name FROM Layers WHERE LayerID = 7")->Field("Name")), "Roads");
}

TEST_F(LayerFileUseTest, AskingChangesNoByteOfAFileThatIsClosed)
{
    SqliteLayerDatabase::Create(Path("map"));
    const auto bytes = [&] {
        QFile file(Path("map"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QByteArray before = bytes();
    EXPECT_FALSE(IsLayerFileInUse(Path("map")));
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList("map"));
}

TEST_F(LayerFileUseTest, WhatIsMissingOrNoLayerDatabaseIsNotInUse)
{
    EXPECT_FALSE(IsLayerFileInUse(Path("none")));
    EXPECT_FALSE(IsLayerFileInUse(m_folder.path()));
    QFile text(Path("text"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no layer database");
    text.close();
    EXPECT_FALSE(IsLayerFileInUse(Path("text")));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList("text"));
}

TEST_F(LayerFileUseTest, APipeInPlaceOfAJournalIsNotWaitedFor)
{
    const Testing::ProcessorTime time(std::chrono::seconds(10));
    SqliteLayerDatabase::Create(Path("map"));
    ASSERT_EQ(mkfifo(Path("map-journal").toUtf8().constData(), 0600), 0);
    EXPECT_FALSE(IsLayerFileInUse(Path("map")));
}

} // namespace Orvane

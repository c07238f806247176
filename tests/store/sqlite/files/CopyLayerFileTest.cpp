// SPDX-License-Identifier: MIT
#include "store/sqlite/files/CopyLayerFile.h"

#include "store/sqlite/SqliteLayerDatabase.h"
#include "support/FileSizeLimit.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class CopyLayerFileTest : public testing::Test
{
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    std::unique_ptr<SqliteLayerDatabase> Original() const
    {
        auto database = SqliteLayerDatabase::Create(Path("map"));
        database->Execute("INSERT INTO Layers (LayerID, Name) VALUES (7, 'Roads')");
        return database;
    }

    QString NameInCopy() const
    {
        const auto copy = SqliteLayerDatabase::Open(Path("copy"));
        return ToText(copy->OpenRecordset("SELECT Name FROM Layers WHERE LayerID = 7")->Field("Name"));
    }

    QByteArray Content(const QString& name) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(CopyLayerFileTest, TheCopyHoldsWhatTheFileHolds)
{
    Original();
    CopyLayerFile(Path("map"), Path("copy"));
    EXPECT_EQ(NameInCopy(), "Roads");
}

TEST_F(CopyLayerFileTest, TheFileIsNotTouched)
{
    Original();
    const QByteArray before = Content("map");
    CopyLayerFile(Path("map"), Path("copy"));
    EXPECT_EQ(Content("map"), before);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList({"copy", "map"}));
}

TEST_F(CopyLayerFileTest, WhatIsCommittedElsewhereIsCopiedToo)
{
    const auto open = Original();
    open->Execute("UPDATE Layers SET Name = 'Streets'");
    CopyLayerFile(Path("map"), Path("copy"));
    EXPECT_EQ(NameInCopy(), "Streets");
}

TEST_F(CopyLayerFileTest, AFileThatExistsIsNotReplaced)
{
    Original();
    CopyLayerFile(Path("map"), Path("copy"));
    EXPECT_THROW(CopyLayerFile(Path("map"), Path("copy")), RunTimeError);
    EXPECT_EQ(NameInCopy(), "Roads");
}

TEST_F(CopyLayerFileTest, WithoutRoomNoPartOfTheCopyIsLeft)
{
    Original();
    {
        const Testing::FileSizeLimit limit(40000); // enough to read the original
        EXPECT_THROW(CopyLayerFile(Path("map"), Path("copy")), RunTimeError);
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList("map"));
}

TEST_F(CopyLayerFileTest, WhatIsNoLayerDatabaseIsRefused)
{
    EXPECT_THROW(CopyLayerFile(Path("none"), Path("copy")), RunTimeError);
    QFile text(Path("text"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no layer database");
    text.close();
    EXPECT_THROW(CopyLayerFile(Path("text"), Path("copy")), RunTimeError);
    EXPECT_FALSE(QFile::exists(Path("copy")));
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "store/sqlite/files/NewLayerFile.h"

#include "store/sqlite/StoreTest.h"

#include <QFile>

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);

class NewLayerFileTest : public StoreTest
{
protected:
    void Fill()
    {
        FileWith("content");
        for (const char* companion : {"-journal", "-wal", "-shm"})
            FileWith("more", QStringLiteral("file.ovl") + QLatin1String(companion));
    }

    const QString m_path = PathOf(QStringLiteral("file.ovl"));
};

} // namespace

TEST_F(NewLayerFileTest, TheFileIsThereWhenItIsFilled)
{
    MakeLayerFile(m_path, [&] {
        EXPECT_TRUE(QFile::exists(m_path));
        FileWith("content");
    });
    EXPECT_EQ(BytesOf(m_path), "content");
}

TEST_F(NewLayerFileTest, NothingRemainsWhenFillingFails)
{
    const auto act = [&] {
        MakeLayerFile(m_path, [&] {
            Fill();
            throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("full"));
        });
    };
    EXPECT_EQ(DescriptionOf(act), QStringLiteral("full"));
    EXPECT_TRUE(FilesThere().isEmpty());
}

TEST_F(NewLayerFileTest, AFileThatExistsIsKept)
{
    FileWith("content");
    bool isFilled = false;
    EXPECT_EQ(ErrorOf([&] { MakeLayerFile(m_path, [&] { isFilled = true; }); }), Failure);
    EXPECT_FALSE(isFilled);
    EXPECT_EQ(BytesOf(m_path), "content");
}

} // namespace Orvane::Testing

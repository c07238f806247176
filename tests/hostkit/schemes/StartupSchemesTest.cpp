// SPDX-License-Identifier: MIT
#include "hostkit/schemes/StartupSchemes.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "store/opening/LayerStores.h"
#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

const QString Standard = QStringLiteral("Standard");
const QString Night = QStringLiteral("Night");

class Startup : public HostKitTest
{
protected:
    QString File() const { return m_folder.filePath(QStringLiteral("startup.ovl")); }
    std::unique_ptr<ILayerStore> OpenStartup() const { return LayerStores::Open(File()); }

    static void Hue(ILayerStore& database, qint32 layerID, qint32 colour)
    {
        database.Execute(
            QStringLiteral("UPDATE Layers SET Color = ?2 WHERE LayerID = ?1"), {layerID, colour});
    }

    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

    int ErrorOfSavingWithRoom(qint64 room)
    {
        const FileSizeLimit limit(room);
        return ErrorOf([&] { StartupSchemes::Save(Database(), File()); });
    }

    // Roads are red by day and blue at night.
    void MakeTwoSchemes()
    {
        AddLayer(1, QStringLiteral("Roads"), 7);
        Hue(Database(), 1, 0x0000FF);
        LayerSchemes schemes(Database());
        schemes.Names();
        Hue(Database(), 1, 0xFF0000);
        schemes.Create(Night);
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(Startup, SavingMakesTheFileWithLayersAndSchemes)
{
    MakeTwoSchemes();
    StartupSchemes::Save(Database(), File());
    const auto startup = OpenStartup();
    LayerSchemes schemes(*startup);
    EXPECT_THAT(schemes.Names(), ElementsAre(Night, Standard));
    EXPECT_EQ(schemes.Current(), Night);
    EXPECT_THAT(Get(*startup, 1, "Name"), IsValue(QStringLiteral("Roads")));
    schemes.Load(Standard);
    EXPECT_THAT(Get(*startup, 1, "Color"), IsNumber(0x0000FF));
}

TEST_F(Startup, WithoutRoomNoFileIsMade)
{
    MakeTwoSchemes();
    qint64 room = 0;
    for (; room < 4000000 && ErrorOfSavingWithRoom(room) != 0; room += 8000)
        EXPECT_EQ(Files(), QStringList()) << room;
    EXPECT_GT(room, 16000);
    EXPECT_EQ(Files(), QStringList{QStringLiteral("startup.ovl")});
    EXPECT_THAT(LayerSchemes(*OpenStartup()).Names(), ElementsAre(Night, Standard));
}

TEST_F(Startup, SavingAgainReplacesSchemesOfTheSameNameAndKeepsOthers)
{
    MakeTwoSchemes();
    StartupSchemes::Save(Database(), File());
    LayerSchemes schemes(Database());
    schemes.Delete(Standard);
    Hue(Database(), 1, 0x00FF00);
    schemes.Save(Night);
    StartupSchemes::Save(Database(), File());
    const auto startup = OpenStartup();
    LayerSchemes saved(*startup);
    EXPECT_THAT(saved.Names(), ElementsAre(Night, Standard));
    saved.Load(Night);
    EXPECT_THAT(Get(*startup, 1, "Color"), IsNumber(0x00FF00));
}

TEST_F(Startup, SavingAddsNoLayerTwice)
{
    MakeTwoSchemes();
    StartupSchemes::Save(Database(), File());
    StartupSchemes::Save(Database(), File());
    const auto startup = OpenStartup();
    const auto count = startup->OpenQuery(QStringLiteral("SELECT COUNT(*) AS Layers FROM Layers"));
    EXPECT_THAT(count->Field("Layers"), IsNumber(1));
}

TEST_F(Startup, ANewMapTakesTheValuesOfTheLayersThatItShares)
{
    MakeTwoSchemes();
    StartupSchemes::Save(Database(), File());
    const auto map = Maker().CreateNameless();
    AddLayer(*map, 40, QStringLiteral("Streets"), 7); // the same by its code
    AddLayer(*map, 41, QStringLiteral("Rivers"), 8);
    Hue(*map, 41, 0x123456);
    StartupSchemes::Load(*map, File());
    LayerSchemes schemes(*map);
    EXPECT_THAT(schemes.Names(), ElementsAre(Night, Standard));
    schemes.Load(Standard);
    EXPECT_THAT(Get(*map, 40, "Color"), IsNumber(0x0000FF));
    schemes.Load(Night);
    EXPECT_THAT(Get(*map, 40, "Color"), IsNumber(0xFF0000));
    EXPECT_THAT(Get(*map, 41, "Color"), IsNumber(0x123456));
}

TEST_F(Startup, LoadingLeavesTheLayersAsTheyAre)
{
    MakeTwoSchemes();
    StartupSchemes::Save(Database(), File());
    Hue(Database(), 1, 0x00FFFF);
    StartupSchemes::Load(Database(), File());
    EXPECT_THAT(Get(1, "Color"), IsNumber(0x00FFFF));
}

TEST_F(Startup, WithoutAFileLoadingDoesNothing)
{
    StartupSchemes::Load(Database(), File());
    EXPECT_THAT(LayerSchemes(Database()).Names(), ElementsAre(Standard));
    EXPECT_FALSE(QFile::exists(File()));
}

TEST_F(Startup, AFileThatIsNoLayerDatabaseIsRefusedAndNotTouched)
{
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("a shopping list");
    file.close();
    EXPECT_EQ(
        ErrorOf([&] { StartupSchemes::Save(Database(), File()); }), int(ErrorNumber::NotALayerDatabase));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("a shopping list"));
}

TEST_F(Startup, LayersWithTwinsAreCopiedOnceIntoAMapThatHasOne)
{
    AddLayer(1, QStringLiteral("Roads"));
    AddLayer(2, QStringLiteral("Roads"));
    Hue(Database(), 1, 11);
    Hue(Database(), 2, 22);
    StartupSchemes::Save(Database(), File());
    const auto map = Maker().CreateNameless();
    AddLayer(*map, 5, QStringLiteral("Roads"), Value::Null());
    StartupSchemes::Load(*map, File());
    LayerSchemes(*map).Load(Standard);
    EXPECT_THAT(Get(*map, 5, "Color"), IsNumber(11));
}

} // namespace
} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeParts.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/common/HostTables.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeComparison.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "hostkit/schemes/StartupSchemes.h"

#include <QBuffer>
#include <QTemporaryDir>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString Standard = QStringLiteral("Standard");
const QString Locks = QStringLiteral("Locks");
const QString Look = QStringLiteral("Look");
const QString Everything = QStringLiteral("Everything");

/// Two layers, and the scheme "Locks" that holds only their flags: the first is locked in it.
class PartialSchemes : public HostKitTest
{
protected:
    PartialSchemes()
    {
        AddLayer(1, QStringLiteral("Roads"), 1);
        AddLayer(2, QStringLiteral("Rivers"), 2);
        Set(1, "locked", true);
        m_schemes.Add(Locks, SchemePart::Flags);
        Change();
    }

    // Other values of each class for the first layer.
    void Change()
    {
        Set(1, "locked", false);
        Set(1, "Color", 7);
        Set(1, "MinVisScale", 500.0);
    }

    qint32 StoredVersion() { return HostTables::VersionOf(Database(), QStringLiteral("LayerSchemes")); }

    LayerSchemes m_schemes{Database()};
};

TEST_F(PartialSchemes, AreAddedBesideTheCurrentOne)
{
    EXPECT_EQ(m_schemes.Current(), Standard);
    EXPECT_THAT(m_schemes.Names(), ElementsAre(Locks, Standard));
    EXPECT_EQ(m_schemes.All().front().holds, SchemeParts(SchemePart::Flags));
    EXPECT_EQ(m_schemes.All().back().holds, WholeScheme);
}

TEST_F(PartialSchemes, LoadOnlyWhatTheyHold)
{
    EXPECT_EQ(m_schemes.Load(Locks), QSet<qint32>{1});
    EXPECT_THAT(Get(1, "locked"), IsNumber(1));
    EXPECT_THAT(Get(1, "Color"), IsNumber(7));
    EXPECT_THAT(Get(1, "MinVisScale"), IsNumber(500));
    EXPECT_EQ(m_schemes.Current(), Locks);
}

TEST_F(PartialSchemes, DifferOnlyInWhatTheyHold)
{
    EXPECT_EQ(m_schemes.CountThatDiffer(Locks), 1);
    Set(1, "locked", true);
    EXPECT_EQ(m_schemes.CountThatDiffer(Locks), 0);
    m_schemes.Load(Locks);
    Set(2, "Color", 9);
    EXPECT_THAT(m_schemes.LayersThatDiffer(), IsEmpty());
    Set(2, "Visible", false);
    EXPECT_EQ(m_schemes.LayersThatDiffer(), QSet<qint32>{2});
    EXPECT_EQ(m_schemes.LayersThatDiffer({1, 2}), QSet<qint32>{2});
}

TEST_F(PartialSchemes, SaveOnlyWhatTheyHold)
{
    m_schemes.Save(Locks);
    EXPECT_EQ(
        Rows(QStringLiteral("SELECT LayerID FROM LayerSchemeValues JOIN LayerSchemes USING (SchemeID)"
                            " WHERE Name = 'Locks' AND Color IS NULL AND locked = FALSE")),
        2);
    Set(1, "locked", true);
    m_schemes.Load(Locks);
    EXPECT_THAT(Get(1, "locked"), IsNumber(0));
    EXPECT_THAT(Get(1, "Color"), IsNumber(7));
}

TEST_F(PartialSchemes, GetThePresentValuesOfWhatTheyHoldFromThenOn)
{
    m_schemes.SetHolds(Locks, SchemePart::Flags | SchemePart::Scales);
    Set(1, "MinVisScale", 900.0);
    Set(1, "Color", 8);
    m_schemes.Load(Locks);
    EXPECT_THAT(Get(1, "locked"), IsNumber(1));
    EXPECT_THAT(Get(1, "MinVisScale"), IsNumber(500));
    EXPECT_THAT(Get(1, "Color"), IsNumber(8));
}

TEST_F(PartialSchemes, LoseTheValuesOfWhatTheyHoldNoMore)
{
    m_schemes.SetHolds(Locks, SchemePart::Appearance);
    Set(1, "Color", 8);
    m_schemes.Load(Locks);
    EXPECT_THAT(Get(1, "locked"), IsNumber(0));
    EXPECT_THAT(Get(1, "Color"), IsNumber(7));
    m_schemes.SetHolds(Locks, WholeScheme);
    Set(1, "locked", true);
    m_schemes.Load(Locks);
    EXPECT_THAT(Get(1, "locked"), IsNumber(0));
}

TEST_F(PartialSchemes, AreComparedInWhatBothSidesHold)
{
    const auto withMap = SchemeComparison::Compare(Database(), std::nullopt, Locks);
    ASSERT_EQ(withMap.size(), 1U);
    EXPECT_STREQ(SchemeColumns::All.at(withMap[0].column).name, "locked");
    m_schemes.Add(Look, SchemePart::Appearance | SchemePart::Scales);
    EXPECT_THAT(SchemeComparison::Compare(Database(), Locks, Look), IsEmpty());
    EXPECT_FALSE(SchemeComparison::CommonParts(Database(), Locks, Look));
    EXPECT_EQ(SchemeComparison::Compare(Database(), Standard, Look).size(), 2U);
}

TEST_F(PartialSchemes, ADuplicateHoldsTheSame)
{
    m_schemes.Duplicate(Locks, Look);
    EXPECT_EQ(m_schemes.All()[1].name, Look);
    EXPECT_EQ(m_schemes.All()[1].holds, SchemeParts(SchemePart::Flags));
    EXPECT_EQ(m_schemes.All()[1].saved, m_schemes.All()[0].saved);
}

TEST_F(PartialSchemes, AreRefusedByProgramsThatKnowOnlyWholeOnes)
{
    EXPECT_EQ(StoredVersion(), SchemeTables::PartialVersion);
    EXPECT_GT(StoredVersion(), SchemeTables::Version);
    m_schemes.SetHolds(Locks, WholeScheme);
    EXPECT_EQ(StoredVersion(), SchemeTables::Version);
    m_schemes.SetHolds(Locks, SchemePart::Scales);
    m_schemes.Delete(Locks);
    EXPECT_EQ(StoredVersion(), SchemeTables::Version);
}

TEST_F(PartialSchemes, WithANumberThatNamesNoClassAreWholeAndNeedNoOtherVersion)
{
    for (const int number : {0, 8, 7, 15}) {
        Database().Execute(QStringLiteral("UPDATE LayerSchemes SET Holds = ?1"), {number});
        SchemeTables(Database()).RefreshVersion();
        EXPECT_EQ(m_schemes.All().front().holds, WholeScheme) << number;
        EXPECT_EQ(StoredVersion(), SchemeTables::Version) << number;
    }
    Database().Execute(QStringLiteral("UPDATE LayerSchemes SET Holds = 9"));
    SchemeTables(Database()).RefreshVersion();
    EXPECT_EQ(m_schemes.All().front().holds, SchemeParts(SchemePart::Flags));
    EXPECT_EQ(StoredVersion(), SchemeTables::PartialVersion);
}

TEST_F(PartialSchemes, OfANewerProgramAreRefused)
{
    for (const qint32 version : {SchemeTables::Version + 1, SchemeTables::PartialVersion + 1}) {
        HostTables::SetVersion(Database(), QStringLiteral("LayerSchemes"), version);
        EXPECT_EQ(ErrorOf([&] { m_schemes.Names(); }), int(HostError::TablesTooNew)) << version;
    }
}

TEST_F(PartialSchemes, ArriveInAnotherMapAsAFile)
{
    const SchemeDocument locks = SchemeDocument::FromJson(SchemeExchange::Export(Database(), Locks).ToJson());
    EXPECT_EQ(locks.holds, SchemeParts(SchemePart::Flags));
    const auto map = Maker().CreateNameless();
    AddLayer(*map, 40, QStringLiteral("Roads"), 1);
    map->Execute(QStringLiteral("UPDATE Layers SET Color = 3"));
    SchemeExchange::Import(*map, locks);
    LayerSchemes schemes(*map);
    EXPECT_EQ(schemes.CountThatDiffer(Locks), 1);
    schemes.Load(Locks);
    EXPECT_THAT(Get(*map, 40, "locked"), IsNumber(1));
    EXPECT_THAT(Get(*map, 40, "Color"), IsNumber(3));
    EXPECT_EQ(schemes.All().front().saved, locks.saved);
}

TEST_F(PartialSchemes, ATextOfThemNamesNothingElse)
{
    QBuffer text;
    text.open(QIODevice::ReadWrite);
    SchemeExchange::ExportTo(text, Database(), Locks);
    const QByteArray content = text.data();
    EXPECT_TRUE(content.contains("\"version\": 2")) << content.constData();
    EXPECT_TRUE(content.contains("\"holds\": [\"flags\"]"));
    EXPECT_TRUE(content.contains("\"locked\""));
    EXPECT_FALSE(content.contains("\"Color\""));
    text.seek(0);
    const auto read = SchemeDocument::FromLines(text);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->ToJson(), content);
}

TEST_F(PartialSchemes, ATextThatDoesNotSayWhatItHoldsIsDamaged)
{
    const QByteArray text = SchemeExchange::Export(Database(), Locks).ToJson();
    for (const char* holds : {"[]", "[\"flags\", \"sounds\"]", "7", "null"}) {
        QByteArray other = text;
        other.replace("[\"flags\"]", holds);
        EXPECT_EQ(ErrorOf([&] { SchemeDocument::FromJson(other); }), int(HostError::SchemeTextDamaged))
            << holds;
    }
}

TEST_F(PartialSchemes, AWholeSchemesTextIsStillOfTheFirstVersion)
{
    EXPECT_TRUE(SchemeExchange::Export(Database(), Standard).ToJson().contains("\"version\": 1"));
}

TEST_F(PartialSchemes, GoIntoNewMapsWithOrderAndDate)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("startup.ovl"));
    m_schemes.SetOrder({Standard, Locks});
    m_schemes.SetAtOpening(Locks);
    StartupSchemes::Save(Database(), file);
    const auto map = Maker().CreateNameless();
    AddLayer(*map, 40, QStringLiteral("Roads"), 1);
    StartupSchemes::Load(*map, file);
    LayerSchemes schemes(*map);
    EXPECT_THAT(schemes.Names(), ElementsAre(Standard, Locks));
    EXPECT_EQ(schemes.All()[1].holds, SchemeParts(SchemePart::Flags));
    EXPECT_EQ(schemes.All()[1].saved, m_schemes.All()[1].saved);
    EXPECT_EQ(schemes.AtOpening(), QString());
    schemes.Load(Locks);
    EXPECT_THAT(Get(*map, 40, "locked"), IsNumber(1));
}

TEST_F(PartialSchemes, TheDateIsThatOfTheLastSave)
{
    const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
    Database().Execute(QStringLiteral("UPDATE LayerSchemes SET SavedAt = '2001-02-03T04:05:06Z'"));
    EXPECT_EQ(m_schemes.All()[0].saved, QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC));
    m_schemes.Save(Standard);
    EXPECT_GE(m_schemes.All()[1].saved, before);
    EXPECT_EQ(m_schemes.All()[0].saved.date().year(), 2001);
}

TEST_F(PartialSchemes, ADateThatIsNoneIsNotKnown)
{
    Database().Execute(QStringLiteral("UPDATE LayerSchemes SET SavedAt = 'yesterday'"));
    EXPECT_FALSE(m_schemes.All()[0].saved.isValid());
}

TEST_F(PartialSchemes, StandInTheUsersOrderAndNewOnesLast)
{
    m_schemes.SetOrder({Standard, Locks});
    EXPECT_THAT(m_schemes.Names(), ElementsAre(Standard, Locks));
    m_schemes.Create(Look);
    m_schemes.Create(Everything);
    EXPECT_THAT(m_schemes.Names(), ElementsAre(Standard, Locks, Everything, Look));
    m_schemes.SetOrder({});
    EXPECT_THAT(m_schemes.Names(), ElementsAre(Everything, Locks, Look, Standard));
}

TEST_F(PartialSchemes, OneIsForTheOpeningAndKeepsThatWithAnotherName)
{
    EXPECT_EQ(m_schemes.AtOpening(), QString());
    m_schemes.SetAtOpening(Locks);
    m_schemes.Rename(Locks, Look);
    EXPECT_EQ(m_schemes.AtOpening(), Look);
    m_schemes.SetAtOpening(Standard);
    EXPECT_EQ(m_schemes.AtOpening(), Standard);
    m_schemes.Delete(Standard);
    EXPECT_EQ(m_schemes.AtOpening(), QString());
}

TEST_F(PartialSchemes, TablesOfAnEarlierVersionGetTheColumns)
{
    m_schemes.Delete(Locks);
    for (const char* column : {"Holds", "SavedAt", "Place", "AtOpening"})
        Database().Execute(
            QStringLiteral("ALTER TABLE LayerSchemes DROP COLUMN %1").arg(QLatin1String(column)));
    EXPECT_EQ(m_schemes.All()[0].holds, WholeScheme);
    EXPECT_FALSE(m_schemes.All()[0].saved.isValid());
    m_schemes.Add(Locks, SchemePart::Flags);
    m_schemes.SetAtOpening(Locks);
    EXPECT_EQ(m_schemes.AtOpening(), Locks);
}

TEST_F(PartialSchemes, TablesOfAnEarlierVersionInAFileThatCannotBeWrittenAreRead)
{
    const QString path = OtherMap();
    {
        const auto database = Maker().Create(path);
        LayerSchemes(*database).Create(Look);
        for (const char* column : {"Holds", "SavedAt", "Place", "AtOpening"})
            database->Execute(
                QStringLiteral("ALTER TABLE LayerSchemes DROP COLUMN %1").arg(QLatin1String(column)));
    }
    const auto database = Maker().Open(path, OpenMode::ReadOnly);
    LayerSchemes schemes(*database);
    EXPECT_EQ(schemes.All()[0].holds, WholeScheme);
    EXPECT_EQ(schemes.CountThatDiffer(Look), 0);
    EXPECT_EQ(schemes.AtOpening(), QString());
}

} // namespace
} // namespace Orvane::Testing

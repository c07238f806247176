// SPDX-License-Identifier: MIT
#include "hostkit/common/HostTables.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeTables.h"
#include "hostkit/undo/LayerStepsFixture.h"

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

TEST_F(Steps, CreatingASchemeIsOne)
{
    ExpectOneStep(QStringLiteral("Create Scheme \"Night\""), [this] { Host().CreateScheme(Night); });
}

TEST_F(Steps, SavingASchemeIsOne)
{
    Host().GetSchemeNames();
    Set(1, "Color", 5);
    ExpectOneStep(QStringLiteral("Save Scheme \"Standard\""), [this] { Host().SaveScheme(Standard); });
}

TEST_F(Steps, LoadingASchemeIsOne)
{
    Host().CreateScheme(Night);
    Set(1, "Color", 5);
    History().Clear();
    ExpectOneStep(QStringLiteral("Load Scheme \"Standard\""), [this] { Host().LoadScheme(Standard); });
}

TEST_F(Steps, DeletingASchemeIsOne)
{
    Host().CreateScheme(Night);
    History().Clear();
    ExpectOneStep(QStringLiteral("Delete Scheme \"Standard\""), [this] { Host().DeleteScheme(Standard); });
}

TEST_F(Steps, LeavingASchemeAndDeletingItAtOnceIsOne)
{
    Host().CreateScheme(Night);
    Set(1, "Color", 5);
    History().Clear();
    ExpectOneStep(QStringLiteral("Delete Scheme \"Night\""), [this] {
        Host().LoadScheme(Standard);
        Host().DeleteScheme(Night);
    });
}

TEST_F(Steps, LeavingASchemeAndDeletingItLaterAreTwo)
{
    Host().CreateScheme(Night);
    Host().LoadScheme(Standard);
    QCoreApplication::processEvents();
    Host().DeleteScheme(Night);
    History().Undo();
    EXPECT_EQ(Host().GetCurrentScheme(), Standard);
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Load Scheme \"Standard\""));
}

TEST_F(Steps, TheFirstSchemeThatComesByItselfIsNone)
{
    Host().GetSchemeNames();
    EXPECT_FALSE(History().CanUndo());
    Host().CreateScheme(Night);
    History().Undo();
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Standard));
}

TEST_F(Steps, OfSchemesAreToldAsTheChangesWere)
{
    Host().CreateScheme(Night);
    Set(1, "Color", 5);
    Host().SaveScheme(Night);
    Host().LoadScheme(Standard);
    Told();
    History().Undo();
    EXPECT_THAT(Told(), ElementsAre(QStringLiteral("changed 1"), QStringLiteral("scheme Night")));
    History().Undo();
    EXPECT_THAT(Told(), ElementsAre(QStringLiteral("scheme Night")));
    History().Undo();
    EXPECT_THAT(Told(), ElementsAre(QStringLiteral("scheme Standard")));
}

TEST_F(Steps, TellIfSchemesKeepTheirValues)
{
    std::vector<bool> areKept;
    QObject::connect(
        &m_client.Notifications(), &HostNotifications::SchemesChanged, &m_client.Notifications(),
        [&areKept](const QString&, bool areValuesKept) { areKept.push_back(areValuesKept); });
    const auto record = [this](const auto& act) {
        m_client.RecordStep([&] {
            LayerSchemes schemes(Database());
            act(schemes);
            return QStringLiteral("step");
        });
    };
    Host().GetSchemeNames();
    record([](LayerSchemes& schemes) { schemes.Rename(Standard, Night); });
    record([](LayerSchemes& schemes) { schemes.SetAtOpening(Night); });
    record([](LayerSchemes& schemes) { schemes.SetOrder({Night}); });
    record([](LayerSchemes& schemes) { schemes.SetHolds(Night, SchemePart::Flags); });
    while (History().CanUndo())
        History().Undo();
    EXPECT_THAT(areKept, ElementsAre(false, true, true, true));
}

TEST_F(Steps, ADeletedLayersSchemeValuesTellNothingOfSchemes)
{
    Host().GetSchemeNames();
    Host().DeleteLayer(1);
    Told();
    History().Undo();
    EXPECT_THAT(Told(), ElementsAre(QStringLiteral("created 1")));
}

TEST_F(Steps, LayersOfASchemeAreToldEvenIfWhatFollowsFails)
{
    Host().CreateScheme(Night);
    Set(1, "Color", 5);
    HostNotifications& events = m_client.Notifications();
    const auto listener = QObject::connect(&events, &HostNotifications::SchemesChanged, &events, [] {
        throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("unreadable"));
    });
    Told();
    EXPECT_EQ(ErrorOf([&] { Host().LoadScheme(Standard); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_TRUE(Told().contains(QStringLiteral("changed 1")));
    EXPECT_EQ(ErrorOf([&] { History().Undo(); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_TRUE(Told().contains(QStringLiteral("changed 1")));
    QObject::disconnect(listener);
}

/// A map that cannot be changed.
class SchemeOfAReadOnlyMap : public HostKitTest
{
};

TEST_F(SchemeOfAReadOnlyMap, ForTheOpeningIsNotLoaded)
{
    const QString path = OtherMap();
    {
        const auto map = Maker().Create(path);
        map->Execute(QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (1, 'Roads')"));
        LayerSchemes schemes(*map);
        schemes.SetAtOpening(schemes.Current());
        map->Execute(QStringLiteral("UPDATE Layers SET Color = 5"));
    }
    const auto map = Maker().Open(path, OpenMode::ReadOnly);
    StandardShellServices services;
    SilentClient client(*map, services);
    EXPECT_EQ(LayerSchemes(*map).AtOpening(), Standard);
    EXPECT_EQ(client.ApplySchemeAtOpening(), std::nullopt);
    EXPECT_FALSE(client.History().CanUndo());
}

/// A second window on the same map changes schemes too, which is no step of the first.
class StepsWithPartialSchemes : public Steps
{
protected:
    void AddNight()
    {
        Host().GetSchemeNames(); // makes the first scheme
        m_client.RecordStep([this] {
            LayerSchemes(Database()).Add(Night, SchemePart::Flags);
            return QStringLiteral("Create Night");
        });
    }

    qint32 StoredVersion() { return HostTables::VersionOf(Database(), QStringLiteral("LayerSchemes")); }

    LayerSchemes m_otherWindow{Database()};
    const QString m_dusk = QStringLiteral("Dusk");
};

TEST_F(StepsWithPartialSchemes, LeaveTheVersionThatTheSchemeOfAnotherWindowNeeds)
{
    AddNight();
    m_otherWindow.Add(m_dusk, SchemePart::Scales);
    History().Undo();
    EXPECT_EQ(StoredVersion(), SchemeTables::PartialVersion);
    History().Redo();
    EXPECT_EQ(StoredVersion(), SchemeTables::PartialVersion);
    m_otherWindow.Delete(m_dusk);
    History().Undo();
    EXPECT_EQ(StoredVersion(), SchemeTables::Version);
}

TEST_F(StepsWithPartialSchemes, StoreTheVersionThatTheyNeedThemselves)
{
    AddNight();
    History().Undo();
    EXPECT_EQ(StoredVersion(), SchemeTables::Version);
    History().Redo();
    EXPECT_EQ(StoredVersion(), SchemeTables::PartialVersion);
}

TEST_F(StepsWithPartialSchemes, CanBeRedoneAfterAnotherWindowMadeASchemePartial)
{
    AddNight();
    History().Undo();
    m_otherWindow.SetHolds(Standard, SchemePart::Scales);
    History().Redo();
    EXPECT_THAT(m_otherWindow.Names(), ElementsAre(Night, Standard));
    m_otherWindow.SetHolds(Standard, WholeScheme);
    EXPECT_EQ(StoredVersion(), SchemeTables::PartialVersion);
}

TEST_F(StepsWithPartialSchemes, LeaveTheVersionOfANewerProgram)
{
    AddNight();
    ApplyTo(1, "Color", 5);
    const qint32 newer = SchemeTables::PartialVersion + 1;
    HostTables::SetVersion(Database(), QStringLiteral("LayerSchemes"), newer);
    History().Undo();
    EXPECT_EQ(StoredVersion(), newer);
}

} // namespace

} // namespace Orvane::Testing

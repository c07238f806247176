// SPDX-License-Identifier: MIT
#include "hostkit/LayerSteps.h"

#include "hostkit/HostErrors.h"
#include "hostkit/HostKitTest.h"
#include "hostkit/HostNotifications.h"
#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "hostkit/UndoHistory.h"
#include "store/StoreTransaction.h"

#include <QCoreApplication>
#include <QSignalSpy>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const QString Standard = QStringLiteral("Standard");
const QString Night = QStringLiteral("Night");

class SilentClient : public StandardClient
{
public:
    using StandardClient::StandardClient;

protected:
    bool ConfirmDeletion(const LayerDeletion&) override { return true; }
};

// A map of three layers, the first two in a group, with everything that the client tells.
class Steps : public HostKitTest
{
protected:
    Steps()
    {
        AddLayer(1, QStringLiteral("Roads"), 1);
        AddLayer(2, QStringLiteral("Rivers"), 2);
        AddLayer(3, QStringLiteral("Fields"), 3);
        Database().Execute(QStringLiteral("INSERT INTO LayerGroups (ID, Name) VALUES (5, 'Lines')"));
        Database().Execute(
            QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID) VALUES (5, 1), (5, 2)"));
        Listen();
    }

    void Listen()
    {
        HostNotifications& events = m_client.Notifications();
        const auto tell = [this](const QString& line) { m_told << line; };
        QObject::connect(
            &events, &HostNotifications::LayersChanged, &events, [=](const QSet<qint32>& layers) {
                QList<qint32> sorted(layers.begin(), layers.end());
                std::sort(sorted.begin(), sorted.end());
                for (const qint32 layerID : sorted)
                    tell(QStringLiteral("changed %1").arg(layerID));
            });
        QObject::connect(&events, &HostNotifications::LayerCreated, &events, [=](qint32 layerID) {
            tell(QStringLiteral("created %1").arg(layerID));
        });
        QObject::connect(&events, &HostNotifications::LayerDeleted, &events, [=](qint32 layerID) {
            tell(QStringLiteral("deleted %1").arg(layerID));
        });
        QObject::connect(
            &events, &HostNotifications::LayerRenamed, &events, [=](qint32 layerID, const QString& name) {
                tell(QStringLiteral("layer %1 is %2").arg(layerID).arg(name));
            });
        QObject::connect(
            &events, &HostNotifications::GroupRenamed, &events, [=](qint32 groupID, const QString& name) {
                tell(QStringLiteral("group %1 is %2").arg(groupID).arg(name));
            });
        QObject::connect(&events, &HostNotifications::SchemesChanged, &events, [=](const QString& current) {
            tell(QStringLiteral("scheme ") + current);
        });
    }

    IStyleEditorClient& Host() { return m_client; }
    UndoHistory& History() { return m_client.History(); }
    QStringList Told() { return std::exchange(m_told, {}); }

    // As an editor does it.
    void Edit(qint32 layerID, const char* column, const Value& value)
    {
        const auto layers = Host().LayersTable();
        layers->Index("LayerIDIDX");
        layers->Seek("=", layerID);
        Host().BeginLayerEdit(*layers);
        layers->SetField(column, value);
        Host().LayerChanged(layerID);
        layers->Update();
    }

    void ApplyTo(qint32 layerID, const char* column, const Value& value)
    {
        Edit(layerID, column, value);
        Host().RedrawMap();
    }

    void ApplyToGroup(const QList<qint32>& layerIDs, const char* column, const Value& value)
    {
        StoreTransaction transaction(Database());
        for (const qint32 layerID : layerIDs)
            Edit(layerID, column, value);
        transaction.Commit();
        Host().RedrawMap();
    }

    QStringList RowsOf(const QString& sql)
    {
        QStringList rows;
        const auto row = Database().OpenQuery(sql);
        for (; !row->AtEOF(); row->MoveNext())
            rows << ToText(row->Field("Line"));
        return rows;
    }

    // Every value that steps may change.
    QStringList Everything()
    {
        return RowsOf(
                   QStringLiteral("SELECT LayerID || Name || Code || Visible || Color AS Line FROM Layers"))
            + RowsOf(QStringLiteral("SELECT GroupID || '/' || LayerID AS Line FROM LayerGroupMembers"))
            + RowsOf(QStringLiteral("SELECT ID || Name AS Line FROM LayerGroups"))
            + RowsOf(QStringLiteral("SELECT Name || IsCurrent AS Line FROM LayerSchemes ORDER BY Name"))
            + RowsOf(QStringLiteral("SELECT SchemeID || '/' || LayerID || '/' || Color AS Line"
                                    " FROM LayerSchemeValues ORDER BY SchemeID, LayerID"));
    }

    // Does one thing, which must be one step, and goes there and back twice.
    void ExpectOneStep(const QString& text, const std::function<void()>& act)
    {
        Host().GetSchemeNames(); // makes the first scheme
        const QStringList before = Everything();
        act();
        const QStringList after = Everything();
        ASSERT_NE(before, after);
        EXPECT_EQ(History().UndoText(), QStringLiteral("Undo ") + text);
        for (int round = 0; round < 2; ++round) {
            History().Undo();
            EXPECT_EQ(Everything(), before);
            EXPECT_FALSE(History().CanUndo());
            EXPECT_EQ(History().RedoText(), QStringLiteral("Redo ") + text);
            History().Redo();
            EXPECT_EQ(Everything(), after);
        }
    }

    StandardShellServices m_services;
    SilentClient m_client{Database(), m_services};
    QStringList m_told;
};

TEST_F(Steps, AnApplyToALayerIsOne)
{
    ExpectOneStep(QStringLiteral("Change of \"Roads\""), [this] { ApplyTo(1, "Color", 77); });
}

TEST_F(Steps, StyleAndCodeAppliedTogetherAreOne)
{
    ExpectOneStep(QStringLiteral("Change of \"Roads\""), [this] {
        Edit(1, "Color", 77);
        Edit(1, "Code", 12.0);
        Host().RedrawMap();
    });
}

TEST_F(Steps, ANewCodeIsOne)
{
    ExpectOneStep(QStringLiteral("New Code of \"Roads\""), [this] { ApplyTo(1, "Code", 12.0); });
}

TEST_F(Steps, AnApplyToAGroupIsOne)
{
    ExpectOneStep(QStringLiteral("Change of 2 Layers"), [this] { ApplyToGroup({1, 2}, "Visible", false); });
}

TEST_F(Steps, RenamingALayerIsOne)
{
    ExpectOneStep(QStringLiteral("Renaming of \"Streets\""), [this] {
        Host().RenameLayer(1, QStringLiteral("Streets"));
    });
}

TEST_F(Steps, RenamingAGroupIsOne)
{
    ExpectOneStep(QStringLiteral("Renaming of the Group \"Ways\""), [this] {
        Host().RenameGroup(5, QStringLiteral("Ways"));
    });
}

TEST_F(Steps, CreatingALayerIsOne)
{
    ExpectOneStep(QStringLiteral("Creation of \"New layer\""), [this] { Host().CreateLayer(); });
}

TEST_F(Steps, DeletingALayerIsOneThatBringsItsPlacesBack)
{
    ExpectOneStep(QStringLiteral("Deletion of \"Roads\""), [this] { Host().DeleteLayer(1); });
}

TEST_F(Steps, CreatingASchemeIsOne)
{
    ExpectOneStep(QStringLiteral("Creation of the Scheme \"Night\""), [this] { Host().CreateScheme(Night); });
}

TEST_F(Steps, SavingASchemeIsOne)
{
    Host().GetSchemeNames();
    Set(1, "Color", 5);
    ExpectOneStep(
        QStringLiteral("Saving of the Scheme \"Standard\""), [this] { Host().SaveScheme(Standard); });
}

TEST_F(Steps, LoadingASchemeIsOne)
{
    Host().CreateScheme(Night);
    Set(1, "Color", 5);
    History().Clear();
    ExpectOneStep(
        QStringLiteral("Loading of the Scheme \"Standard\""), [this] { Host().LoadScheme(Standard); });
}

TEST_F(Steps, DeletingASchemeIsOne)
{
    Host().CreateScheme(Night);
    History().Clear();
    ExpectOneStep(
        QStringLiteral("Deletion of the Scheme \"Standard\""), [this] { Host().DeleteScheme(Standard); });
}

TEST_F(Steps, LeavingASchemeAndDeletingItAtOnceIsOne)
{
    Host().CreateScheme(Night);
    Set(1, "Color", 5);
    History().Clear();
    ExpectOneStep(QStringLiteral("Deletion of the Scheme \"Night\""), [this] {
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
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Loading of the Scheme \"Standard\""));
}

TEST_F(Steps, WhatAHostDoesToItsOwnTablesIsOne)
{
    Database().Execute(QStringLiteral("CREATE TABLE Notes (LayerID INTEGER PRIMARY KEY, Text TEXT)"));
    m_client.RecordStep([this] {
        Database().Execute(QStringLiteral("INSERT INTO Notes VALUES (1, 'wet')"));
        Host().RenameLayer(1, QStringLiteral("Streets")); // a part of it
        return QStringLiteral("Notes");
    });
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Notes"));
    History().Undo();
    EXPECT_EQ(Rows(QStringLiteral("SELECT * FROM Notes")), 0);
    EXPECT_EQ(Host().LayerDisplayName(1), QStringLiteral("Roads"));
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(Steps, WhatChangesNothingIsNone)
{
    ApplyTo(1, "Visible", true);
    Host().RenameLayer(1, QStringLiteral("Roads"));
    Host().RenameLayer(99, QStringLiteral("x"));
    Host().SaveScheme(Standard);
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(Steps, TheFirstSchemeThatComesByItselfIsNone)
{
    Host().GetSchemeNames();
    EXPECT_FALSE(History().CanUndo());
    Host().CreateScheme(Night);
    History().Undo();
    EXPECT_THAT(Host().GetSchemeNames(), ElementsAre(Standard));
}

TEST_F(Steps, WhatFailsIsNone)
{
    Database().Execute(QStringLiteral("CREATE TRIGGER Refuse BEFORE DELETE ON Layers"
                                      " BEGIN SELECT RAISE(ABORT, 'kept'); END"));
    EXPECT_NE(ErrorOf([&] { Host().DeleteLayer(1); }), 0);
    EXPECT_NE(ErrorOf([&] { Host().LoadScheme(QStringLiteral("nowhere")); }), 0);
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(Steps, AnApplyThatFailedHalfwayCanBeUndone)
{
    Edit(1, "Color", 77);
    QCoreApplication::processEvents(); // no redraw came
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Change of \"Roads\""));
    History().Undo();
    EXPECT_THAT(Get(1, "Color"), IsNumber(0));
}

TEST_F(Steps, ARolledBackGroupIsNone)
{
    Database().BeginTrans();
    Edit(1, "Color", 77);
    Database().Rollback();
    QCoreApplication::processEvents();
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(Steps, AnEditIsUndoneEvenRightAfterIt)
{
    ApplyTo(2, "Color", 5);
    Edit(1, "Code", 12.0); // as SetLayerCode of a form does, without a redraw
    History().Undo();
    EXPECT_THAT(Get(1, "Code"), IsNumber(1));
    EXPECT_THAT(Get(2, "Color"), IsNumber(5));
}

TEST_F(Steps, AreToldAsTheChangesWere)
{
    Host().LayerDisplayName(1);
    ApplyToGroup({1, 2}, "Color", 9);
    Host().RenameLayer(1, QStringLiteral("Streets"));
    Host().RenameGroup(5, QStringLiteral("Ways"));
    const qint32 created = Host().CreateLayer();
    Host().DeleteLayer(3);
    Told();
    for (int step = 0; step < 5; ++step)
        History().Undo();
    EXPECT_THAT(
        Told(),
        ElementsAre(
            QStringLiteral("created 3"), QStringLiteral("deleted %1").arg(created),
            QStringLiteral("group 5 is Lines"), QStringLiteral("layer 1 is Roads"),
            QStringLiteral("changed 1"), QStringLiteral("changed 2")));
    for (int step = 0; step < 5; ++step)
        History().Redo();
    EXPECT_THAT(
        Told(),
        ElementsAre(
            QStringLiteral("changed 1"), QStringLiteral("changed 2"), QStringLiteral("layer 1 is Streets"),
            QStringLiteral("group 5 is Ways"), QStringLiteral("created %1").arg(created),
            QStringLiteral("deleted 3")));
}

TEST_F(Steps, OfSchemesAreToldAsTheChangesWere)
{
    Host().CreateScheme(Night);
    Set(1, "Color", 5);
    Host().SaveScheme(Night);
    Host().LoadScheme(Standard);
    Told();
    History().Undo();
    EXPECT_THAT(Told(), ElementsAre(QStringLiteral("scheme Night"), QStringLiteral("changed 1")));
    History().Undo();
    EXPECT_THAT(Told(), ElementsAre(QStringLiteral("scheme Night")));
    History().Undo();
    EXPECT_THAT(Told(), ElementsAre(QStringLiteral("scheme Standard")));
}

TEST_F(Steps, ADeletedLayersSchemeValuesTellNothingOfSchemes)
{
    Host().GetSchemeNames();
    Host().DeleteLayer(1);
    Told();
    History().Undo();
    EXPECT_THAT(Told(), ElementsAre(QStringLiteral("created 1")));
}

TEST_F(Steps, ShowTheNameThatALayerHasAgain)
{
    Host().RenameLayer(1, QStringLiteral("Streets"));
    EXPECT_EQ(Host().LayerDisplayName(1), QStringLiteral("Streets"));
    History().Undo();
    EXPECT_EQ(Host().LayerDisplayName(1), QStringLiteral("Roads"));
}

TEST_F(Steps, OutdatedByAnotherHandChangeNothingAndSayWhich)
{
    Host().GetSchemeNames();
    ApplyToGroup({1, 2}, "Color", 9);
    Set(2, "Color", 1000);
    Told();
    const QStringList before = Everything();
    const QString description = DescriptionOf([this] { History().Undo(); });
    EXPECT_TRUE(description.contains(QStringLiteral("Change of 2 Layers"))) << qPrintable(description);
    EXPECT_EQ(Everything(), before);
    EXPECT_THAT(Told(), IsEmpty());
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(Steps, OutdatedOnesLeaveTheOthers)
{
    ApplyTo(3, "Color", 3);
    ApplyTo(1, "Color", 9);
    Set(1, "Color", 1000);
    EXPECT_EQ(ErrorOf([this] { History().Undo(); }), int(HostError::StepOutdated));
    History().Undo();
    EXPECT_THAT(Get(3, "Color"), IsNumber(0));
    EXPECT_THAT(Get(1, "Color"), IsNumber(1000));
}

TEST_F(Steps, AChangeAfterAnUndoCutsOffTheRedo)
{
    ApplyTo(1, "Color", 9);
    History().Undo();
    ApplyTo(2, "Color", 9);
    EXPECT_FALSE(History().CanRedo());
}

TEST_F(Steps, TheLastHundredAreKept)
{
    for (int step = 1; step <= 101; ++step)
        ApplyTo(1, "Color", step);
    while (History().CanUndo())
        History().Undo();
    EXPECT_THAT(Get(1, "Color"), IsNumber(1));
}

TEST_F(Steps, KeepEveryNameAsItWas)
{
    const QStringList names{
        QStringLiteral("O'Neill's \"best\" `way`"),
        QString::fromUtf8("\U0001F6E3\U0001F468\u200D\U0001F469\u200D\U0001F467"),
        QString::fromUtf8("طريق \u202Eabc\u202C שלום"),
        QString(10000, u'x'),
        QStringLiteral("two\nlines\r\nand a\ttab"),
        QStringLiteral("%1 %2 &File ^1"),
        QStringLiteral(" "),
    };
    for (const QString& name : names) {
        Host().RenameLayer(1, name);
        EXPECT_EQ(Host().LayerDisplayName(1), name);
        EXPECT_FALSE(History().UndoText().contains(u'\n'));
    }
    for (auto name = names.crbegin(); name != names.crend(); ++name) {
        EXPECT_THAT(Get(1, "Name"), IsValue(*name));
        EXPECT_LT(History().UndoText().size(), 100);
        History().Undo();
    }
    EXPECT_THAT(Get(1, "Name"), IsValue(QStringLiteral("Roads")));
}

TEST_F(Steps, BringBackADeletedLayerWithAnyName)
{
    const QString name = QString::fromUtf8("\"\U0001F6E3\"\nطريق") + QString(10000, u'y');
    Host().RenameLayer(1, name);
    Host().DeleteLayer(1);
    History().Undo();
    EXPECT_THAT(Get(1, "Name"), IsValue(name));
    EXPECT_EQ(Host().LayerDisplayName(1), name);
}

} // namespace
} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "hostkit/undo/LayerStepsFixture.h"
#include "hosts/ForwardingStore.h"
#include "store/StoreTable.h"

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Steps, AnApplyToALayerIsOne)
{
    ExpectOneStep(QStringLiteral("Change \"Roads\""), [this] { ApplyTo(1, "Color", 77); });
}

TEST_F(Steps, StyleAndCodeAppliedTogetherAreOne)
{
    ExpectOneStep(QStringLiteral("Change \"Roads\""), [this] {
        Edit(1, "Color", 77);
        Edit(1, "Code", 12.0);
        Host().RedrawMap();
    });
}

TEST_F(Steps, ANewCodeIsOne)
{
    ExpectOneStep(QStringLiteral("Change Code of \"Roads\""), [this] { ApplyTo(1, "Code", 12.0); });
}

TEST_F(Steps, AnApplyToAGroupIsOne)
{
    ExpectOneStep(QStringLiteral("Change 2 Layers"), [this] { ApplyToGroup({1, 2}, "Visible", false); });
}

TEST_F(Steps, ANoteOfAnEditorIsPartOfTheEditsWithIt)
{
    const QString key = QStringLiteral("Editor.Key");
    Transaction transaction(Database());
    Edit(1, "OverrideMode", 2);
    Notes().SetNote(key, QStringLiteral("text"));
    transaction.Commit();
    Host().RedrawMap();
    ASSERT_EQ(History().UndoText(), QStringLiteral("Undo Change \"Roads\""));
    History().Undo();
    EXPECT_EQ(Notes().Note(key), QString());
    EXPECT_EQ(ToInt32(Get(1, "OverrideMode")), 0);
    EXPECT_FALSE(History().CanUndo());
    History().Redo();
    EXPECT_EQ(Notes().Note(key), QStringLiteral("text"));
    EXPECT_EQ(ToInt32(Get(1, "OverrideMode")), 2);
}

TEST_F(Steps, RenamingALayerIsOne)
{
    ExpectOneStep(
        QStringLiteral("Rename \"Streets\""), [this] { Host().RenameLayer(1, QStringLiteral("Streets")); });
}

TEST_F(Steps, RenamingAGroupIsOne)
{
    ExpectOneStep(
        QStringLiteral("Rename Group \"Ways\""), [this] { Host().RenameGroup(5, QStringLiteral("Ways")); });
}

TEST_F(Steps, CreatingALayerIsOne)
{
    ExpectOneStep(QStringLiteral("Create \"New layer\""), [this] { Host().CreateLayer(); });
}

TEST_F(Steps, DeletingALayerIsOneThatBringsItsPlacesBack)
{
    ExpectOneStep(QStringLiteral("Delete \"Roads\""), [this] { Host().DeleteLayer(1); });
}

TEST_F(Steps, WhatAHostDoesToItsOwnTablesIsOne)
{
    Database().PrepareTable(
        {QStringLiteral("Notes"),
         {{QStringLiteral("LayerID"), StoreType::Whole, StoreColumn::Nulls::Refused},
          {QStringLiteral("Text")}},
         {QStringLiteral("LayerID")}});
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

TEST_F(Steps, WhatFailsIsNone)
{
    StoreMaker::Refuse(Database(), RowAct::Delete, QStringLiteral("Layers"), 1);
    EXPECT_NE(ErrorOf([&] { Host().DeleteLayer(1); }), 0);
    EXPECT_NE(ErrorOf([&] { Host().LoadScheme(QStringLiteral("nowhere")); }), 0);
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(Steps, AnApplyThatFailedHalfwayCanBeUndone)
{
    Edit(1, "Color", 77);
    QCoreApplication::processEvents(); // no redraw came
    EXPECT_EQ(History().UndoText(), QStringLiteral("Undo Change \"Roads\""));
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
    EXPECT_TRUE(description.contains(QStringLiteral("Change 2 Layers"))) << qPrintable(description);
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

/// A store that forgets how it was changed.
class ForgetfulStore final : public ForwardingStore
{
public:
    using ForwardingStore::ForwardingStore;

    std::unique_ptr<ChangeRecorder> RecordChanges() override
    {
        class Recorder final : public ChangeRecorder
        {
            Changeset Changes() const override
            {
                throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("no memory"));
            }
        };
        return isForgetful ? std::make_unique<Recorder>() : ForwardingStore::RecordChanges();
    }

    bool isForgetful = false;
};

TEST_F(Steps, AStepThatCannotBeRecordedKeepsThoseBeforeItAndIsTold)
{
    ForgetfulStore store(Database());
    SilentClient client(store, m_services);
    IStyleEditorClient& host = client;
    QStringList told;
    QObject::connect(
        &client.Notifications(), &HostNotifications::StepNotRecorded, &client.Notifications(),
        [&](const QString& reason) { told << reason; });
    host.RenameLayer(1, QStringLiteral("Streets"));
    host.RenameLayer(2, QStringLiteral("Streams"));
    client.History().Undo();
    store.isForgetful = true;
    host.RenameLayer(3, QStringLiteral("Meadows"));
    EXPECT_EQ(told, QStringList{QStringLiteral("no memory")});
    EXPECT_FALSE(client.History().CanRedo());
    client.History().Undo();
    EXPECT_THAT(Get(1, "Name"), IsValue(QStringLiteral("Roads")));
    EXPECT_THAT(Get(3, "Name"), IsValue(QStringLiteral("Meadows")));
}

} // namespace

} // namespace Orvane::Testing

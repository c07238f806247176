// SPDX-License-Identifier: MIT
#include "hostkit/Impatience.h"
#include "hostkit/undo/LayerStepsFixture.h"

#include <OrvaneShellLib/Cancellation.h>

#include <functional>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Steps that note what is done to them, and may fail.
struct StepNotes {
    QStringList lines;
    QString failsAt;
    QString alsoFailsAt;
    int error = int(ErrorNumber::DatabaseLocked);
};

class NotedStep : public IUndoStep
{
public:
    NotedStep(StepNotes& notes, const QString& name) : m_notes(notes), m_name(name) { }

    QString Text() const override { return m_name; }
    void Undo() override { Note(QStringLiteral("undo ") + m_name); }
    void Redo() override { Note(QStringLiteral("redo ") + m_name); }
    bool Absorb(const IUndoStep& next) override { return next.Text() == QLatin1String("crumb"); }

private:
    void Note(const QString& line)
    {
        if (line == m_notes.failsAt || line == m_notes.alsoFailsAt)
            throw RunTimeError(m_notes.error, QStringLiteral("no"));
        m_notes.lines << line;
    }

    StepNotes& m_notes;
    QString m_name;
};

class Marked : public testing::Test
{
protected:
    void Do(const char* name) { m_history.Add(std::make_unique<NotedStep>(m_notes, QLatin1String(name))); }
    QStringList Lines() { return std::exchange(m_notes.lines, {}); }

    StepNotes m_notes;
    UndoHistory m_history;
};

TEST_F(Marked, AHistoryWithoutAMarkHasNoStepsSinceIt)
{
    Do("a");
    EXPECT_EQ(m_history.StepsSinceMark(), 0);
    m_history.UndoSinceMark();
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(Marked, TheStepsSinceTheMarkAreUndoneAsOneThatOneRedoBringsBack)
{
    Do("before");
    m_history.SetMark();
    for (const char* name : {"a", "b", "c"})
        Do(name);
    EXPECT_EQ(m_history.StepsSinceMark(), 3);
    m_history.UndoSinceMark();
    EXPECT_THAT(Lines(), ElementsAre("undo c", "undo b", "undo a"));
    EXPECT_EQ(m_history.StepsSinceMark(), 0);
    EXPECT_EQ(m_history.UndoText(), "Undo before");
    EXPECT_EQ(m_history.RedoText(), "Redo 3 Steps");
    m_history.Redo();
    EXPECT_THAT(Lines(), ElementsAre("redo a", "redo b", "redo c"));
    EXPECT_FALSE(m_history.CanRedo());
    EXPECT_EQ(m_history.UndoText(), "Undo 3 Steps");
    EXPECT_EQ(m_history.StepsSinceMark(), 1);
}

TEST_F(Marked, ASingleStepKeepsItsName)
{
    m_history.SetMark();
    Do("a");
    m_history.UndoSinceMark();
    EXPECT_EQ(m_history.RedoText(), "Redo a");
}

TEST_F(Marked, WhatWasUndoneBeforeStaysToBeRedone)
{
    m_history.SetMark();
    for (const char* name : {"a", "b", "c"})
        Do(name);
    m_history.Undo();
    m_history.UndoSinceMark();
    m_history.Redo();
    EXPECT_EQ(m_history.RedoText(), "Redo c");
}

TEST_F(Marked, StepsThatWereDoneBeforeItAreNotCountedNorMerged)
{
    Do("bread");
    m_history.SetMark();
    EXPECT_EQ(m_history.StepsSinceMark(), 0);
    Do("crumb");
    EXPECT_EQ(m_history.StepsSinceMark(), 1);
    Do("crumb");
    EXPECT_EQ(m_history.StepsSinceMark(), 1) << "merged with the one after the mark";
}

TEST_F(Marked, AfterGoingBackBehindItOnlyNewStepsCount)
{
    Do("a");
    Do("b");
    m_history.SetMark();
    m_history.Undo();
    EXPECT_EQ(m_history.StepsSinceMark(), 0);
    Do("c");
    EXPECT_EQ(m_history.StepsSinceMark(), 1);
    m_history.UndoSinceMark();
    EXPECT_EQ(m_history.UndoText(), "Undo a");
}

TEST_F(Marked, ItMovesWithTheOldestStepsThatGo)
{
    Do("before");
    m_history.SetMark();
    for (int number = 0; number < UndoHistory::MaxSteps + 5; ++number)
        Do("a");
    EXPECT_EQ(m_history.StepsSinceMark(), UndoHistory::MaxSteps);
    EXPECT_TRUE(m_history.HasLostStepsSinceMark());
    m_history.Clear();
    EXPECT_FALSE(m_history.HasLostStepsSinceMark());
    EXPECT_EQ(m_history.StepsSinceMark(), 0);
    Do("b");
    EXPECT_EQ(m_history.StepsSinceMark(), 1);
}

TEST_F(Marked, NothingOfItIsLostWhileOnlyStepsBeforeItGo)
{
    for (int number = 0; number < UndoHistory::MaxSteps; ++number)
        Do("before");
    m_history.SetMark();
    Do("a");
    EXPECT_FALSE(m_history.HasLostStepsSinceMark());
}

TEST_F(Marked, WhenOneStepFailsAllStayDone)
{
    m_history.SetMark();
    for (const char* name : {"a", "b", "c"})
        Do(name);
    m_notes.failsAt = "undo a";
    EXPECT_EQ(ErrorOf([&] { m_history.UndoSinceMark(); }), m_notes.error);
    EXPECT_THAT(Lines(), ElementsAre("undo c", "undo b", "redo b", "redo c"));
    EXPECT_EQ(m_history.StepsSinceMark(), 3);
    EXPECT_EQ(m_history.UndoText(), "Undo c");
    EXPECT_FALSE(m_history.CanRedo());
}

TEST_F(Marked, AnOutdatedStepFailsLikeAnyOtherAndNoStepIsForgotten)
{
    m_history.SetMark();
    Do("a");
    Do("b");
    m_notes.failsAt = "undo a";
    m_notes.error = int(HostError::StepOutdated);
    EXPECT_EQ(ErrorOf([&] { m_history.UndoSinceMark(); }), m_notes.error);
    EXPECT_EQ(m_history.StepsSinceMark(), 2);
}

TEST_F(Marked, WhenEvenGoingBackFailsTheNextTryGoesOnFromThere)
{
    m_history.SetMark();
    for (const char* name : {"a", "b", "c"})
        Do(name);
    m_notes.failsAt = "undo a";
    m_notes.alsoFailsAt = "redo c";
    EXPECT_EQ(ErrorOf([&] { m_history.UndoSinceMark(); }), m_notes.error);
    EXPECT_THAT(Lines(), ElementsAre("undo c", "undo b", "redo b"));
    m_notes.failsAt.clear();
    m_notes.alsoFailsAt.clear();
    EXPECT_EQ(m_history.UndoText(), "Undo 3 Steps");
    m_history.Undo();
    EXPECT_THAT(Lines(), ElementsAre("undo b", "undo a"));
    m_history.Redo();
    EXPECT_THAT(Lines(), ElementsAre("redo a", "redo b", "redo c"));
}

/// A map whose layer control was just opened.
class SinceOpening : public Steps
{
protected:
    SinceOpening()
    {
        Host().GetSchemeNames(); // makes the first scheme
        ApplyTo(3, "Color", 1);
        Host().ShowEditor(&m_form);
    }

    void DoOfEachKind()
    {
        ApplyTo(1, "Color", 77);
        ApplyTo(1, "Color", 78);
        Host().RenameLayer(2, QStringLiteral("Streams"));
        Host().CreateScheme(Night);
        Host().DeleteLayer(1);
        Host().CreateLayer();
        ApplyToGroup({2, 3}, "Visible", false);
        Host().LoadScheme(Standard);
    }

    void CloseEditor()
    {
        Host().EditorClosed(&m_form);
        QCoreApplication::processEvents();
    }

    QWidget m_form;
};

TEST_F(SinceOpening, EverythingGoesBackAndComesAgainAtOnce)
{
    const QStringList before = Everything();
    DoOfEachKind();
    const QStringList after = Everything();
    EXPECT_EQ(History().StepsSinceMark(), 8);
    for (int round = 0; round < 2; ++round) {
        History().UndoSinceMark();
        EXPECT_EQ(Everything(), before);
        EXPECT_EQ(History().UndoText(), "Undo Change \"Fields\"");
        EXPECT_EQ(History().RedoText(), "Redo 8 Steps");
        History().Redo();
        EXPECT_EQ(Everything(), after);
    }
}

TEST_F(SinceOpening, ChangesThatCancelEachOtherLeaveNothingToDo)
{
    ApplyTo(1, "Color", 77);
    ApplyTo(1, "Color", 0);
    const QStringList before = Everything();
    History().UndoSinceMark();
    History().Redo();
    EXPECT_EQ(Everything(), before);
}

TEST_F(SinceOpening, TheHostIsToldOnce)
{
    ApplyTo(1, "Color", 77);
    ApplyTo(1, "Color", 78);
    Told();
    History().UndoSinceMark();
    EXPECT_THAT(Told(), ElementsAre("changed 1"));
}

TEST_F(SinceOpening, StepsThatTheHostAddedAreUndoneBetween)
{
    StepNotes notes;
    const QStringList before = Everything();
    ApplyTo(1, "Color", 77);
    History().Add(std::make_unique<NotedStep>(notes, QStringLiteral("move")));
    ApplyTo(1, "Color", 78);
    notes.failsAt = QStringLiteral("undo move");
    const QStringList after = Everything();
    EXPECT_EQ(ErrorOf([&] { History().UndoSinceMark(); }), notes.error);
    EXPECT_EQ(Everything(), after);
    notes.failsAt.clear();
    History().UndoSinceMark();
    EXPECT_EQ(Everything(), before);
    EXPECT_THAT(notes.lines, ElementsAre("undo move"));
}

TEST_F(SinceOpening, ASecondEditorAndAnotherShowDoNotMoveTheBeginning)
{
    QWidget other;
    ApplyTo(1, "Color", 77);
    Host().ShowEditor(&other);
    Host().ShowEditor(&m_form);
    EXPECT_EQ(History().StepsSinceMark(), 1);
    Host().EditorClosed(&other);
    QCoreApplication::processEvents();
    Host().ShowEditor(&m_form);
    EXPECT_EQ(History().StepsSinceMark(), 1);
}

TEST_F(SinceOpening, AClosedEditorsStepsCanStillGoUntilItOpensAgain)
{
    ApplyTo(1, "Color", 77);
    CloseEditor();
    EXPECT_EQ(History().StepsSinceMark(), 1);
    Host().ShowEditor(&m_form);
    EXPECT_EQ(History().StepsSinceMark(), 0);
}

TEST_F(SinceOpening, AnEditorThatAnOperationClosesAndOpensAgainStayedOpen)
{
    ApplyTo(1, "Color", 77);
    Host().EditorClosed(&m_form);
    Host().ShowEditor(&m_form);
    QCoreApplication::processEvents();
    EXPECT_EQ(History().StepsSinceMark(), 1);
}

TEST_F(SinceOpening, AnEditorThatTheHostDestroyedIsClosed)
{
    CloseEditor();
    auto form = std::make_unique<QWidget>();
    Host().ShowEditor(form.get());
    ApplyTo(1, "Color", 77);
    form.reset();
    QCoreApplication::processEvents();
    Host().ShowEditor(&m_form);
    EXPECT_EQ(History().StepsSinceMark(), 0);
}

TEST_F(SinceOpening, ACancelLeavesEverythingDone)
{
    for (qint32 layerID = 10; layerID < 200; ++layerID)
        AddLayer(layerID, QStringLiteral("Layer %1").arg(layerID), layerID);
    for (int colour = 1; colour < 4; ++colour)
        m_client.RecordStep([&] {
            Database().Execute(QStringLiteral("UPDATE Layers SET Color = ?1"), {colour});
            return QStringLiteral("Change Colours");
        });
    const QStringList after = Everything();
    for (int last = 0;; last += 1 + last / 3) {
        const Impatience now;
        const AtEachLook cancel([last](QProgressDialog& dialog, int look) {
            EXPECT_TRUE(dialog.labelText().contains(QStringLiteral("3 Steps")));
            if (look == last)
                PressCancel(dialog);
        });
        const int error = ErrorOf([this] { History().UndoSinceMark(); });
        if (error == 0) {
            EXPECT_GT(last, 0) << "otherwise nothing was tried";
            break;
        }
        ASSERT_EQ(error, int(UserCancelled));
        ASSERT_EQ(Everything(), after) << last;
        ASSERT_EQ(History().StepsSinceMark(), 3);
        ASSERT_FALSE(History().CanRedo());
    }
    EXPECT_EQ(History().RedoText(), "Redo 3 Steps");
}

} // namespace

} // namespace Orvane::Testing

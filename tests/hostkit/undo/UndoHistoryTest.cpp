// SPDX-License-Identifier: MIT
#include "hostkit/undo/UndoHistory.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"

#include <QSignalSpy>
#include <QStringList>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

// Steps record their calls in a common list.
struct Diary {
    QStringList lines;
    int undoError = 0;
    int redoError = 0;
    std::function<void()> whileUndoing;
};

class DiaryStep : public IUndoStep
{
public:
    DiaryStep(Diary& diary, const QString& name) : m_diary(diary), m_name(name) { }

    QString Text() const override { return m_name; }
    void Undo() override { Write(QStringLiteral("undo "), m_diary.undoError, m_diary.whileUndoing); }
    void Redo() override { Write(QStringLiteral("redo "), m_diary.redoError, {}); }

private:
    void Write(const QString& what, int error, const std::function<void()>& act)
    {
        if (error != 0)
            throw RunTimeError(error, QStringLiteral("no"));
        m_diary.lines << what + m_name;
        if (act)
            act();
    }

    Diary& m_diary;
    QString m_name;
};

class GreedyStep : public DiaryStep
{
public:
    using DiaryStep::DiaryStep;
    bool Absorb(const IUndoStep& next) override { return next.Text() == QLatin1String("crumb"); }
};

class History : public testing::Test
{
protected:
    void Do(const QString& name) { m_history.Add(std::make_unique<DiaryStep>(m_diary, name)); }

    Diary m_diary;
    UndoHistory m_history;
};

TEST_F(History, ANewOneHasNothingToUndoAndSaysSo)
{
    EXPECT_FALSE(m_history.CanUndo());
    EXPECT_FALSE(m_history.CanRedo());
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo"));
    EXPECT_EQ(m_history.RedoText(), QStringLiteral("Redo"));
    m_history.Undo();
    m_history.Redo();
}

TEST_F(History, UndoesFromTheLastStepBackAndRedoesForward)
{
    for (const char* name : {"a", "b", "c"})
        Do(QLatin1String(name));
    m_history.Undo();
    m_history.Undo();
    m_history.Redo();
    EXPECT_THAT(
        m_diary.lines,
        ElementsAre(QStringLiteral("undo c"), QStringLiteral("undo b"), QStringLiteral("redo b")));
}

TEST_F(History, NamesTheStepsThatComeNext)
{
    Do(QStringLiteral("Change Roads"));
    Do(QStringLiteral("Change Rivers"));
    m_history.Undo();
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo Change Roads"));
    EXPECT_EQ(m_history.RedoText(), QStringLiteral("Redo Change Rivers"));
}

TEST_F(History, APercentSignInAStepsTextStays)
{
    Do(QStringLiteral("Change 50 %1 grey"));
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo Change 50 %1 grey"));
}

TEST_F(History, ANewStepCutsOffWhatWasUndone)
{
    Do(QStringLiteral("a"));
    Do(QStringLiteral("b"));
    m_history.Undo();
    Do(QStringLiteral("c"));
    EXPECT_FALSE(m_history.CanRedo());
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo c"));
    m_history.Undo();
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo a"));
}

TEST_F(History, TheHundredAndFirstStepPushesOutTheFirst)
{
    for (int number = 1; number <= UndoHistory::MaxSteps + 1; ++number)
        Do(QString::number(number));
    int undone = 0;
    for (; m_history.CanUndo(); ++undone)
        m_history.Undo();
    EXPECT_EQ(undone, 100);
    EXPECT_EQ(m_diary.lines.last(), QStringLiteral("undo 2"));
}

// A step that remembers much.
class LargeStep : public DiaryStep
{
public:
    LargeStep(Diary& diary, const QString& name, qsizetype bytes) : DiaryStep(diary, name), m_bytes(bytes) { }
    qsizetype KeptBytes() const override { return m_bytes; }

private:
    qsizetype m_bytes;
};

TEST_F(History, StepsThatNeedTooMuchMemoryPushOutTheOldest)
{
    for (const char* name : {"a", "b", "c"})
        m_history.Add(
            std::make_unique<LargeStep>(m_diary, QLatin1String(name), UndoHistory::MaxBytes * 2 / 5));
    while (m_history.CanUndo())
        m_history.Undo();
    EXPECT_THAT(m_diary.lines, ElementsAre(QStringLiteral("undo c"), QStringLiteral("undo b")));
}

TEST_F(History, TheLatestStepIsKeptHoweverLargeItIs)
{
    Do(QStringLiteral("a"));
    m_history.Add(std::make_unique<LargeStep>(m_diary, QStringLiteral("b"), UndoHistory::MaxBytes + 1));
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo b"));
    m_history.Undo();
    EXPECT_FALSE(m_history.CanUndo());
}

TEST_F(History, TellsEachChangeOnce)
{
    QSignalSpy changed(&m_history, &UndoHistory::Changed);
    Do(QStringLiteral("a"));
    m_history.Undo();
    m_history.Redo();
    m_history.Redo();
    m_history.Clear();
    m_history.Clear();
    EXPECT_EQ(changed.count(), 4);
}

TEST_F(History, AStepThatFailsForTheMomentStaysForAnotherTry)
{
    Do(QStringLiteral("a"));
    m_diary.undoError = int(ErrorNumber::DatabaseLocked);
    EXPECT_EQ(ErrorOf([&] { m_history.Undo(); }), int(ErrorNumber::DatabaseLocked));
    m_diary.undoError = 0;
    m_history.Undo();
    EXPECT_THAT(m_diary.lines, ElementsAre(QStringLiteral("undo a")));
    m_diary.redoError = int(ErrorNumber::DatabaseLocked);
    EXPECT_EQ(ErrorOf([&] { m_history.Redo(); }), int(ErrorNumber::DatabaseLocked));
    EXPECT_TRUE(m_history.CanRedo());
}

TEST_F(History, AnOutdatedStepIsForgottenAndTheOthersStay)
{
    for (const char* name : {"a", "b", "c"})
        Do(QLatin1String(name));
    m_history.Undo();
    m_diary.undoError = int(HostError::StepOutdated);
    EXPECT_EQ(ErrorOf([&] { m_history.Undo(); }), int(HostError::StepOutdated));
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo a"));
    EXPECT_EQ(m_history.RedoText(), QStringLiteral("Redo c"));
}

TEST_F(History, AnOutdatedStepCannotBeRedoneAgain)
{
    Do(QStringLiteral("a"));
    Do(QStringLiteral("b"));
    m_history.Undo();
    m_history.Undo();
    m_diary.redoError = int(HostError::StepOutdated);
    EXPECT_EQ(ErrorOf([&] { m_history.Redo(); }), int(HostError::StepOutdated));
    EXPECT_FALSE(m_history.CanUndo());
    EXPECT_EQ(m_history.RedoText(), QStringLiteral("Redo b"));
}

TEST_F(History, NothingIsAddedOrUndoneWhileAStepRuns)
{
    Do(QStringLiteral("a"));
    Do(QStringLiteral("b"));
    m_diary.whileUndoing = [this] {
        Do(QStringLiteral("c"));
        m_history.Undo();
        m_history.Clear();
    };
    m_history.Undo();
    EXPECT_THAT(m_diary.lines, ElementsAre(QStringLiteral("undo b")));
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo a"));
    EXPECT_EQ(m_history.RedoText(), QStringLiteral("Redo b"));
}

TEST_F(History, WhatComesAfterAStepSeesItDone)
{
    Do(QStringLiteral("a"));
    bool couldRedo = false;
    m_history.SetAfterStep([&] { couldRedo = m_history.CanRedo(); });
    m_history.Undo();
    EXPECT_TRUE(couldRedo);
}

TEST_F(History, AnErrorAfterAStepIsPassedOnAndTheStepIsDone)
{
    Do(QStringLiteral("a"));
    m_history.SetAfterStep([] { throw RunTimeError(7, QStringLiteral("no")); });
    EXPECT_EQ(ErrorOf([&] { m_history.Undo(); }), 7);
    EXPECT_FALSE(m_history.CanUndo());
    EXPECT_TRUE(m_history.CanRedo());
}

TEST_F(History, AStepMayTakeTheNextOneIntoItself)
{
    m_history.Add(std::make_unique<GreedyStep>(m_diary, QStringLiteral("bread")));
    Do(QStringLiteral("crumb"));
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo bread"));
    m_history.Undo();
    Do(QStringLiteral("crumb"));
    EXPECT_EQ(m_history.UndoText(), QStringLiteral("Undo crumb"));
}

} // namespace
} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "shell/actions/EditActions.h"

#include "hostkit/undo/UndoHistory.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

using testing::ElementsAre;

class Step : public IUndoStep
{
public:
    Step(QStringList& diary, const QString& text) : m_diary(diary), m_text(text) { }

    QString Text() const override { return m_text; }
    void Undo() override { Note("undo"); }
    void Redo() override { Note("redo"); }

private:
    void Note(const QString& what)
    {
        if (m_text == "trouble")
            throw RunTimeError(7, "no luck");
        m_diary << what + ' ' + m_text;
    }

    QStringList& m_diary;
    QString m_text;
};

class EditActionsTest : public testing::Test
{
protected:
    EditActionsTest()
    {
        QMenu* menu = m_window.menuBar()->addMenu("&Edit");
        m_undo = menu->addAction("Undo");
        m_redo = menu->addAction("Redo");
        m_undoOpening = menu->addAction("Undo Everything");
        m_actions
            = std::make_unique<EditActions>(EditActions::Actions{m_undo, m_redo, m_undoOpening}, m_window);
        m_actions->Use(*m_history);
        m_window.show();
    }

    void Do(const QString& text) { m_history->Add(std::make_unique<Step>(m_diary, text)); }

    static void Press(QWidget& window, int key, Qt::KeyboardModifiers modifiers)
    {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key(key), modifiers);
    }

    QMainWindow m_window;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_undoOpening = nullptr;
    QStringList m_diary;
    std::unique_ptr<UndoHistory> m_history = std::make_unique<UndoHistory>();
    std::unique_ptr<EditActions> m_actions;
};

} // namespace

TEST_F(EditActionsTest, AreOffWithNothingToDo)
{
    EXPECT_FALSE(m_undo->isEnabled());
    EXPECT_FALSE(m_redo->isEnabled());
    EXPECT_EQ(m_undo->text(), "&Undo");
    EXPECT_EQ(m_redo->text(), "&Redo");
}

TEST_F(EditActionsTest, NameWhatTheyWouldDo)
{
    Do("Change A & B");
    EXPECT_TRUE(m_undo->isEnabled());
    EXPECT_EQ(m_undo->text(), "&Undo Change A && B");
    EXPECT_EQ(m_undo->toolTip(), "Undo Change A & B");
    m_undo->trigger();
    EXPECT_FALSE(m_undo->isEnabled());
    EXPECT_TRUE(m_redo->isEnabled());
    EXPECT_EQ(m_redo->text(), "&Redo Change A && B");
    EXPECT_THAT(m_diary, ElementsAre("undo Change A & B"));
}

TEST_F(EditActionsTest, AnswerToTheirKeys)
{
    Do("a");
    Press(m_window, Qt::Key_Z, Qt::ControlModifier);
    Press(m_window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    Press(m_window, Qt::Key_Z, Qt::ControlModifier);
    Press(m_window, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_THAT(m_diary, ElementsAre("undo a", "redo a", "undo a", "redo a"));
}

TEST_F(EditActionsTest, AnswerToTheirKeysInOtherWindowsToo)
{
    Do("a");
    QDialog editor;
    editor.show();
    Press(editor, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_THAT(m_diary, ElementsAre("undo a"));
}

TEST_F(EditActionsTest, LeaveTheKeysToATextEntry)
{
    Do("a");
    QDialog editor;
    QLineEdit entry("name", &editor);
    editor.show();
    editor.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
    entry.setFocus();
    QTest::keyClicks(&entry, "x");
    QTest::keyClick(&entry, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(m_diary.isEmpty());
    EXPECT_EQ(entry.text(), "name");
}

TEST_F(EditActionsTest, UndoEverythingSinceTheLayerControlOpened)
{
    Do("before");
    m_history->SetMark();
    EXPECT_FALSE(m_undoOpening->isEnabled());
    EXPECT_EQ(m_undoOpening->text(), "Undo &Everything Since the Layer Control Opened");
    Do("a");
    Do("b");
    EXPECT_TRUE(m_undoOpening->isEnabled());
    EXPECT_EQ(m_undoOpening->text(), "Undo &Everything Since the Layer Control Opened (2)");
    Press(m_window, Qt::Key_E, Qt::AltModifier);
    QWidget* menu = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&] { return (menu = QApplication::activePopupWidget()) != nullptr; }));
    QTest::keyClick(menu, Qt::Key_E);
    EXPECT_THAT(m_diary, ElementsAre("undo b", "undo a"));
    EXPECT_FALSE(m_undoOpening->isEnabled());
    Press(m_window, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_THAT(m_diary, ElementsAre("undo b", "undo a", "redo a", "redo b"));
}

TEST_F(EditActionsTest, UndoEverythingDoesNotPromiseStepsThatAreNoLongerKept)
{
    m_history->SetMark();
    for (int number = 0; number <= UndoHistory::MaxSteps; ++number)
        Do("a");
    EXPECT_EQ(m_undoOpening->text(), "Undo All 100 St&eps That Are Kept");
}

TEST_F(EditActionsTest, ShowWhatGoesWrong)
{
    Do("trouble");
    MessageBoxRobot user{BoxKey::Enter};
    m_undo->trigger();
    EXPECT_EQ(user.Only().text, "no luck");
    EXPECT_TRUE(m_undo->isEnabled());
}

TEST_F(EditActionsTest, FollowAnotherHistory)
{
    Do("a");
    UndoHistory other;
    m_actions->Use(other);
    EXPECT_FALSE(m_undo->isEnabled());
    Do("b");
    EXPECT_FALSE(m_undo->isEnabled());
    other.Add(std::make_unique<Step>(m_diary, "c"));
    EXPECT_EQ(m_undo->text(), "&Undo c");
}

TEST_F(EditActionsTest, OutliveTheirHistory)
{
    Do("a");
    m_history.reset();
    EXPECT_FALSE(m_undo->isEnabled());
    m_undo->trigger();
}

} // namespace Orvane

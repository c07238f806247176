// SPDX-License-Identifier: MIT
#include "shell/actions/EditActions.h"

#include "hostkit/undo/UndoHistory.h"
#include "hostkit/windows/LongWork.h"
#include "mapkit/common/Guard.h"
#include "shell/map/MapSession.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QLocale>

namespace Orvane {

namespace {

// An ampersand in a name is not a mnemonic; the first letter of the command is, if it is an ASCII character.
QString MenuText(QString text)
{
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
    return text.at(0).unicode() < 0x80 ? QLatin1Char('&') + text : text;
}

void ShowCommand(QAction& action, const QString& text, bool enabled)
{
    action.setText(MenuText(text));
    action.setToolTip(text);
    action.setEnabled(enabled);
}

} // namespace

EditActions::EditActions(const Actions& actions, QWidget& window) : m_actions(actions), m_window(window)
{
    m_actions.undo->setShortcuts(QKeySequence::Undo);
    m_actions.redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    SetUp(*m_actions.undo, &UndoHistory::Undo);
    SetUp(*m_actions.redo, &UndoHistory::Redo);
    SetUp(*m_actions.undoOpening, &UndoHistory::UndoSinceMark);
    Show();
}

void EditActions::SetUp(QAction& action, void (UndoHistory::*command)())
{
    action.setShortcutContext(Qt::ApplicationShortcut);
    connect(&action, &QAction::triggered, this, [this, command] { Run(command); });
}

void EditActions::Use(MapSession& session)
{
    Use(session.Shell().History());
    // Later: the operation that stored the change is still running.
    connect(&session, &MapSession::StepNotRecorded, this, &EditActions::TellOfLostStep, Qt::QueuedConnection);
}

void EditActions::Use(UndoHistory& history)
{
    if (m_history)
        m_history->disconnect(this);
    m_history = &history;
    connect(&history, &UndoHistory::Changed, this, &EditActions::Show);
    connect(&history, &QObject::destroyed, this, &EditActions::Show);
    Show();
}

void EditActions::TellOfLostStep(const QString& reason)
{
    LongWork::RunAfter(this, [this, reason] {
        const QString text = tr("The last change was stored, but it cannot be undone: %1").arg(reason);
        ShowError(Owner(), RunTimeError(ErrorNumber::DatabaseFailure, text));
    });
}

QWidget* EditActions::Owner() const
{
    QWidget* active = QApplication::activeWindow();
    return active ? active : &m_window;
}

void EditActions::Run(void (UndoHistory::*command)())
{
    Guard(Owner(), [&] {
        if (m_history)
            (m_history->*command)();
    });
}

void EditActions::Show()
{
    const UndoHistory none;
    const UndoHistory& history = m_history ? *m_history : none;
    ShowCommand(*m_actions.undo, history.UndoText(), history.CanUndo());
    ShowCommand(*m_actions.redo, history.RedoText(), history.CanRedo());
    m_actions.undoOpening->setText(OpeningText(history));
    m_actions.undoOpening->setEnabled(history.StepsSinceMark() > 0);
}

// The letter of Undo is taken.
QString EditActions::OpeningText(const UndoHistory& history)
{
    const QString number = QLocale().toString(history.StepsSinceMark());
    if (history.StepsSinceMark() == 0)
        return tr("Undo &Everything Since the Layer Control Opened");
    if (history.HasLostStepsSinceMark())
        return tr("Undo All %1 St&eps That Are Kept").arg(number);
    return tr("Undo &Everything Since the Layer Control Opened (%1)").arg(number);
}

} // namespace Orvane

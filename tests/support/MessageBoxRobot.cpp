// SPDX-License-Identifier: MIT
#include "support/MessageBoxRobot.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

SeenBox Look(const QMessageBox& box)
{
    QStringList buttons;
    for (const QAbstractButton* button : box.buttons())
        buttons.append(button->text());
    const QPushButton* first = box.defaultButton();
    return {box.windowTitle(), box.text(),        box.icon(), buttons, first ? first->text() : QString(),
            box.textFormat(),  box.parentWidget()};
}

void Press(QMessageBox& box, BoxKey key)
{
    switch (key) {
    case BoxKey::Enter:
        return QTest::keyClick(&box, Qt::Key_Return);
    case BoxKey::Escape:
        return QTest::keyClick(&box, Qt::Key_Escape);
    case BoxKey::Yes:
        return box.button(QMessageBox::Yes)->click();
    case BoxKey::No:
        return box.button(QMessageBox::No)->click();
    }
}

} // namespace

MessageBoxRobot::MessageBoxRobot(std::initializer_list<BoxKey> answers) : m_answers(answers)
{
    qApp->installEventFilter(this);
}

MessageBoxRobot::~MessageBoxRobot()
{
    EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " planned answers were not asked for";
}

SeenBox MessageBoxRobot::Only() const
{
    EXPECT_EQ(m_boxes.size(), 1u);
    return m_boxes.empty() ? SeenBox{} : m_boxes.front();
}

bool MessageBoxRobot::eventFilter(QObject* watched, QEvent* event)
{
    auto* box = qobject_cast<QMessageBox*>(watched);
    // Queued: the box takes an answer only after its own event loop has begun.
    if (box && event->type() == QEvent::Show)
        QMetaObject::invokeMethod(
            box, [this, box] { Answer(*box); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void MessageBoxRobot::Answer(QMessageBox& box)
{
    const QPointer<QMessageBox> alive = &box;
    m_boxes.push_back(Look(box));
    if (m_beforeAnswer)
        m_beforeAnswer(box);
    if (!alive)
        return;
    EXPECT_FALSE(m_answers.empty()) << "unexpected message box: " << qPrintable(box.text());
    const BoxKey key = m_answers.empty() ? BoxKey::Escape : m_answers.front();
    if (!m_answers.empty())
        m_answers.pop_front();
    Press(box, key);
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "end_to_end/KeyboardUser.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>
#include <stdexcept>

namespace Orvane::Testing {

namespace {

const QString Look = QStringLiteral("?");
constexpr int Patience = 60000; // milliseconds, for a build with sanitizers

QString FrontName()
{
    const QWidget* popup = QApplication::activePopupWidget();
    const QWidget* front = popup ? popup : QApplication::activeWindow();
    return front ? front->objectName() : QString();
}

// They would keep the test waiting.
void CloseModalWindows()
{
    while (QWidget* window = QApplication::activeModalWidget()) {
        if (!window->close())
            return;
    }
}

bool IsFocused(const QString& window)
{
    return FrontName() == window && QGuiApplication::focusWindow();
}

} // namespace

void KeyboardUser::Press(const QString& keys, const std::function<bool()>& look)
{
    m_look = look;
    m_words = keys.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    m_failure = nullptr;
    m_pressed.start();
    PressNext();
    const bool isDone = QTest::qWaitFor(
        [this] { return m_failure || (m_words.isEmpty() && m_running == 0); }, 4 * Patience);
    if (m_failure)
        std::rethrow_exception(m_failure);
    if (!isDone)
        throw std::runtime_error("The keys do not end: " + keys.toStdString());
}

// The next key is due before this one is pressed: it may go to a window that this one opens and waits for.
void KeyboardUser::PressNext()
{
    if (m_words.isEmpty() || m_failure)
        return;
    const QString word = m_words.takeFirst();
    ++m_running;
    QTimer::singleShot(1, qApp, [this, word] {
        try {
            Obey(word);
        } catch (...) {
            m_failure = std::current_exception();
            CloseModalWindows();
        }
        --m_running;
    });
}

// Nothing waits in here: a window that a key opens has an event loop of its own, which must not run above
// another.
void KeyboardUser::Obey(const QString& word)
{
    KeepWindowActive();
    const bool isWindow = word.startsWith(QLatin1Char('['));
    const bool isLook = word == Look;
    const bool isReady = isWindow ? IsFocused(word.mid(1, word.size() - 2))
        : isLook                  ? m_look()
                                  : !m_isPressing;
    if (!isReady) {
        Postpone(word);
        return;
    }
    if (isWindow)
        m_isPressing = false;
    PressNext();
    if (!isWindow && !isLook)
        PressKey(QKeySequence::fromString(word));
}

// As a window manager does when a window closes.
void KeyboardUser::KeepWindowActive()
{
    if (QWidget* active = QApplication::activeWindow()) {
        m_windows.removeAll(active);
        m_windows.append(active);
        return;
    }
    while (!m_windows.isEmpty() && (!m_windows.last() || !m_windows.last()->isVisible()))
        m_windows.removeLast();
    if (!m_windows.isEmpty())
        m_windows.last()->activateWindow();
}

void KeyboardUser::Postpone(const QString& word)
{
    if (m_pressed.hasExpired(Patience))
        throw std::runtime_error(
            "\"" + word.toStdString() + "\" waits in vain at the window " + FrontName().toStdString());
    m_words.prepend(word);
    PressNext();
}

void KeyboardUser::PressKey(const QKeySequence& key)
{
    const int code = key[0].toCombined();
    const auto modifiers = Qt::KeyboardModifiers(code & int(Qt::KeyboardModifierMask));
    const auto plain = Qt::Key(code & ~int(Qt::KeyboardModifierMask));
    const QPointer<QWindow> window = QGuiApplication::focusWindow();
    if (!window)
        throw std::runtime_error("No window takes the key " + key.toString().toStdString());
    ++m_count;
    m_isPressing = true;
    m_pressed.start();
    QTest::keyPress(window, plain, modifiers);
    if (window)
        QTest::keyRelease(window, plain, modifiers);
    m_isPressing = false;
}

void KeyboardUser::Await(const QString& window)
{
    if (!QTest::qWaitFor([&] { return IsFocused(window); }, Patience))
        throw std::runtime_error(
            "The window " + window.toStdString() + " does not come; there is " + FrontName().toStdString());
}

void KeyboardUser::See(const char* what, const std::function<bool()>& isSeen)
{
    EXPECT_TRUE(QTest::qWaitFor(isSeen, Patience)) << what;
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QKeySequence>
#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <exception>
#include <functional>

namespace Orvane::Testing {

/// A user without a mouse: sends each key to the window that has the focus, as a window system does, and
/// counts the keys.
///
///     user.Press("F4 [frmLayerStyles] Ctrl+F p i p e Return");
///
/// Keys are written as in a QKeySequence. A name in brackets waits for the window or menu of that object
/// name, as a user looks whether it is there.
class KeyboardUser
{
public:
    /// Presses the keys one after the other, in the modal windows that they open, too. Raises when a window
    /// is awaited in vain.
    /// look: where the keys have a "?", the user waits until this returns true.
    void Press(const QString& keys, const std::function<bool()>& look = {});
    /// Waits for that window or menu. Raises when it is awaited in vain.
    static void Await(const QString& window);

    /// The keys that were pressed so far; those that are held, such as Ctrl, are not counted for themselves.
    int Count() const { return m_count; }
    /// Waits until the keys have had their effect; fails the test when they have none.
    static void See(const char* what, const std::function<bool()>& isSeen);

private:
    void PressNext();
    void Obey(const QString& word);
    void KeepWindowActive();
    void Postpone(const QString& word);
    void PressKey(const QKeySequence& key);

    QStringList m_words;
    QList<QPointer<QWidget>> m_windows; // that were active, the last one at the end
    std::function<bool()> m_look;
    std::exception_ptr m_failure;
    int m_count = 0;
    int m_running = 0;
    bool m_isPressing = false;
    QElapsedTimer m_pressed;
};

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/windows/LongWork.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QObject>
#include <QProgressDialog>
#include <QPushButton>

#include <functional>

namespace Orvane::Testing {

/// While it lives, long work shows its dialog at once and looks at the user's input as often as it can.
class Impatience
{
public:
    Impatience() { LongWork::SetPatience(std::chrono::milliseconds(0), std::chrono::milliseconds(0)); }
    ~Impatience() { LongWork::SetPatience(LongWork::UsualPatience); }
    Impatience(const Impatience&) = delete;
    Impatience& operator=(const Impatience&) = delete;
};

/// Calls act whenever long work looks at the user's input, with its dialog and the number of the look, from
/// 0.
class AtEachLook
{
public:
    using Act = std::function<void(QProgressDialog& dialog, int look)>;

    explicit AtEachLook(Act act) : m_act(std::move(act))
    {
        QObject::connect(
            QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &m_context,
            [this] { Look(); });
    }

    int Looks() const { return m_looks; }

private:
    void Look()
    {
        auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->objectName() == QStringLiteral("dlgProgress"))
            m_act(*dialog, m_looks++);
    }

    Act m_act;
    QObject m_context;
    int m_looks = 0;
};

/// Presses Cancel in the dialog.
inline void PressCancel(QProgressDialog& dialog)
{
    dialog.findChild<QPushButton*>()->click();
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QObject>
#include <QTimer>

namespace Orvane::Benchmarks {

/// Answers each message box with "Yes" as soon as it is shown, as long as the object exists.
class YesToAll : public QObject
{
public:
    YesToAll() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
        if (box && box->button(QMessageBox::Yes))
            QTimer::singleShot(0, box, [box] { box->button(QMessageBox::Yes)->click(); });
        return QObject::eventFilter(watched, event);
    }
};

} // namespace Orvane::Benchmarks

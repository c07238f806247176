// SPDX-License-Identifier: MIT
#include "hostkit/windows/UserQuestions.h"

#include "hostkit/windows/OwnedDialog.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QCoreApplication>
#include <QMessageBox>

#include <cstdio>

namespace Orvane {

bool AskYesOrNo(QWidget* parent, const QString& title, const QString& question)
{
    const OwnedDialog<QMessageBox> box(
        QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No, parent);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::No);
    return box->exec() == QMessageBox::Yes;
}

void ShowNotice(QWidget* parent, const QString& title, const QString& text)
{
    const OwnedDialog<QMessageBox> box(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    box->setTextFormat(Qt::PlainText);
    box->exec();
}

void ShowErrorBox(QWidget* parent, const std::exception& error) noexcept
{
    if (IsCancellation(error))
        return;
    try {
        const OwnedDialog<QMessageBox> box(
            QMessageBox::Warning, QCoreApplication::applicationName(), QString::fromUtf8(error.what()),
            QMessageBox::Ok, parent);
        box->setObjectName(QStringLiteral("dlgError"));
        box->setTextFormat(Qt::PlainText);
        box->exec();
    } catch (const std::exception& again) {
        std::fprintf(stderr, "%s\n%s\n", error.what(), again.what());
    }
}

} // namespace Orvane

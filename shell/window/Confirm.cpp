// SPDX-License-Identifier: MIT
#include "shell/window/Confirm.h"

#include <QMessageBox>

namespace Orvane {

bool Confirm(QWidget& window, const QString& title, const QString& question)
{
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No, &window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "mapkit/common/Guard.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QCoreApplication>
#include <QMessageBox>

#include <cstdio>

namespace Orvane {

void ShowError(QWidget* owner, const std::exception& error) noexcept
{
    if (IsCancellation(error))
        return;
    try {
        QMessageBox box(
            QMessageBox::Warning, QCoreApplication::applicationName(), QString::fromUtf8(error.what()),
            QMessageBox::Ok, owner);
        box.setObjectName(QStringLiteral("dlgError"));
        box.setTextFormat(Qt::PlainText);
        box.exec();
    } catch (const std::exception& again) {
        std::fprintf(stderr, "%s\n%s\n", error.what(), again.what());
    }
}

} // namespace Orvane

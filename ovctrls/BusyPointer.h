// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace Orvane {

/// Shows the busy pointer during its lifetime; for anything that may take long. Can be nested; the previous
/// pointer is restored at the end. Do not keep it while asking the user a question.
class BusyPointer
{
public:
    BusyPointer() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
    ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace Orvane {

/// Shows the busy pointer while it lives, over anything that may take long. Nests; the pointer that was there
/// before comes back at the end. Not to be held while a question is asked.
class BusyPointer
{
public:
    BusyPointer() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
    ~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#pragma once

#include "sweep/IFault.h"

#include <QtGlobal>

namespace Orvane::Testing {

/// A disk on which no file can grow beyond a size, which starts with nothing and rises by a step from one
/// number to the next. It also stops what is written without SQLite. One object at a time may be armed.
class RoomFault final : public IFault
{
public:
    /// step: bytes.
    explicit RoomFault(qint64 step) : m_step(step) { }

    std::string Name() const override { return "FilesCannotGrow"; }
    void Arm(int number) override;
    void Disarm() override;
    bool HasFailed() const override;
    std::string FirstFailure() const override;

private:
    qint64 m_step;
    qint64 m_room = 0;
};

} // namespace Orvane::Testing

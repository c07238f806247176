// SPDX-License-Identifier: MIT
#pragma once

#include "store/shared/ActionPatience.h"

#include <chrono>

struct sqlite3;

namespace Orvane {

/// Lets a connection wait for other programs' locks, as long as the present action may; see ActionPatience.
class LockPatience
{
public:
    /// limit: for one action.
    explicit LockPatience(std::chrono::milliseconds limit) : m_action(limit) { }
    LockPatience(const LockPatience&) = delete;
    LockPatience& operator=(const LockPatience&) = delete;

    /// Lets an open database wait in this way. Close it before this object is destroyed.
    void Attach(sqlite3* handle);
    /// To be called after each write that was stored.
    void NoteSuccess() { m_action.NoteSuccess(); }

private:
    bool Wait(int attempt);

    ActionPatience m_action;
};

} // namespace Orvane

// SPDX-License-Identifier: MIT
#include "sweep/RoomFault.h"

#include <csignal>
#include <sys/resource.h>

namespace Orvane::Testing {

namespace {

volatile std::sig_atomic_t HasRoomEnded = 0;

void NoteEndOfRoom(int)
{
    HasRoomEnded = 1;
}

void LimitFiles(rlim_t bytes)
{
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

void RoomFault::Arm(int number)
{
    m_room = m_step * (number - 1);
    HasRoomEnded = 0;
    std::signal(SIGXFSZ, NoteEndOfRoom);
    LimitFiles(rlim_t(m_room));
}

void RoomFault::Disarm()
{
    LimitFiles(RLIM_INFINITY);
}

bool RoomFault::HasFailed() const
{
    return HasRoomEnded != 0;
}

std::string RoomFault::FirstFailure() const
{
    return "a file of more than " + std::to_string(m_room) + " bytes";
}

} // namespace Orvane::Testing

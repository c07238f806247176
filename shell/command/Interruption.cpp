// SPDX-License-Identifier: MIT
#include "shell/command/Interruption.h"

#include <csignal>

namespace Orvane {

namespace {

volatile std::sig_atomic_t isInterrupted = 0;

void NoteInterruption(int signal)
{
    isInterrupted = 1;
    std::signal(signal, SIG_DFL);
}

constexpr std::array<int, 2> Requests{SIGINT, SIGTERM};

} // namespace

Interruption::Interruption()
{
    isInterrupted = 0;
    for (std::size_t number = 0; number < Requests.size(); ++number) {
        m_earlier[number] = std::signal(Requests[number], NoteInterruption);
        if (m_earlier[number] == SIG_IGN)
            std::signal(Requests[number], SIG_IGN);
    }
}

Interruption::~Interruption()
{
    for (std::size_t number = 0; number < Requests.size(); ++number)
        std::signal(Requests[number], m_earlier[number]);
}

bool Interruption::IsAsked() const
{
    return isInterrupted != 0;
}

} // namespace Orvane

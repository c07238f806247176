// SPDX-License-Identifier: MIT
#include "NewsDelay.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"
#include "store/postgres/EditingTeam.h"
#include "support/PrivateServer.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

/// orvane_team_benchmark [SECONDS [EDITS]]: twenty clients edit one map in a server of this program's own,
/// for a minute. Prints what they did and how long they waited, and then how long it takes until another
/// program hears of each of 50 edits. Ends with 1 if anything was lost.

using namespace Orvane;
using namespace Orvane::Testing;

namespace {

constexpr int Clients = 20;
constexpr int Minute = 60;
constexpr int ManyEdits = 50; // that another program hears of

using Durations = std::vector<std::chrono::microseconds>;

double Milliseconds(std::chrono::microseconds duration)
{
    return double(duration.count()) / 1000;
}

// durations: the shortest first.
double Within(const Durations& durations, double part)
{
    return durations.empty() ? 0 : Milliseconds(durations[size_t(part * double(durations.size() - 1))]);
}

void Print(const EditingTeam::Figures& figures, int seconds)
{
    std::printf(
        "%d clients, %d s: %lld acts, %lld repeated because of others, half within %.1f ms, 99 of 100 within"
        " %.1f ms, the longest %.1f ms\n",
        Clients, seconds, static_cast<long long>(figures.acts), static_cast<long long>(figures.refusals),
        Within(figures.durations, 0.5), Within(figures.durations, 0.99), Milliseconds(figures.longest));
}

void Print(const Durations& delays)
{
    std::printf(
        "heard of an edit, %zu times: half within %.1f ms, the last within %.1f ms\n", delays.size(),
        Within(delays, 0.5), Within(delays, 1));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const int seconds = argc > 1 ? std::max(1, std::atoi(argv[1])) : Minute;
    const int edits = argc > 2 ? std::max(1, std::atoi(argv[2])) : ManyEdits;
    const QString place = SharedServer().Place(QStringLiteral("Team"));
    LayerStores::Create(place);
    EditingTeam team(place, Clients);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    Print(team.Work([end](int /*acts*/) { return std::chrono::steady_clock::now() < end; }), seconds);
    Print(NewsDelays(place, edits));
    const QStringList faults = team.Faults();
    for (const QString& fault : faults)
        std::printf("%s\n", qPrintable(fault));
    return faults.isEmpty() ? 0 : 1;
}

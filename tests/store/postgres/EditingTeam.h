// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <chrono>
#include <functional>
#include <vector>

namespace Orvane::Testing {

/// Many programs that edit one map at the same time, each on a thread and with a store of its own. Each notes
/// on paper what it stored.
///
///     EditingTeam team(place, 20);
///     team.Work([](int acts) { return acts < 100; });
///     EXPECT_EQ(team.Faults(), QStringList());
class EditingTeam
{
public:
    /// What the clients did, all together.
    struct Figures {
        qint64 acts = 0; ///< what was stored: single edits, counts, groups
        qint64 refusals = 0; ///< acts that were refused because of another client, and then repeated
        std::chrono::microseconds longest{0}; ///< the longest act, with its repetitions
        std::vector<std::chrono::microseconds> durations; ///< of all acts, the shortest first
    };

    /// Fills the empty map at that place with layers.
    EditingTeam(const QString& place, int clients);

    /// All clients act until goOn returns false for the number of their acts. It is called on their threads.
    Figures Work(const std::function<bool(int acts)>& goOn);

    /// Where the map is not as it must be after what the clients noted, and what they saw half done. Empty if
    /// nothing was lost.
    QStringList Faults() const;

    static constexpr int Counters = 8; ///< layers 1 to 8, whose Code all clients count up
    static constexpr int Groups = 4; ///< blocks of layers with one Priority, which is always set for all
    static constexpr int LayersOfGroup = 25;

private:
    class Client;

    /// What a client stored.
    struct Paper {
        std::vector<qint64> counted = std::vector<qint64>(Counters, 0);
        std::vector<qint32> groups
            = std::vector<qint32>(Groups, 0); // the last Priority that it gave; 0: none
        QString name; // of its own layer
        QStringList faults;
        Figures figures;
    };

    QStringList CounterFaults() const;
    QStringList GroupFaults() const;
    QStringList NameFaults() const;

    QString m_place;
    std::vector<Paper> m_papers; // one for each client
};

} // namespace Orvane::Testing

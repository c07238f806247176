// SPDX-License-Identifier: MIT
#include "store/postgres/EditingTeam.h"

#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"
#include "support/Dice.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>
#include <set>
#include <thread>

namespace Orvane::Testing {

namespace {

using Clock = std::chrono::steady_clock;

constexpr qint32 FirstOfGroups = 100;
constexpr qint32 FirstOfClients = 1000;
constexpr qint32 GivenByOneClient = 1000000; // each Priority is given once

qint32 LayerOfGroup(int group, int member)
{
    return FirstOfGroups + group * EditingTeam::LayersOfGroup + member;
}

std::unique_ptr<IRecordset> LayersOf(ILayerStore& store)
{
    auto layers = store.OpenRecordset(QStringLiteral("Layers"));
    layers->Index("LayerIDIDX");
    return layers;
}

void SetColumn(IRecordset& layers, qint32 layerID, const char* column, const Value& value)
{
    layers.Seek("=", layerID);
    layers.Edit();
    layers.SetField(column, value);
    layers.Update();
}

Value ColumnOf(IRecordset& layers, qint32 layerID, const char* column)
{
    layers.Seek("=", layerID);
    return layers.Field(column);
}

std::set<qint32> PrioritiesOf(IRecordset& layers, int group)
{
    std::set<qint32> priorities;
    for (int member = 0; member < EditingTeam::LayersOfGroup; ++member)
        priorities.insert(ToInt32(ColumnOf(layers, LayerOfGroup(group, member), "Priority")));
    return priorities;
}

void AddLayers(ILayerStore& store, qint32 first, int count)
{
    const QString insert
        = QStringLiteral("INSERT INTO Layers (LayerID, Name, Code, Priority) VALUES (?1, 'Layer', 0, 0)");
    for (qint32 layerID = first; layerID < first + count; ++layerID)
        store.Execute(insert, {layerID});
}

} // namespace

/// One of the clients, on its thread.
class EditingTeam::Client
{
public:
    Client(const QString& place, int number, Paper& paper)
        : m_store(LayerStores::Open(place)), m_number(number), m_paper(paper), m_dice(unsigned(number) + 1)
    {
    }

    void Work(const std::function<bool(int acts)>& goOn)
    {
        for (int acts = 0; goOn(acts); ++acts) {
            const Clock::time_point start = Clock::now();
            Act();
            const auto lasted = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
            m_paper.figures.durations.push_back(lasted);
            ++m_paper.figures.acts;
        }
    }

private:
    void Act()
    {
        const int choice = m_dice.Below(100);
        if (choice < 40)
            Name();
        else if (choice < 70)
            Count(m_dice.Below(Counters));
        else if (choice < 85)
            SetGroup(m_dice.Below(Groups));
        else if (choice < 95)
            LookAtGroup(m_dice.Below(Groups));
        else
            ThinkBetter();
    }

    // A transaction that another client is in the way of is made again, as a user presses "Try Again".
    void Store(const std::function<void(IRecordset& layers)>& edit)
    {
        while (true) {
            try {
                Transaction transaction(*m_store);
                edit(*LayersOf(*m_store));
                transaction.Commit();
                return;
            } catch (const RunTimeError& error) {
                if (error.Number() != int(ErrorNumber::DatabaseLocked))
                    throw;
                ++m_paper.figures.refusals;
            }
        }
    }

    void Name()
    {
        const QString name = QStringLiteral("Edit %1 of client %2").arg(++m_given).arg(m_number);
        SetColumn(*LayersOf(*m_store), FirstOfClients + m_number, "Name", name);
        m_paper.name = name;
    }
    void Count(int counter)
    {
        Store([counter](IRecordset& layers) {
            layers.Seek("=", counter + 1);
            layers.Edit(); // what a transaction reads before its first edit may be older than the edit
            layers.SetField("Code", ToInt32(layers.Field("Code")) + 1);
            layers.Update();
        });
        ++m_paper.counted[size_t(counter)];
    }
    void SetGroup(int group)
    {
        const qint32 priority = (m_number + 1) * GivenByOneClient + ++m_given;
        Store([=](IRecordset& layers) {
            for (int member = 0; member < LayersOfGroup; ++member)
                SetColumn(layers, LayerOfGroup(group, member), "Priority", priority);
        });
        m_paper.groups[size_t(group)] = priority;
    }
    void LookAtGroup(int group)
    {
        Store([&](IRecordset& layers) {
            if (PrioritiesOf(layers, group).size() != 1)
                m_paper.faults << QStringLiteral("client %1 saw group %2 half done").arg(m_number).arg(group);
        });
    }
    // What it takes back nobody ever sees.
    void ThinkBetter()
    {
        const Transaction transaction(*m_store);
        const auto layers = LayersOf(*m_store);
        SetColumn(*layers, FirstOfClients + m_number, "Name", QStringLiteral("taken back"));
    }

    std::unique_ptr<ILayerStore> m_store;
    int m_number;
    Paper& m_paper;
    Dice m_dice;
    qint32 m_given = 0;
};

EditingTeam::EditingTeam(const QString& place, int clients) : m_place(place), m_papers(size_t(clients))
{
    const auto store = LayerStores::Open(place);
    Transaction transaction(*store);
    AddLayers(*store, 1, Counters);
    AddLayers(*store, FirstOfGroups, Groups * LayersOfGroup);
    AddLayers(*store, FirstOfClients, clients);
    transaction.Commit();
    for (Paper& paper : m_papers)
        paper.name = QStringLiteral("Layer");
}

EditingTeam::Figures EditingTeam::Work(const std::function<bool(int acts)>& goOn)
{
    std::vector<std::thread> threads;
    threads.reserve(m_papers.size());
    for (size_t number = 0; number < m_papers.size(); ++number) {
        threads.emplace_back([this, &goOn, number] {
            Paper& paper = m_papers[number];
            try {
                Client(m_place, int(number), paper).Work(goOn);
            } catch (const RunTimeError& error) {
                paper.faults << QStringLiteral("client %1: %2").arg(number).arg(error.Description());
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();

    Figures all;
    for (const Paper& paper : m_papers) {
        all.acts += paper.figures.acts;
        all.refusals += paper.figures.refusals;
        const auto& durations = paper.figures.durations;
        all.durations.insert(all.durations.end(), durations.begin(), durations.end());
    }
    std::sort(all.durations.begin(), all.durations.end());
    if (!all.durations.empty())
        all.longest = all.durations.back();
    return all;
}

QStringList EditingTeam::Faults() const
{
    QStringList faults;
    for (const Paper& paper : m_papers)
        faults << paper.faults;
    return faults << CounterFaults() << GroupFaults() << NameFaults();
}

QStringList EditingTeam::CounterFaults() const
{
    const auto store = LayerStores::Open(m_place);
    const auto layers = LayersOf(*store);
    QStringList faults;
    for (int counter = 0; counter < Counters; ++counter) {
        qint64 noted = 0;
        for (const Paper& paper : m_papers)
            noted += paper.counted[size_t(counter)];
        const qint32 stored = ToInt32(ColumnOf(*layers, counter + 1, "Code"));
        if (stored != noted)
            faults << QStringLiteral("counter %1 is %2 instead of %3").arg(counter).arg(stored).arg(noted);
    }
    return faults;
}

// The one that came last is the last of some client.
QStringList EditingTeam::GroupFaults() const
{
    const auto store = LayerStores::Open(m_place);
    const auto layers = LayersOf(*store);
    QStringList faults;
    for (int group = 0; group < Groups; ++group) {
        std::set<qint32> lastOnes;
        for (const Paper& paper : m_papers)
            lastOnes.insert(paper.groups[size_t(group)]);
        if (lastOnes.size() > 1)
            lastOnes.erase(0);
        const std::set<qint32> stored = PrioritiesOf(*layers, group);
        if (stored.size() != 1 || lastOnes.count(*stored.begin()) == 0)
            faults << QStringLiteral("group %1 is not as its last client left it").arg(group);
    }
    return faults;
}

QStringList EditingTeam::NameFaults() const
{
    const auto store = LayerStores::Open(m_place);
    const auto layers = LayersOf(*store);
    QStringList faults;
    for (size_t number = 0; number < m_papers.size(); ++number) {
        const QString stored = ToText(ColumnOf(*layers, FirstOfClients + qint32(number), "Name"));
        if (stored != m_papers[number].name)
            faults << QStringLiteral("\"%1\" instead of \"%2\"").arg(stored, m_papers[number].name);
    }
    return faults;
}

} // namespace Orvane::Testing

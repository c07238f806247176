// SPDX-License-Identifier: MIT
#include "store/any/StoreMaker.h"
#include "store/postgres/PostgresLayerDatabase.h"
#include "store/postgres/RawLink.h"
#include "store/postgres/link/ServerPlace.h"
#include "store/postgres/maps/MapSchema.h"
#include "support/PrivateServer.h"

#include <QStringList>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace Orvane::Testing {

namespace {

class ServerStranger final : public Stranger
{
public:
    explicit ServerStranger(const QString& schema) : m_link(SharedServer().Connection())
    {
        m_link.Run("SET search_path = " + MapSchema::SearchPath(schema));
    }

    void Run(const char* sql) override { m_link.Run(sql); }
    std::string Text(const char* sql) override
    {
        std::string text;
        const char* comma = "";
        for (const std::string& row : m_link.Rows(sql)) {
            text += comma + row;
            comma = ",";
        }
        return text;
    }
    void BeginWriting() override
    {
        Run("BEGIN; LOCK TABLE Layers, LayerGroups, LayerGroupMembers IN EXCLUSIVE MODE");
    }

private:
    RawLink m_link;
};

// Looks until somebody waits for the lock of this connection, or nobody will.
bool IsAwaited(Stranger& holder, const std::atomic<bool>& isOver)
{
    const char* const waiting = "SELECT count(*) FROM pg_locks"
                                " WHERE NOT granted AND pg_backend_pid() = ANY (pg_blocking_pids(pid))";
    while (holder.Text(waiting) == "0") {
        if (isOver)
            return false;
        std::this_thread::yield();
    }
    return true;
}

// A server beside other busy programs may be silent for longer than somebody at a window would wait.
StoreOptions Patient(StoreOptions options)
{
    constexpr std::chrono::minutes patience{5};
    options.answerTimeout = std::max<std::chrono::milliseconds>(options.answerTimeout, patience);
    options.connectTimeout = std::max<std::chrono::milliseconds>(options.connectTimeout, patience);
    return options;
}

} // namespace

// The schemas disappear with the server.
struct StoreMaker::Places {
    int number = 0; // of this maker within the program
    int nameless = 0;
};

StoreMaker::StoreMaker() : m_places(std::make_unique<Places>())
{
    static int makers = 0;
    m_places->number = ++makers;
}

StoreMaker::~StoreMaker() = default;

QString StoreMaker::PlaceOf(const QString& name) const
{
    return SharedServer().Place(QStringLiteral("%1 %2").arg(m_places->number).arg(name));
}

std::unique_ptr<ILayerStore> StoreMaker::Create(const QString& place, const StoreOptions& options) const
{
    return PostgresLayerDatabase::Create(place, Patient(options));
}

std::unique_ptr<ILayerStore>
StoreMaker::Open(const QString& place, OpenMode mode, const StoreOptions& options) const
{
    return PostgresLayerDatabase::Open(place, mode, Patient(options));
}

std::unique_ptr<ILayerStore> StoreMaker::CreateNameless()
{
    return Create(PlaceOf(QStringLiteral("nameless %1").arg(++m_places->nameless)));
}

std::unique_ptr<Stranger> StoreMaker::OtherProgram(const QString& place) const
{
    return std::make_unique<ServerStranger>(ServerPlace::FromText(place).schema);
}

void StoreMaker::CommitOnceAwaited(
    Stranger& other, ILayerStore& /*store*/, const std::function<void()>& act) const
{
    std::atomic<bool> isOver = false;
    std::thread releaser([&] {
        EXPECT_TRUE(IsAwaited(other, isOver)) << "the store never waited";
        other.Run("COMMIT");
    });
    const auto finish = [&] {
        isOver = true;
        releaser.join();
    };
    try {
        act();
    } catch (...) {
        finish();
        throw;
    }
    finish();
}

void StoreMaker::Refuse(ILayerStore& store, RowAct act, const QString& table, qint32 layerID)
{
    if (act != RowAct::Delete) {
        store.Execute(
            QStringLiteral("ALTER TABLE %1 ADD CHECK (LayerID <> %2) NOT VALID").arg(table).arg(layerID));
        return;
    }
    store.Execute(
        QStringLiteral("CREATE TABLE Refusals (LayerID integer REFERENCES %1 (LayerID))").arg(table));
    store.Execute(QStringLiteral("INSERT INTO Refusals VALUES (?1)"), {layerID});
}

QString StoreMaker::Dawdling()
{
    return QStringLiteral("CAST(pg_sleep(0.0005) AS text) = ''");
}

} // namespace Orvane::Testing

// SPDX-License-Identifier: MIT
#include "store/any/StoreMaker.h"
#include "store/opening/LayerStores.h"
#include "store/sqlite/RawDatabase.h"

#include <QTemporaryDir>

#include <future>
#include <gtest/gtest.h>
#include <thread>

namespace Orvane::Testing {

struct StoreMaker::Places {
    QTemporaryDir folder;
};

StoreMaker::StoreMaker() : m_places(std::make_unique<Places>())
{
}

StoreMaker::~StoreMaker() = default;

QString StoreMaker::PlaceOf(const QString& name) const
{
    return m_places->folder.filePath(name);
}

std::unique_ptr<ILayerStore> StoreMaker::Create(const QString& place, const StoreOptions& options) const
{
    return LayerStores::Create(place, options);
}

std::unique_ptr<ILayerStore>
StoreMaker::Open(const QString& place, OpenMode mode, const StoreOptions& options) const
{
    return LayerStores::Open(place, mode, options);
}

std::unique_ptr<ILayerStore> StoreMaker::CreateNameless()
{
    return LayerStores::CreateInMemory();
}

std::unique_ptr<Stranger> StoreMaker::OtherProgram(const QString& place) const
{
    return std::make_unique<RawDatabase>(place);
}

// The first statement that writes is the one that waits: outside of a transaction the update, inside of one
// the statement that begins it again.
void StoreMaker::CommitOnceAwaited(
    Stranger& other, ILayerStore& store, const std::function<void()>& act) const
{
    std::promise<void> reached;
    bool told = false;
    std::thread releaser([&] {
        reached.get_future().wait();
        other.Run("COMMIT");
    });
    store.SetQueryListener([&](const QString& text) {
        if (!told
            && (text.startsWith(QStringLiteral("UPDATE")) || text == QStringLiteral("BEGIN IMMEDIATE"))) {
            told = true;
            reached.set_value();
        }
    });
    act();
    store.SetQueryListener({});
    EXPECT_TRUE(told) << "the store never waited";
    if (!told)
        reached.set_value();
    releaser.join();
}

QString StoreMaker::Dawdling()
{
    return QStringLiteral("TRUE"); // many looks at the watcher fit into any statement over many rows
}

void StoreMaker::Refuse(ILayerStore& store, RowAct act, const QString& table, qint32 layerID)
{
    const auto name = act == RowAct::Insert ? QStringLiteral("INSERT")
        : act == RowAct::Update             ? QStringLiteral("UPDATE")
                                            : QStringLiteral("DELETE");
    const auto row = act == RowAct::Delete ? QStringLiteral("OLD") : QStringLiteral("NEW");
    store.Execute(QStringLiteral("CREATE TEMP TRIGGER Refuse BEFORE %1 ON %2 WHEN %3.LayerID = %4"
                                 " BEGIN SELECT RAISE(ABORT, 'kept'); END")
                      .arg(name, table, row)
                      .arg(layerID));
}

const std::map<std::string, std::string>& StoreDifferences()
{
    static const std::map<std::string, std::string> none;
    return none;
}

} // namespace Orvane::Testing

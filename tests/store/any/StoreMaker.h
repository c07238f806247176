// SPDX-License-Identifier: MIT
#pragma once

#include "store/ILayerStore.h"
#include "store/StoreOptions.h"

#include <QString>

#include <functional>
#include <memory>
#include <string>

namespace Orvane::Testing {

/// Another program that uses a layer store: a connection that is made without our code. Destroying it undoes
/// what it did not commit.
class Stranger
{
public:
    Stranger() = default;
    virtual ~Stranger() = default;
    Stranger(const Stranger&) = delete;
    Stranger& operator=(const Stranger&) = delete;

    /// Runs statements; the test fails when they fail.
    virtual void Run(const char* sql) = 0;
    /// The first column of all rows, with commas between; a missing value is empty.
    virtual std::string Text(const char* sql) = 0;
    /// Begins a transaction. Until it ends others can read layers, groups and members, and change none.
    virtual void BeginWriting() = 0;
};

/// What is done to a row.
enum class RowAct { Insert, Update, Delete };

/// Makes the layer stores of one test. Where they are is decided by the library that a test program links:
/// test_sqlite_stores or test_postgres_stores.
class StoreMaker
{
public:
    StoreMaker();
    /// What it made disappears, at the latest with the program. Close the stores first.
    ~StoreMaker();
    StoreMaker(const StoreMaker&) = delete;
    StoreMaker& operator=(const StoreMaker&) = delete;

    /// Where a store of that name is, or would be made.
    QString PlaceOf(const QString& name) const;
    /// A new store with empty tables. Raises what LayerStores raises, as does Open.
    std::unique_ptr<ILayerStore> Create(const QString& place, const StoreOptions& options = {}) const;
    std::unique_ptr<ILayerStore>
    Open(const QString& place, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {}) const;
    /// A new store without a known place, such as one in memory, for a test that opens it only once.
    std::unique_ptr<ILayerStore> CreateNameless();

    /// Another program that opens the store at that place.
    std::unique_ptr<Stranger> OtherProgram(const QString& place) const;
    /// Runs act, and commits what the other program did as soon as the store waits for it. The test fails if
    /// it never waits.
    void CommitOnceAwaited(Stranger& other, ILayerStore& store, const std::function<void()>& act) const;

    /// From now on the store refuses to do that to rows of the layer in the table, which has a column
    /// LayerID.
    static void Refuse(ILayerStore& store, RowAct act, const QString& table, qint32 layerID);
    /// A condition that is true, and keeps a statement busy for a moment at each row.
    static QString Dawdling();

private:
    struct Places;
    std::unique_ptr<Places> m_places;
};

} // namespace Orvane::Testing

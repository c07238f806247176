// SPDX-License-Identifier: MIT
#include "kill/Writer.h"

#include "kill/KillMap.h"
#include "store/ChangeRecorder.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <cstdio>

namespace Orvane::Testing {

namespace {

// The other writer may hold its lock for long on a slow disk.
template <typename Act> auto OnceUnlocked(Act act)
{
    while (true) {
        try {
            return act();
        } catch (const RunTimeError& error) {
            if (error.Number() != int(ErrorNumber::DatabaseLocked))
                throw;
        }
    }
}

void Edit(ILayerStore& store, qint32 writer, qint32 number)
{
    Transaction transaction(store);
    KillMap::AddToList(store, writer, number);
    if (number % 2 == 0)
        KillMap::SetByCursors(store, writer, number);
    else
        KillMap::SetByStatements(store, writer, number);
    transaction.Commit();
}

// What applying the changes changed; nobody else changes these rows, so it must succeed.
Changeset Applied(ILayerStore& store, const Changeset& changes)
{
    if (auto applied = OnceUnlocked([&] { return store.Apply(changes); }))
        return *applied;
    throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("Own changes cannot be undone."));
}

void EditUndoAndRedo(ILayerStore& store, qint32 writer, qint32 number)
{
    auto recorder = store.RecordChanges();
    OnceUnlocked([&] { Edit(store, writer, number); });
    const Changeset changes = recorder->Changes();
    recorder.reset();
    const Changeset undone = Applied(store, changes.Inverted());
    Applied(store, undone.Inverted());
}

bool Report(qint32 number)
{
    return std::printf("%d\n", number) > 0 && std::fflush(stdout) == 0;
}

void EditForever(const QString& path, qint32 writer)
{
    const auto store = OnceUnlocked([&] { return LayerStores::Open(path); });
    qint32 number = OnceUnlocked([&] { return KillMap::LastNumber(*store, writer); });
    do {
        ++number;
        if (number % 3 == 0)
            EditUndoAndRedo(*store, writer, number);
        else
            OnceUnlocked([&] { Edit(*store, writer, number); });
    } while (Report(number));
}

} // namespace

int RunWriter(const QString& path, qint32 writer)
{
    try {
        EditForever(path, writer);
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "Writer %d: %s\n", writer, qPrintable(error.Description()));
    }
    return 1;
}

} // namespace Orvane::Testing

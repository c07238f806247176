// SPDX-License-Identifier: MIT
#include "soak/Usage.h"

#include <QApplication>
#include <QDir>
#include <QPixmapCache>
#include <QWidget>

#include <atomic>
#include <malloc.h>
#include <sqlite3.h>

#if defined(__SANITIZE_ADDRESS__)
#define ORVANE_SOAK_ASAN
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ORVANE_SOAK_ASAN
#endif
#endif

#ifdef ORVANE_SOAK_ASAN
#include <sanitizer/allocator_interface.h>
#endif

// Qt's table of functions for debuggers; its header is private.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace Orvane::Testing {

namespace {

constexpr int addHook = 3;
constexpr int removeHook = 4;

std::atomic<qint64> objectCount{0};

void CountUp(QObject*)
{
    ++objectCount;
}

void CountDown(QObject*)
{
    --objectCount;
}

void CountObjects()
{
    qtHookData[addHook] = reinterpret_cast<quintptr>(&CountUp);
    qtHookData[removeHook] = reinterpret_cast<quintptr>(&CountDown);
}

qint64 HeapInUse()
{
#ifdef ORVANE_SOAK_ASAN
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 heap = mallinfo2();
    return qint64(heap.uordblks + heap.hblkhd);
#endif
}

qint64 EntriesOf(const char* folder)
{
    return QDir(QLatin1String(folder))
        .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
        .size();
}

void FinishWhatWaits()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    QPixmapCache::clear();
}

} // namespace

Usage MeasureUsage()
{
    CountObjects();
    FinishWhatWaits();
    return {
        HeapInUse(),
        sqlite3_memory_used(),
        objectCount,
        qint64(QApplication::allWidgets().size()),
        qint64(QGuiApplication::allWindows().size()),
        EntriesOf("/proc/self/fd"),
        EntriesOf("/proc/self/task")};
}

} // namespace Orvane::Testing

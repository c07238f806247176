// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <array>

namespace Orvane::Testing {

/// What a program uses at one moment.
enum class Resource { Heap, SqliteMemory, Objects, Widgets, Windows, Files, Threads };

inline constexpr size_t ResourceCount = 7;

/// How a resource is printed, and how much more of it a long session may use at its end.
struct ResourceRule {
    Resource resource;
    const char* name;
    qint64 allowedGrowth;
};

/// The memory may grow a little: up to 64 prepared statements are kept, and containers keep the room that
/// their largest content needed. Qt makes a few objects when they are first used.
inline constexpr std::array<ResourceRule, ResourceCount> resourceRules{
    {{Resource::Heap, "heap, bytes", 512 * 1024},
     {Resource::SqliteMemory, "SQLite, bytes", 384 * 1024},
     {Resource::Objects, "QObjects", 8},
     {Resource::Widgets, "widgets", 0},
     {Resource::Windows, "windows", 0},
     {Resource::Files, "open files", 0},
     {Resource::Threads, "threads", 0}}};

/// One number for each resource. QObjects are counted from the first measurement on, so theirs may be
/// negative.
using Usage = std::array<qint64, ResourceCount>;

/// Finishes what was put off, such as deleting objects, empties Qt's cache of pictures, and measures.
Usage MeasureUsage();

} // namespace Orvane::Testing

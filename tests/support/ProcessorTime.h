// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>

namespace Orvane::Testing {

/// Sanitizers make programs slower by about this factor.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr int ProcessorTimeScale = 10;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
inline constexpr int ProcessorTimeScale = 10;
#else
inline constexpr int ProcessorTimeScale = 1;
#endif
#else
inline constexpr int ProcessorTimeScale = 1;
#endif

/// Fails the test if the program uses more processor time than that while this object exists: a machine that
/// is busy with something else fails no test. What never ends is given up too, whether it computes or waits:
/// then the test program ends, after it has named the test.
///
///     class HostileFiles : public testing::Test
///     {
///         const ProcessorTime m_time{std::chrono::seconds(20)};
///     };
class ProcessorTime
{
public:
    explicit ProcessorTime(std::chrono::milliseconds most)
        : m_most(most * ProcessorTimeScale), m_begin(Used()), m_watch([this] { Watch(); })
    {
    }
    ~ProcessorTime()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isDone = true;
        }
        m_done.notify_one();
        m_watch.join();
        EXPECT_LE((Used() - m_begin).count(), m_most.count()) << "milliseconds of processor time";
    }
    ProcessorTime(const ProcessorTime&) = delete;
    ProcessorTime& operator=(const ProcessorTime&) = delete;

    /// Of the whole program, since it began.
    static std::chrono::milliseconds Used()
    {
        return std::chrono::milliseconds(1000LL * std::clock() / CLOCKS_PER_SEC);
    }

private:
    using Clock = std::chrono::steady_clock;

    // Generous, because waiting for the processor takes no processor time.
    static constexpr std::chrono::minutes LongestWait{10};
    static constexpr std::chrono::milliseconds BetweenLooks{20};

    void Watch()
    {
        const Clock::time_point end = Clock::now() + LongestWait;
        std::unique_lock lock(m_mutex);
        while (!m_done.wait_for(lock, BetweenLooks, [this] { return m_isDone; })) {
            if (Used() - m_begin > 2 * m_most || Clock::now() > end)
                GiveUp();
        }
    }

    [[noreturn]] static void GiveUp()
    {
        const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
        std::fprintf(
            stderr, "%s.%s does not end: the program is given up.\n", test ? test->test_suite_name() : "?",
            test ? test->name() : "?");
        std::_Exit(EXIT_FAILURE);
    }

    std::chrono::milliseconds m_most;
    std::chrono::milliseconds m_begin;
    std::mutex m_mutex;
    std::condition_variable m_done;
    bool m_isDone = false;
    std::thread m_watch; // the last member: it uses the others
};

} // namespace Orvane::Testing

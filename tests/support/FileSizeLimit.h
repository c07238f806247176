// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace Orvane::Testing {

/// While it exists no file of this program can grow beyond that size: writing fails as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(qint64 bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_before), 0);
        rlimit limit = m_before;
        limit.rlim_cur = rlim_t(bytes);
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

} // namespace Orvane::Testing

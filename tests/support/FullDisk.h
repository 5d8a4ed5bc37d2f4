#pragma once

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

/// As long as it lives, no file of this process can grow beyond a size: writing fails in the middle, as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_old), 0);
        rlimit limit = m_old;
        limit.rlim_cur = bytes;
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FullDisk()
    {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &m_old), 0);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_old = {};
    void (*m_oldHandler)(int);
};

#pragma once

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

/// Root may write anywhere; until this goes, the process is somebody else's.
class OrdinaryUser {
public:
    OrdinaryUser() : m_changed(getuid() == 0 && setresuid(nobody, nobody, 0) == 0) {}
    ~OrdinaryUser()
    {
        if (m_changed) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
    }
    [[nodiscard]] static bool isOne() { return geteuid() != 0; }

private:
    static constexpr uid_t nobody = 65534;
    bool m_changed;
};

/// Files cannot grow beyond this size until it goes, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_limit), 0);
        const rlimit tight{bytes, m_limit.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &tight), 0);
    }
    ~FullDisk()
    {
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &m_limit), 0);
        static_cast<void>(std::signal(SIGXFSZ, m_handler));
    }

private:
    void (*m_handler)(int);
    rlimit m_limit{};
};

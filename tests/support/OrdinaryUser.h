#pragma once

#include <gtest/gtest.h>

#include <unistd.h>

/// A user without special rights for as long as it lives, also where the tests run as root.
class OrdinaryUser
{
public:
    OrdinaryUser()
        : m_wasRoot(geteuid() == 0)
    {
        if (m_wasRoot) {
            EXPECT_EQ(setresuid(65534, 65534, 0), 0);
        }
    }
    ~OrdinaryUser()
    {
        if (m_wasRoot) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool m_wasRoot;
};

#pragma once

#include "SafeFile.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

/// Runs an action that saves a file in a process of its own, which is killed before the given step of the save, from 0
/// on.
/// @param action returns whether it has succeeded, which it must where nothing kills it
/// @return false: the action came to its end, as the save has fewer steps
template <class Action>
bool diesAt(int step, Action action)
{
    const pid_t child = fork();
    EXPECT_GE(child, 0);
    if (child == 0) {
        int count = 0;
        SafeFile::setWatch([&count, step](SafeFile::eStep_t) {
            if (count++ == step)
                kill(getpid(), SIGKILL);
            return 0;
        });
        _exit(action() ? 0 : 1);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    return WIFSIGNALED(status);
}

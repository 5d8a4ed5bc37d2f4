#pragma once

#include <time.h>

/// Nanoseconds of a clock that all processes of the machine share.
inline long long monotonicNow()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

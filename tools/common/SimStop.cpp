#include "SimStop.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace nsBatch {

namespace {

volatile std::sig_atomic_t stopRequested = 0;
/// The signal handler writes a byte here, so that a signal just before poll() also ends the waiting.
int stopPipe[2] = {-1, -1};

void handleStop(int)
{
    const int before = errno;
    stopRequested = 1;
    const ssize_t written = write(stopPipe[1], "s", 1);
    static_cast<void>(written);
    errno = before;
}

} // namespace

void catchStopSignal(bool andTermination)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction present = {};
        if (signal != SIGINT && !andTermination)
            return;
        if (sigaction(signal, nullptr, &present) != 0 || present.sa_handler == SIG_IGN)
            continue;
        if (stopPipe[1] < 0 && pipe2(stopPipe, O_CLOEXEC | O_NONBLOCK) != 0)
            return;
        struct sigaction action = {};
        action.sa_handler = handleStop;
        sigemptyset(&action.sa_mask);
        action.sa_flags = int(SA_RESETHAND);
        sigaction(signal, &action, nullptr);
    }
}

bool isStopRequested()
{
    return stopRequested != 0;
}

bool waitForInput(int fd)
{
    pollfd waits[] = {{fd, POLLIN, 0}, {stopPipe[0], POLLIN, 0}};
    while (!isStopRequested()) {
        // A file that can not be polled can be read without waiting. poll() ignores a negative descriptor.
        if (poll(waits, 2, -1) < 0 && errno != EINTR)
            return true;
        if (waits[0].revents != 0)
            return !isStopRequested();
    }
    return false;
}

} // namespace nsBatch

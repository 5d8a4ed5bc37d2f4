#include "ChildProcess.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
const bool underSanitizer = true;
#else
const bool underSanitizer = false;
#endif

namespace {

/// Highest amount of memory so far, in KB.
qint64 peakKb()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

QByteArray readAll(int fd)
{
    QByteArray bytes;
    char buffer[4096];
    ssize_t count = 0;
    while ((count = read(fd, buffer, sizeof buffer)) > 0)
        bytes.append(buffer, int(count));
    return bytes;
}

[[noreturn]] void runChild(const std::function<QString()>& work, int seconds, int fd)
{
    alarm(unsigned(underSanitizer ? seconds * 10 : seconds));
    const qint64 before = peakKb();
    const QByteArray text = work().left(2000).toUtf8();
    const QByteArray report = QByteArray::number((peakKb() - before) / 1024) + '\n' + text;
    const bool written = write(fd, report.constData(), size_t(report.size())) == report.size();
    _exit(written ? 0 : 1);
}

} // namespace

ChildResult runInChild(const std::function<QString()>& work, int seconds)
{
    ChildResult result;
    int fds[2] = {-1, -1};
    if (pipe(fds) != 0)
        return result;
    const pid_t pid = fork();
    if (pid == 0) {
        close(fds[0]);
        runChild(work, seconds, fds[1]);
    }
    close(fds[1]);
    const QByteArray report = readAll(fds[0]);
    close(fds[0]);
    int status = 0;
    if (pid < 0 || waitpid(pid, &status, 0) != pid)
        return result;
    result.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    result.finished = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    result.peakMb = report.left(report.indexOf('\n')).toLongLong();
    result.text = QString::fromUtf8(report.mid(report.indexOf('\n') + 1));
    return result;
}

void expectGoodEnd(const std::function<QString()>& work, int seconds, int maxMb)
{
    const ChildResult result = runInChild(work, seconds);
    EXPECT_TRUE(result.finished) << (result.signal == SIGALRM ? "too slow" : "crashed") << ", signal " << result.signal;
    EXPECT_EQ(result.text.toStdString(), "");
    if (!underSanitizer) {
        EXPECT_LT(result.peakMb, maxMb);
    }
}

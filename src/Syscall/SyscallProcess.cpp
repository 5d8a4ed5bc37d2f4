#include "SyscallProcess.h"

#include "SyscallCommand.h"

#include <QThread>

#include <algorithm>
#include <csignal>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace nsModSyscall {

namespace {

const int startTime = 30000; ///< milliseconds
const int reapTime = 1000;   ///< milliseconds, for a process that is dead or was killed
const int pollTime = 5;      ///< milliseconds between two looks at a process that is to end

} // namespace

SyscallProcess::SyscallProcess(QObject* parent)
    : QProcess(parent)
{
}

SyscallProcess::~SyscallProcess()
{
    if (!isRunning())
        return;
    blockSignals(true);
    endAll({this}, 0);
}

void SyscallProcess::setOutputToStderr()
{
    m_outputToStderr = true;
    setProcessChannelMode(ForwardedChannels);
    setStandardInputFile(nullDevice());
}

bool SyscallProcess::start(const SyscallCommand& command)
{
    setWorkingDirectory(command.folder);
    // A name that was not found is not left to QProcess: some releases of it have the child look once more, which
    // stands in the folder of the project and would find there what nobody was asked about.
    const bool isFound = QDir::isAbsolutePath(command.program);
    QProcess::start(isFound ? command.program : QString(), command.arguments, ReadWrite | Unbuffered);
    return waitForStarted(startTime);
}

/// Runs in the child before the program: system calls alone.
void SyscallProcess::setupChildProcess()
{
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (m_outputToStderr)
        dup2(STDERR_FILENO, STDOUT_FILENO);
}

void SyscallProcess::signalGroup(int signal)
{
    const pid_t pid = pid_t(processId());
    // Before the child has made its group, there is the process alone.
    if (pid > 0 && ::kill(-pid, signal) != 0)
        ::kill(pid, signal);
}

void SyscallProcess::terminateGroup()
{
    signalGroup(SIGTERM);
}

void SyscallProcess::killGroup()
{
    signalGroup(SIGKILL);
}

/// Looks without taking the exit status away from the base class, in whatever way that has made the process.
bool SyscallProcess::hasDied() const
{
    const pid_t pid = pid_t(processId());
    siginfo_t info = {};
    return pid <= 0 || waitid(P_PID, id_t(pid), &info, WEXITED | WNOHANG | WNOWAIT | __WALL) != 0 || info.si_pid == pid;
}

QList<SyscallProcess*> SyscallProcess::endAll(const QList<SyscallProcess*>& processes, int grace)
{
    QList<SyscallProcess*> running;
    QList<pid_t> groups;
    std::copy_if(processes.cbegin(), processes.cend(), std::back_inserter(running),
                 [](const SyscallProcess* process) { return process->isRunning(); });
    for (SyscallProcess* process : qAsConst(running)) {
        // What they still write is read and dropped, so that they can not fill the memory.
        process->closeReadChannel(StandardOutput);
        process->closeReadChannel(StandardError);
        groups.append(pid_t(process->processId()));
        process->terminateGroup();
    }
    // QProcess::waitForFinished() would not come back from a program that writes without end.
    QElapsedTimer timer;
    timer.start();
    const auto allDied = [&running] {
        return std::all_of(running.cbegin(), running.cend(),
                           [](const SyscallProcess* process) { return process->hasDied(); });
    };
    while (!allDied() && timer.elapsed() < grace)
        QThread::msleep(pollTime);
    QList<SyscallProcess*> killed;
    for (SyscallProcess* process : qAsConst(running)) {
        if (!process->hasDied()) {
            killed.append(process);
            process->killGroup();
        }
    }
    for (SyscallProcess* process : qAsConst(running))
        process->waitForFinished(reapTime);
    // Children that their program has not waited for have the rest of the time, as nobody could end them any more.
    const auto isLeft = [](pid_t group) { return group > 0 && ::kill(-group, 0) == 0; };
    while (std::any_of(groups.cbegin(), groups.cend(), isLeft) && timer.elapsed() < grace)
        QThread::msleep(pollTime);
    for (pid_t group : qAsConst(groups)) {
        if (isLeft(group))
            ::kill(-group, SIGKILL);
    }
    return killed;
}

} // namespace nsModSyscall

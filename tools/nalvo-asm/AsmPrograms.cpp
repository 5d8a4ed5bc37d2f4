#include "AsmPrograms.h"

#include "SyscallCommand.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <algorithm>
#include <csignal>
#include <iterator>

#include <fcntl.h>
#include <unistd.h>

namespace nsNalvoAsm {

using namespace nsModSyscall;

namespace {

const int endSignals[] = {SIGHUP, SIGINT, SIGTERM};

int signalPipe[2] = {-1, -1};                   ///< wakes the event loop after a signal
volatile std::sig_atomic_t interruptSignal = 0; ///< the last signal that asked for the end

void noteSignal(int signal)
{
    interruptSignal = signal;
    const char byte = 0;
    // Where the pipe is full, the loop wakes up anyway.
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
}

/// From now on these signals end the programs first.
void watchSignals()
{
    if (signalPipe[0] >= 0 || pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    for (int signal : endSignals) {
        struct sigaction old = {};
        sigaction(signal, nullptr, &old);
        // What whoever started the run wants to be ignored stays ignored, as under nohup.
        if (old.sa_handler == SIG_IGN)
            continue;
        struct sigaction action = {};
        action.sa_handler = noteSignal;
        sigaction(signal, &action, nullptr);
    }
}

} // namespace

AsmPrograms::AsmPrograms(const SyscallConfig& config, const QDir& prjDir, ModMsgHookIf& msg)
    : m_config(config)
    , m_prjDir(prjDir)
    , m_sequence(config, *this, m_messages)
{
    m_messages.modMsgHook = &msg;
    for (SyscallProcess& process : m_processes)
        process.setOutputToStderr();
}

bool AsmPrograms::run(eEvent_t event)
{
    return m_sequence.run(event);
}

void AsmPrograms::leaveOut(eEvent_t event)
{
    const bool anyBound =
        std::any_of(std::begin(m_config.programs), std::end(m_config.programs), [event](const SyscallRecord& program) {
            return program.en && SyscallSequence::isBound(program, event);
        });
    if (anyBound)
        m_messages.signMsg(SyscallMsgHndlr::infoLeftOut);
}

void AsmPrograms::finish()
{
    for (SyscallProcess& process : m_processes)
        waitFor(&process);
    endIfInterrupted();
}

QString AsmPrograms::executableInfo(int index)
{
    return m_config.programs[index].exe + ' ' + m_config.programs[index].arg;
}

bool AsmPrograms::start(int index)
{
    watchSignals();
    return m_processes[index].start(SyscallCommand::of(m_config.programs[index], m_prjDir));
}

SyscallPrograms::eEnd_t AsmPrograms::wait(int index)
{
    waitFor(&m_processes[index]);
    return m_processes[index].exitStatus() == QProcess::NormalExit ? endExited : endCrashed;
}

void AsmPrograms::waitFor(SyscallProcess* process)
{
    if (process->isRunning()) {
        QEventLoop loop;
        QSocketNotifier interrupted(signalPipe[0], QSocketNotifier::Read);
        QObject::connect(&interrupted, &QSocketNotifier::activated, &loop, &QEventLoop::quit);
        QObject::connect(process, &QProcess::stateChanged, &loop, [&loop](QProcess::ProcessState state) {
            if (state == QProcess::NotRunning)
                loop.quit();
        });
        loop.exec();
    }
    endIfInterrupted();
}

/// Ends the programs, then this one by the signal itself, as whoever sent it expects.
void AsmPrograms::endIfInterrupted()
{
    if (interruptSignal == 0)
        return;
    QList<SyscallProcess*> processes;
    for (SyscallProcess& process : m_processes)
        processes.append(&process);
    SyscallProcess::endAll(processes);
    std::signal(interruptSignal, SIG_DFL);
    std::raise(interruptSignal);
}

} // namespace nsNalvoAsm

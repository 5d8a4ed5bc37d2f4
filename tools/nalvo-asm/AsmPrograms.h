#pragma once

#include "SyscallConfig.h"
#include "SyscallMsgHndlr.h"
#include "SyscallProcess.h"
#include "SyscallSequence.h"

#include <QDir>

class ModMsgHookIf;

namespace nsNalvoAsm {

/// Runs the external programs of a project as the window does, with what they write on standard error.
///
/// A signal that ends this program ends those that run, too.
class AsmPrograms : private nsModSyscall::SyscallPrograms
{
public:
    /// @param config, msg not owned
    /// @param prjDir folder of the project file
    AsmPrograms(const nsModSyscall::SyscallConfig& config, const QDir& prjDir, ModMsgHookIf& msg);

    /// Runs the programs of the event. @return false: one of them has failed, and the project wants to stop then
    bool run(nsModSyscall::eEvent_t event);
    /// Reports that the programs of the event, if there are any, do not run.
    void leaveOut(nsModSyscall::eEvent_t event);
    /// Waits for the programs that nobody has waited for, whatever their results are.
    void finish();

private:
    // SyscallPrograms
    bool hasProgram(int index) override { return m_config.programs[index].en; }
    QString executableInfo(int index) override;
    bool isRunning(int index) override { return m_processes[index].isRunning(); }
    bool start(int index) override;
    eEnd_t wait(int index) override;
    int exitCode(int index) override { return m_processes[index].exitCode(); }

    void waitFor(nsModSyscall::SyscallProcess* process);
    void endIfInterrupted();

    const nsModSyscall::SyscallConfig& m_config;
    QDir m_prjDir;
    nsModSyscall::SyscallMsgHndlr m_messages;
    nsModSyscall::SyscallSequence m_sequence;
    nsModSyscall::SyscallProcess m_processes[nsModSyscall::programCount];
};

} // namespace nsNalvoAsm

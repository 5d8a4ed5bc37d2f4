#include "SyscallSequence.h"

#include "SyscallMsgHndlr.h"

namespace nsModSyscall {

bool SyscallSequence::isBound(const SyscallRecord& record, eEvent_t event)
{
    switch (event) {
    case eEventButton1:
        return record.execEventBut1;
    case eEventButton2:
        return record.execEventBut2;
    case eEventSave:
        return record.execEventSave;
    }
    return false;
}

bool SyscallSequence::run(eEvent_t event)
{
    bool anyRan = false;
    for (int index = 0; index < programCount; ++index) {
        if (!m_programs.hasProgram(index) || !isBound(m_config.programs[index], event))
            continue;
        anyRan = true;
        m_messages.signMsgGroup(SyscallMsgHndlr::grpSyscall, QString::number(index + 1),
                                m_programs.executableInfo(index));
        const bool goesOn = runProgram(index);
        m_messages.closeGroup(goesOn);
        if (!goesOn)
            return false;
    }
    if (!anyRan)
        m_messages.signMsg(SyscallMsgHndlr::infoNothingTodo);
    return true;
}

bool SyscallSequence::runProgram(int index)
{
    if (index < 0 || index >= programCount || !m_programs.hasProgram(index)) {
        m_messages.signMsg(SyscallMsgHndlr::errCanNotStart);
        return false;
    }
    if (m_programs.isRunning(index)) {
        m_messages.signMsg(SyscallMsgHndlr::errExeAlreadyRunning);
        return false;
    }
    // What holds is what the settings are now: they can change before the end of the program.
    const SyscallRecord record = m_config.programs[index];
    switch (m_programs.mayRun(index)) {
    case SyscallPrograms::permissionGiven:
        return runAllowed(index, record);
    case SyscallPrograms::permissionRefused:
        m_messages.signMsg(SyscallMsgHndlr::errNotAllowed, QString::number(index + 1));
        return !record.abortIfNoSuccess;
    case SyscallPrograms::permissionUnasked:
        return !record.abortIfNoSuccess;
    case SyscallPrograms::permissionGone:
        break;
    }
    return false;
}

bool SyscallSequence::runAllowed(int index, const SyscallRecord& record)
{
    // It may have been started while the user was asked.
    if (m_programs.isRunning(index)) {
        m_messages.signMsg(SyscallMsgHndlr::errExeAlreadyRunning);
        return false;
    }
    if (!m_programs.start(index)) {
        m_messages.signMsg(SyscallMsgHndlr::errCanNotStart);
        return false;
    }
    return !record.blockingModeEn || waitFor(index, record);
}

bool SyscallSequence::waitFor(int index, const SyscallRecord& record)
{
    m_messages.signMsg(SyscallMsgHndlr::infoWaiting);
    m_programs.showProgram(index);
    const SyscallPrograms::eEnd_t end = m_programs.wait(index);
    if (end == SyscallPrograms::endGone)
        return false;
    if (end == SyscallPrograms::endExited && m_programs.exitCode(index) == record.retValOfSuccess) {
        m_messages.signMsg(SyscallMsgHndlr::infoExitWithSuccess);
        return true;
    }
    m_messages.signMsg(SyscallMsgHndlr::errExitWithoutSuccess);
    return !record.abortIfNoSuccess;
}

} // namespace nsModSyscall

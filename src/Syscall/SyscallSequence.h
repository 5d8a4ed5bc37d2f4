#pragma once

#include "SyscallConfig.h"
#include "SyscallEvent.h"

#include <QString>

namespace nsModSyscall {

class SyscallMsgHndlr;

/// Who runs the programs of a project: the window with its monitors, or a program without a window.
///
/// Events may be handled during mayRun() and wait(): the settings can change there, and the project can be closed.
class SyscallPrograms
{
public:
    enum ePermission_t {
        permissionGiven,
        permissionRefused,
        permissionUnasked, ///< nobody could be asked, which has been reported
        permissionGone     ///< the project, or the program, is no longer there
    };
    enum eEnd_t {
        endExited,  ///< it ended by itself: exitCode() has its return value
        endCrashed, ///< it was ended by a signal, or was taken away
        endGone     ///< the project is no longer there, or this program ends
    };

    virtual ~SyscallPrograms() = default;

    /// Is the program enabled?
    virtual bool hasProgram(int index) = 0;
    /// What is executed, for the user.
    virtual QString executableInfo(int index) = 0;
    virtual bool isRunning(int index) = 0;
    /// May the command of the project be executed? Asks the user where that is not known.
    virtual ePermission_t mayRun(int) { return permissionGiven; }
    /// @return false: it could not be started
    virtual bool start(int index) = 0;
    /// The program is going to be waited for: it is what the user wants to see.
    virtual void showProgram(int) {}
    /// Waits for the end of the program.
    virtual eEnd_t wait(int index) = 0;
    /// Return value of a program that has exited.
    virtual int exitCode(int index) = 0;
};

/// Runs the external programs of an event, one after the other, and reports.
class SyscallSequence
{
public:
    /// Nothing is owned; all three must outlive the object.
    /// @param config read at each program
    SyscallSequence(const SyscallConfig& config, SyscallPrograms& programs, SyscallMsgHndlr& messages)
        : m_config(config)
        , m_programs(programs)
        , m_messages(messages)
    {
    }

    /// Has an enabled program this event? An unknown event has none.
    static bool isBound(const SyscallRecord& record, eEvent_t event);

    /// Runs the programs of the event, up to the first that stops the chain.
    /// @return false: the caller is to stop, too
    bool run(eEvent_t event);
    /// Runs one program, whatever its events are.
    /// @return false: the chain is to stop
    bool runProgram(int index);

private:
    bool runAllowed(int index, const SyscallRecord& record);
    bool waitFor(int index, const SyscallRecord& record);

    const SyscallConfig& m_config;
    SyscallPrograms& m_programs;
    SyscallMsgHndlr& m_messages;
};

} // namespace nsModSyscall

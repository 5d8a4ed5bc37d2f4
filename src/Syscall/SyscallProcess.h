#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QProcess>

namespace nsModSyscall {

struct SyscallCommand;

/// One external program in a process group of its own, which its children belong to: to end the program ends the
/// children that it waits for, too. The program does not outlive this program.
class SyscallProcess : public QProcess
{
    Q_OBJECT

public:
    /// What a process has to end before it is ended by force, in milliseconds.
    static const int usualGrace = 500;

    explicit SyscallProcess(QObject* parent = nullptr);
    /// A program that still runs is killed.
    ~SyscallProcess() override;

    /// Both outputs of the program go where standard error goes, as they come, and its input is empty.
    void setOutputToStderr();
    /// Starts the program and waits for the start.
    /// @return false: it could not be started
    bool start(const SyscallCommand& command);
    bool isRunning() const { return state() != NotRunning; }

    /// The signals that end, for the program and its children. They return at once.
    void terminateGroup();
    void killGroup();
    /// Ends programs: asks them all first, and kills those that have not ended in time. Their output is lost. It
    /// returns after the grace time at the latest, however much they write. Children that they have left behind end
    /// with them.
    /// @param grace milliseconds, for all of them together
    /// @return those that had to be killed
    static QList<SyscallProcess*> endAll(const QList<SyscallProcess*>& processes, int grace = usualGrace);

protected:
    void setupChildProcess() override;

private:
    void signalGroup(int signal);
    bool hasDied() const;

    bool m_outputToStderr = false;
};

} // namespace nsModSyscall

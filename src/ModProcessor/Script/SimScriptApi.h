#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace nsProc {
class ProcShell;
class ProcSim;
struct sSimBoundedRun_t;
} // namespace nsProc

namespace nsModProcessor {

class ModProcessor;

/// The simulator of the attached processor as scripts see it, under the name "simulator".
///
/// The object lives as long as the program: it leads to whatever processor is attached at the moment. Except for
/// isEnabled(), enable() and disable(), each operation is a script error while the simulator is not enabled, and while
/// a run of the user is in progress. So is an argument outside of its range.
class SimScriptApi : public QObject
{
    Q_OBJECT

public:
    /// How many instructions a run has at the most, if the script names no number.
    static constexpr int defaultCount = 1000000;

    /// @param module not owned, must outlive this
    explicit SimScriptApi(ModProcessor* module);

    Q_INVOKABLE bool isEnabled() const;
    /// Enables the simulator at the start of the assembled program. One that is enabled stays as it is.
    /// @return false: there is no program, which was reported as a message
    Q_INVOKABLE bool enable();
    /// Disables the simulator; one that is not enabled stays so.
    Q_INVOKABLE void disable();

    /// State and devices as they are at the start; the clock count goes on.
    Q_INVOKABLE void reset();
    /// Executes instructions; breakpoints are passed over.
    /// @param count from 1 on
    /// @return how many were executed
    Q_INVOKABLE int step(int count = 1);
    /// Executes instructions up to a breakpoint, a message of the simulator, or the number.
    /// @return how many were executed
    Q_INVOKABLE int run(int count = defaultCount);
    /// The same, but also ends before the next execution of the instruction that the label stands at. At least one
    /// instruction is executed.
    /// @param label with namespace and "::" where it has one
    /// @return the instruction was reached
    Q_INVOKABLE bool runTo(const QString& label, int count = defaultCount);
    /// The same with the first instruction at or below a line.
    /// @param file of the project, absolute or relative to its folder
    /// @param line from 1 on
    Q_INVOKABLE bool runToLine(const QString& file, int line, int count = defaultCount);
    /// Why the last run or step has ended: "count", "target", "breakpoint", "message" (of the simulator, which says
    /// why), "stopped" (by the user); empty before the first one.
    Q_INVOKABLE QString endReason() const { return m_endReason; }

    /// Address of the next instruction, within its page; -1 if there is none.
    Q_INVOKABLE int pc() const;
    /// @param addr of the page that the program is in
    /// @return false: no instruction stands there, which was reported as a message
    Q_INVOKABLE bool setPc(int addr);
    /// Source of the next instruction; empty, and 0, if there is none.
    Q_INVOKABLE QString file() const;
    Q_INVOKABLE int line() const;

    /// Names of the registers of a bank, such as "s0".
    Q_INVOKABLE QStringList regNames() const;
    /// @param name with or without capitals
    /// @return 0 to 255, in the bank that is selected
    Q_INVOKABLE int reg(const QString& name) const;
    /// @param bank 0, 1
    Q_INVOKABLE int reg(const QString& name, int bank) const;
    /// @param value 0 to 255
    Q_INVOKABLE void setReg(const QString& name, int value);
    Q_INVOKABLE void setReg(const QString& name, int value, int bank);
    Q_INVOKABLE int bank() const;
    Q_INVOKABLE void setBank(int bank);
    Q_INVOKABLE bool carry() const;
    Q_INVOKABLE void setCarry(bool set);
    Q_INVOKABLE bool zero() const;
    Q_INVOKABLE void setZero(bool set);
    /// Bytes of the scratchpad.
    Q_INVOKABLE int scratchpadSize() const;
    Q_INVOKABLE int scratchpad(int addr) const;
    Q_INVOKABLE void setScratchpad(int addr, int value);
    /// Number of calls that have not returned.
    Q_INVOKABLE int callDepth() const;
    /// Sets or takes back a pending interrupt, if interrupts are enabled.
    Q_INVOKABLE void interrupt();
    /// Clock cycles since the count was cleared.
    Q_INVOKABLE double clocks() const;

private:
    nsProc::ProcShell* shell() const;
    /// The simulator, if a script may use it now; null after a script error.
    nsProc::ProcSim* sim() const;
    void execute(nsProc::sSimBoundedRun_t* run, int count);
    /// Number of a register, -1 after a script error.
    int regOf(const nsProc::ProcSim* sim, const QString& name, int bank) const;
    bool isByte(int value) const;
    void fail(const QString& text) const;

    ModProcessor* m_module;
    QString m_endReason;
};

} // namespace nsModProcessor

#pragma once

#include "SyscallCommand.h"
#include "SyscallOutput.h"
#include "SyscallProcess.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace nsModSyscall {

/// The monitor of one external program: runs it, shows its output and its state, takes its input.
///
/// The view gets the output in slices between two turns of the event loop, so that a program that writes without end
/// neither blocks the window nor fills the memory.
class SyscallMonWidget : public QWidget
{
    Q_OBJECT

public:
    static constexpr int sliceSize = 1 << 14; ///< characters of output that are shown at a time

    explicit SyscallMonWidget(QWidget* parent = nullptr);
    /// A program that still runs is killed.
    ~SyscallMonWidget() override;

    /// What the user has set, which the next run executes in the current folder. A running program goes on as it was
    /// started.
    void setConfig(QString exe, QString arg, QString comment);
    /// What the next run executes, to the letter.
    void setCommand(const SyscallCommand& command) { m_command = command; }
    const SyscallCommand& command() const { return m_command; }
    /// Program and arguments, for the user.
    QString executableInfo() const;

    /// Starts the program with an empty output.
    /// @return false: it could not be started
    bool run();
    /// Waits for the end of the program, and handles events meanwhile: this object may be deleted when it returns.
    /// @param msecs to wait at the most, in milliseconds
    /// @return true: there is nothing to wait for any more, as the program has ended, or this object or the whole
    /// application is on its way out
    bool waitForFinished(int msecs);
    /// 0: starting or running, 1: has exited or was never started, 2: has crashed.
    int state() const;
    int exitCode() const { return m_process->exitCode(); }

    /// For whoever ends the program.
    SyscallProcess* process() const { return m_process; }
    /// Is an operation of this object in progress, so that it must not be deleted at once?
    bool isBusy() const { return m_busy > 0; }
    void setBusy(bool busy) { m_busy += busy ? 1 : -1; }

signals:
    /// The user wants to change what is run.
    void configRequest(SyscallMonWidget* monitor);
    /// The user wants to run the program.
    void startRequest(SyscallMonWidget* monitor);
    /// There is new output.
    void contentChanged(QWidget* widget);

private slots:
    void handleProcessStateChanged(QProcess::ProcessState state);
    void handleProcessFinished(int code, QProcess::ExitStatus status);
    void handleProcessError(QProcess::ProcessError error);
    void readStandardOutput();
    void readStandardError();
    void showOutput();
    void send();
    void terminate();
    void kill();

private:
    void setupProcess();
    void setupFields();
    void setupLayout();
    QPushButton* makeButton(const QString& text, const QString& name, const QString& toolTip);
    void takeOutput(SyscallOutput::eStream_t stream, const QByteArray& bytes);

    SyscallProcess* m_process;
    SyscallCommand m_command;
    SyscallOutput m_text;
    QTimer m_showTimer; ///< runs while there is text that the view has not got
    int m_busy = 0;
    QLineEdit* m_comment = nullptr;
    QPushButton* m_configure = nullptr;
    QPushButton* m_start = nullptr;
    QPushButton* m_terminate = nullptr;
    QPushButton* m_kill = nullptr;
    QLineEdit* m_program = nullptr;
    QLabel* m_status = nullptr;
    QPlainTextEdit* m_output = nullptr;
    QLineEdit* m_input = nullptr;
    QPushButton* m_send = nullptr;
};

} // namespace nsModSyscall

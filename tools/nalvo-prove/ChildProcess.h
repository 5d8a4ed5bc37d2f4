#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

namespace nsNalvoProve {

/// A tool that is run to its end, together with whatever it starts itself. It ends with this process, and with the
/// signal that ends a run.
class ChildProcess : private QProcess
{
public:
    enum eEnd_t {
        endExit,       ///< by itself: see exitStatus()
        endDied,       ///< by a signal, see failure()
        endNotStarted, ///< see failure()
        endTime,       ///< it has used up its processor time
        endStopped,    ///< the signal has come
        endRefused,    ///< the reader of the output has had enough
    };

    ChildProcess() = default;
    ~ChildProcess() override;

    /// @param seconds of processor time that it may take
    /// @param takeLine gets each line of standard output, and of standard error, without its end; false ends the
    /// process
    eEnd_t run(const QString& program, const QStringList& arguments, const QString& folder, int seconds,
               const std::function<bool(const QByteArray&)>& takeLine);
    int exitStatus() const { return exitCode(); }
    /// Why it has not started, or which signal has ended it.
    QString failure() const;

protected:
    void setupChildProcess() override;

private:
    void killAll();
    bool takeLines(const std::function<bool(const QByteArray&)>& takeLine, bool all);

    int m_seconds = 0;
    qint64 m_group = 0; ///< of processes
    QByteArray m_text;
};

} // namespace nsNalvoProve

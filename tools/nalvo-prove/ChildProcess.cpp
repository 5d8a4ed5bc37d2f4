#include "ChildProcess.h"

#include "SimStop.h"

#include <QProcessEnvironment>

#include <algorithm>
#include <csignal>
#include <cstring>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace nsNalvoProve {

namespace {

const int lookAgain = 50; ///< ms between two looks at the signal
const int longestLine = 1 << 16;

} // namespace

ChildProcess::~ChildProcess()
{
    killAll();
}

/// In the child, between fork and exec: system calls alone.
void ChildProcess::setupChildProcess()
{
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // At the first limit it gets a signal of its own, which tells this from whatever else ends it.
    rlimit time = {};
    getrlimit(RLIMIT_CPU, &time);
    time.rlim_cur = std::min(time.rlim_cur, rlim_t(m_seconds));
    time.rlim_max = std::min(time.rlim_max, rlim_t(m_seconds) + 2);
    setrlimit(RLIMIT_CPU, &time);
    const rlimit none = {0, 0};
    setrlimit(RLIMIT_CORE, &none);
    std::signal(SIGPIPE, SIG_DFL);
}

void ChildProcess::killAll()
{
    if (m_group > 0)
        ::kill(-pid_t(m_group), SIGKILL);
    m_group = 0;
    if (state() != NotRunning)
        waitForFinished(-1);
}

QString ChildProcess::failure() const
{
    const bool isEnded = error() == Crashed && exitCode() != 0;
    return isEnded ? QString::fromLocal8Bit(strsignal(exitCode())) : errorString();
}

bool ChildProcess::takeLines(const std::function<bool(const QByteArray&)>& takeLine, bool all)
{
    m_text += readAllStandardOutput();
    int from = 0;
    for (int end = m_text.indexOf('\n'); end >= 0; end = m_text.indexOf('\n', from)) {
        if (!takeLine(m_text.mid(from, end - from)))
            return false;
        from = end + 1;
    }
    m_text.remove(0, from);
    if (!all && m_text.size() <= longestLine)
        return true;
    const QByteArray rest = m_text;
    m_text.clear();
    return rest.isEmpty() || takeLine(rest);
}

ChildProcess::eEnd_t ChildProcess::run(const QString& program, const QStringList& arguments, const QString& folder,
                                       int seconds, const std::function<bool(const QByteArray&)>& takeLine)
{
    m_seconds = seconds;
    setWorkingDirectory(folder);
    setProcessChannelMode(MergedChannels);
    setStandardInputFile(nullDevice());
    // Its temporary files go with the folder.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"TMPDIR", "TMP", "TEMP"})
        environment.insert(name, folder);
    setProcessEnvironment(environment);
    start(program, arguments);
    if (!waitForStarted(-1))
        return endNotStarted;
    m_group = processId();
    bool wanted = true;
    while (wanted && state() != NotRunning) {
        if (nsBatch::isStopRequested()) {
            killAll();
            return endStopped;
        }
        waitForReadyRead(lookAgain);
        wanted = takeLines(takeLine, false);
    }
    if (!wanted) {
        killAll();
        return endRefused;
    }
    const bool isTaken = takeLines(takeLine, true);
    killAll();
    if (!isTaken)
        return endRefused;
    if (QProcess::exitStatus() == NormalExit)
        return endExit;
    // QProcess gives the signal as the exit code.
    return exitCode() == SIGXCPU ? endTime : endDied;
}

} // namespace nsNalvoProve

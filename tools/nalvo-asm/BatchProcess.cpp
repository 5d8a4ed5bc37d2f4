#include "BatchProcess.h"

#include "BatchOutput.h"

#include <QCoreApplication>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace nsNalvoAsm {

namespace {

// Time stamps have years of four digits.
const qint64 firstEpoch = -62135596800; ///< 0001-01-01 00:00:00
const qint64 lastEpoch = 253402300799;  ///< 9999-12-31 23:59:59

/// Opens what is closed of the standard streams, the wrong way round: reading and writing go on to fail.
void occupyStandardStreams()
{
    for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd) {
        if (fcntl(fd, F_GETFD) >= 0)
            continue;
        // The lowest free number is the one that is missing.
        if (open("/dev/null", fd == STDIN_FILENO ? O_WRONLY : O_RDONLY) != fd)
            return;
    }
}

} // namespace

void setupProcess()
{
    occupyStandardStreams();
    std::signal(SIGPIPE, SIG_IGN);
    // What the libraries have to say about the environment is no message of a run.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

bool checkSourceDateEpoch()
{
    const QByteArray text = qgetenv("SOURCE_DATE_EPOCH");
    if (text.isEmpty())
        return true;
    bool ok = false;
    const qint64 epoch = text.toLongLong(&ok);
    if (ok && epoch >= firstEpoch && epoch <= lastEpoch)
        return true;
    printComplaint(QCoreApplication::translate("nalvo-asm", "SOURCE_DATE_EPOCH is no time in seconds since 1970: %1")
                       .arg(QString::fromLocal8Bit(text)));
    return false;
}

} // namespace nsNalvoAsm

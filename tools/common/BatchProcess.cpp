#include "BatchProcess.h"

#include "BatchOutput.h"
#include "Release.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace nsBatch {

namespace {

const int smallPage = 4 << 10;     ///< bytes
const int largePage = 2 << 20;     ///< bytes
const int memoryStep = 4 << 20;    ///< bytes that are asked of the system at a time
const int largestBlock = 32 << 20; ///< bytes; larger blocks have a mapping of their own

// Time stamps have years of four digits.
const qint64 firstEpoch = -62135596800; ///< 0001-01-01 00:00:00
const qint64 lastEpoch = 253402300799;  ///< 9999-12-31 23:59:59

/// Opens the standard streams that are closed, in the wrong direction: reading and writing still fail.
void occupyStandardStreams()
{
    for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd) {
        if (fcntl(fd, F_GETFD) >= 0)
            continue;
        // open() returns the lowest free number, which is the missing one.
        if (open("/dev/null", fd == STDIN_FILENO ? O_WRONLY : O_RDONLY) != fd)
            return;
    }
}

/// Takes the memory of a short run in few large steps, the first of them one large page where the system has one, and
/// gives none of it back: page by page it would take a fifth of the run.
void setupMemory()
{
    mallopt(M_TOP_PAD, memoryStep);
    mallopt(M_TRIM_THRESHOLD, largestBlock);
    mallopt(M_MMAP_THRESHOLD, largestBlock);
    // The heap goes on a little in front of a large page, whose first byte is not touched before the system knows of
    // it.
    const quintptr end = reinterpret_cast<quintptr>(sbrk(0));
    const quintptr page = (end + smallPage + largePage - 1) & ~quintptr(largePage - 1);
    if (sbrk(qintptr(page - smallPage - end)) != reinterpret_cast<void*>(end))
        return;
    void* volatile block = std::malloc(largePage + smallPage);
    if (reinterpret_cast<quintptr>(sbrk(0)) >= page + largePage)
        madvise(reinterpret_cast<void*>(page), largePage, MADV_HUGEPAGE);
    std::free(block);
}

/// Makes the process safe to run in any surroundings: before anything else in main().
///
/// - A standard stream that is closed stays unusable; otherwise the first opened file would get its number.
/// - If the reader of the messages ends early, the run still completes its output files.
void setupProcess()
{
    setupMemory();
    occupyStandardStreams();
    std::signal(SIGPIPE, SIG_IGN);
    // Messages of the libraries about the environment are suppressed.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

} // namespace

int runProgram(const char* program, int argc, char** argv, int (*run)(const QStringList& arguments))
{
    setupProcess();
    setProgramName(program);
    // The application object gets only the program's name, so that it does not interpret options of its own.
    QByteArray name(program);
    char* names[] = {name.data(), nullptr};
    int count = 1;
    QCoreApplication application(count, names);
    QCoreApplication::setApplicationVersion(Release::own().text());
    QStringList arguments = {QString::fromLatin1(program)};
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return run(arguments);
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
    printError(QCoreApplication::translate("nsBatch", "SOURCE_DATE_EPOCH is no time in seconds since 1970: %1")
                   .arg(QString::fromLocal8Bit(text)));
    return false;
}

} // namespace nsBatch

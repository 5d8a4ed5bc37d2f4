// nalvo-import: makes projects of programs for other assemblers, and of images of programs.

#include "ImportOptions.h"
#include "ImportRun.h"
#include "RescueRun.h"

#include "BatchOutput.h"
#include "BatchProcess.h"

#include <QCoreApplication>

namespace {

using namespace nsBatch;
using namespace nsNalvoImport;

enum eExitStatus_t { exitImported = 0, exitNotImported = 1, exitWrongUsage = 2 };

/// The exit status; a failure if standard output could not be written.
int finish(int status)
{
    const QString failure = stdoutFailure();
    if (failure.isEmpty())
        return status;
    printError(QCoreApplication::translate("nalvo-import", "Can not write standard output: %1").arg(failure));
    return status == exitImported ? exitNotImported : status;
}

int program(const QStringList& arguments)
{
    ImportOptions options;
    switch (options.parse(arguments)) {
    case ImportOptions::parseEnd:
        return finish(exitImported);
    case ImportOptions::parseWrong:
        return exitWrongUsage;
    case ImportOptions::parseRun:
        break;
    }
    if (!checkSourceDateEpoch())
        return exitWrongUsage;
    const bool done = options.image.isEmpty() ? ImportRun(options).run() : RescueRun(options).run();
    return finish(done ? exitImported : exitNotImported);
}

} // namespace

int main(int argc, char** argv)
{
    return runProgram("nalvo-import", argc, argv, program);
}

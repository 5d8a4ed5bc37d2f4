// nalvo-sim: runs a project in the simulator without a window, for continuous integration and comparison with hardware.

#include "BatchOutput.h"
#include "BatchProcess.h"
#include "SimOptions.h"
#include "SimRun.h"
#include "SimStop.h"

#include <QCoreApplication>

namespace {

using namespace nsBatch;
using namespace nsNalvoSim;

/// The exit status; a failure if help or version could not be printed.
int finish()
{
    const QString failure = stdoutFailure();
    if (failure.isEmpty())
        return exitReached;
    printError(QCoreApplication::translate("nalvo-sim", "Can not write standard output: %1").arg(failure));
    return exitWrongUsage;
}

int program(const QStringList& arguments)
{
    SimOptions options;
    switch (options.parse(arguments)) {
    case SimOptions::parseEnd:
        return finish();
    case SimOptions::parseWrong:
        return exitWrongUsage;
    case SimOptions::parseRun:
        break;
    }
    if (!checkSourceDateEpoch())
        return exitWrongUsage;
    catchStopSignal();
    return SimRun(options).run();
}

} // namespace

int main(int argc, char** argv)
{
    return runProgram("nalvo-sim", argc, argv, program);
}

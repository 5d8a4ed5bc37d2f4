// nalvo-prove: runs a project on the source of the core and in the simulation exactly as the core, and compares the
// two.

#include "BatchOutput.h"
#include "BatchProcess.h"
#include "ProveOptions.h"
#include "ProveRun.h"
#include "SimStop.h"

#include <QCoreApplication>

namespace {

using namespace nsBatch;
using namespace nsNalvoProve;

/// The exit status; a failure if help or version could not be printed.
int finish()
{
    const QString failure = stdoutFailure();
    if (failure.isEmpty())
        return exitEqual;
    printError(QCoreApplication::translate("nalvo-prove", "Can not write standard output: %1").arg(failure));
    return exitNothingProved;
}

int program(const QStringList& arguments)
{
    ProveOptions options;
    switch (options.parse(arguments)) {
    case ProveOptions::parseEnd:
        return finish();
    case ProveOptions::parseWrong:
        return exitNothingProved;
    case ProveOptions::parseRun:
        break;
    }
    if (!checkSourceDateEpoch())
        return exitNothingProved;
    catchStopSignal(true);
    return ProveRun(options).run();
}

} // namespace

int main(int argc, char** argv)
{
    return runProgram("nalvo-prove", argc, argv, program);
}

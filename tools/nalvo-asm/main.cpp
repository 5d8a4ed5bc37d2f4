// nalvo-asm: assembles a project as the window does, for makefiles and continuous integration.

#include "BatchMsg.h"
#include "BatchOptions.h"
#include "BatchReport.h"

#include "ModAsmFe.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ModSources.h"
#include "ModulePhases.h"
#include "Release.h"

#include <QApplication>

namespace {

using namespace nsNalvoAsm;

enum eExitStatus_t { exitAssembled = 0, exitNotAssembled = 1, exitWrongUsage = 2 };

/// The modules that a run without a window needs. They find one another as in the window; whoever asks for a module that is not
/// here gets none and does without it.
struct Modules
{
    explicit Modules(const BatchOptions& options) : msg(options)
    {
        for (ModPluginIf* module : std::initializer_list<ModPluginIf*>{&msg, &prj, &sources, &processor, &asmFe})
            phases.append(module);
        phases.start();
        // The run is started below, once, and not by the opening of the project.
        asmFe.setAssembleOnChange(false);
    }

    BatchMsg msg;
    nsModPrj::ModPrj prj;
    nsModSources::ModSources sources;
    nsModAsmFe::ModAsmFe asmFe;
    nsModProcessor::ModProcessor processor;
    ModulePhases phases;
};

int countInstructions(nsModAsmFe::ModAsmFe& asmFe)
{
    return asmFe.opcodeList()->count();
}

bool writeReports(const BatchOptions& options, nsModAsmFe::ModAsmFe* asmFe)
{
    bool success = true;
    if (!options.listingFile.isEmpty())
        success = writeReport(options.listingFile, listingText(asmFe)) && success;
    if (!options.symbolsFile.isEmpty())
        success = writeReport(options.symbolsFile, symbolsText(asmFe)) && success;
    return success;
}

int run(const BatchOptions& options)
{
    // The process ends with the run: taking a large program apart piece by piece would only cost time.
    static Modules& modules = *new Modules(options);
    if (!modules.prj.openPrj(QFileInfo(options.project).absoluteFilePath())) {
        modules.msg.showSummary(false, 0, {});
        return exitWrongUsage;
    }
    modules.asmFe.assemble(options.event);
    const bool reported = !modules.asmFe.isAssembled() || writeReports(options, &modules.asmFe);
    // A run that has reported an error counts as failed, even where the assembler could go on.
    const bool success = modules.asmFe.runSucceeded() && reported && modules.msg.errors() == 0 &&
                         !(options.werror && modules.msg.warnings() > 0);
    modules.msg.showSummary(success, countInstructions(modules.asmFe), modules.asmFe.writtenFiles());
    return success ? exitAssembled : exitNotAssembled;
}

} // namespace

int main(int argc, char** argv)
{
    // What the libraries have to say about the environment is no message of a run.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("nalvo-asm"));
    QCoreApplication::setApplicationVersion(QStringLiteral(NALVO_RELEASE));
    BatchOptions options;
    switch (options.parse(QCoreApplication::arguments())) {
    case BatchOptions::parseEnd:
        return exitAssembled;
    case BatchOptions::parseWrong:
        return exitWrongUsage;
    case BatchOptions::parseRun:
        break;
    }
    return run(options);
}

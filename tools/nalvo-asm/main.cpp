// nalvo-asm: assembles a project as the window does, for makefiles and continuous integration.

#include "BatchMsg.h"
#include "BatchOptions.h"
#include "BatchOutput.h"
#include "BatchProcess.h"
#include "BatchReport.h"

#include "AsmFeFileHndlr.h"
#include "ModAsmFe.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ModSources.h"
#include "ModulePhases.h"
#include "Release.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace {

using namespace nsNalvoAsm;

enum eExitStatus_t
{
    exitAssembled = 0,
    exitNotAssembled = 1,
    exitWrongUsage = 2
};

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-asm", text);
}

/// The modules that a run without a window needs. They find one another as in the window; whoever asks for a module
/// that is not here gets none and does without it.
struct Modules
{
    explicit Modules(const BatchOptions& options)
        : msg(options)
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

/// Writes the reports that the options ask for, and takes care that no file of the run is lost to one.
class Reports
{
public:
    Reports(Modules* modules, const QString& project)
        : m_modules(modules)
    {
        nsModAsmFe::ModAsmFe& asmFe = modules->asmFe;
        m_taken << project << asmFe.fileHndlr()->files();
        for (const nsModAsmFe::IODev* dev : asmFe.ioDevList()->devices())
            m_taken << dev->vhdlTemplateFile << dev->vhdlTargetFile << dev->verilogTemplateFile
                    << dev->verilogTargetFile << dev->hexTargetFile << dev->memTargetFile;
    }

    bool write(const QString& file, QByteArray (*text)(nsModAsmFe::ModAsmFe*))
    {
        if (file.isEmpty())
            return true;
        if (isTaken(file)) {
            m_modules->msg.showErrorMessage(tr("File of the project would be overwritten: %1").arg(file), QUrl(), {});
            return false;
        }
        const QString failure = writeReport(file, text(&m_modules->asmFe));
        if (!failure.isEmpty()) {
            const QString name = file == "-" ? tr("standard output") : file;
            m_modules->msg.showErrorMessage(tr("Can not write %1: %2").arg(name, failure), QUrl(), {});
            return false;
        }
        if (file != "-")
            m_written.append(QFileInfo(file).absoluteFilePath());
        return true;
    }

    QStringList written() const { return m_written; }

private:
    bool isTaken(const QString& file) const
    {
        const QString canonical = QFileInfo(file).canonicalFilePath();
        return !canonical.isEmpty() && std::any_of(m_taken.cbegin(), m_taken.cend(), [&](const QString& taken) {
            return QFileInfo(taken).canonicalFilePath() == canonical;
        });
    }

    Modules* m_modules;
    QStringList m_taken;
    QStringList m_written;
};

int run(const BatchOptions& options)
{
    // The process ends with the run: taking a large program apart piece by piece would only cost time.
    static Modules& modules = *new Modules(options);
    const QString project = options.project.isEmpty() ? QString() : QFileInfo(options.project).absoluteFilePath();
    if (!modules.prj.openPrj(project)) {
        modules.msg.showSummary(false, 0, {});
        return exitWrongUsage;
    }
    modules.asmFe.assemble(options.event);
    Reports reports(&modules, project);
    if (modules.asmFe.isAssembled()) {
        reports.write(options.listingFile, listingText);
        reports.write(options.symbolsFile, symbolsText);
    }
    // A run that has reported an error counts as failed, even where the assembler could go on.
    const bool success =
        modules.asmFe.runSucceeded() && modules.msg.errors() == 0 && !(options.werror && modules.msg.warnings() > 0);
    modules.msg.showSummary(success, modules.asmFe.opcodeList()->count(),
                            modules.asmFe.writtenFiles() + reports.written());
    return success ? exitAssembled : exitNotAssembled;
}

/// The exit status, worse if not everything came out.
int finish(const BatchOptions& options, int status)
{
    const QString failure = stdoutFailure();
    if (failure.isEmpty())
        return status;
    // A report at standard output has told so itself.
    if (options.listingFile != "-" && options.symbolsFile != "-")
        printComplaint(tr("Can not write standard output: %1").arg(failure));
    return status == exitAssembled ? exitNotAssembled : status;
}

} // namespace

int main(int argc, char** argv)
{
    setupProcess();
    // The application takes the program's name alone: it has options of its own, which are none of ours.
    char name[] = "nalvo-asm";
    char* names[] = {name, nullptr};
    int count = 1;
    QCoreApplication application(count, names);
    QCoreApplication::setApplicationVersion(QStringLiteral(NALVO_RELEASE));
    QStringList arguments = {name};
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    BatchOptions options;
    switch (options.parse(arguments)) {
    case BatchOptions::parseEnd:
        return finish(options, exitAssembled);
    case BatchOptions::parseWrong:
        return exitWrongUsage;
    case BatchOptions::parseRun:
        break;
    }
    return finish(options, checkSourceDateEpoch() ? run(options) : exitWrongUsage);
}

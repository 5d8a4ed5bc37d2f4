// nalvo-asm: assembles a project as the window does, for makefiles and continuous integration.

#include "AsmExplain.h"
#include "AsmFormat.h"
#include "AsmOptions.h"
#include "AsmOutputFiles.h"
#include "AsmPermissions.h"
#include "AsmPrograms.h"
#include "AsmReport.h"
#include "BatchOutput.h"
#include "BatchProcess.h"
#include "BatchProject.h"
#include "ShippedFolder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using namespace nsBatch;
using namespace nsNalvoAsm;

enum eExitStatus_t { exitAssembled = 0, exitNotAssembled = 1, exitWrongUsage = 2 };

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-asm", text);
}

/// Prints the closing line.
void showSummary(const BatchMsg& msg, const BatchMsgStyle& style, bool success, int instructions,
                 const QStringList& files)
{
    if (style.json) {
        QStringList shown;
        for (const QString& file : files)
            shown.append(shownPath(file));
        const QJsonObject object{{"result", success ? "assembled" : "failed"},
                                 {"errors", msg.errors()},
                                 {"warnings", msg.warnings()},
                                 {"instructions", instructions},
                                 {"files", QJsonArray::fromStringList(shown)}};
        printLine(stdout, QJsonDocument(object).toJson(QJsonDocument::Compact));
        return;
    }
    if (style.quiet)
        return;
    QStringList parts;
    parts << (success ? tr("assembled") : tr("failed"));
    parts << (msg.errors() == 1 ? tr("1 error") : tr("%1 errors").arg(msg.errors()));
    parts << (msg.warnings() == 1 ? tr("1 warning") : tr("%1 warnings").arg(msg.warnings()));
    if (msg.fatalWarnings() > 0 && msg.fatalWarnings() < msg.warnings())
        parts.last() += tr(" (as errors: %1)").arg(msg.fatalWarnings());
    else if (msg.fatalWarnings() > 0)
        parts.last() += msg.warnings() == 1 ? tr(" (counts as an error)") : tr(" (count as errors)");
    parts << (instructions == 1 ? tr("1 instruction") : tr("%1 instructions").arg(instructions));
    parts << (files.size() == 1 ? tr("1 file written") : tr("%1 files written").arg(files.size()));
    printError(parts.join(", "));
}

int run(const AsmOptions& options)
{
    BatchProject& project = BatchProject::create(options.style);
    const QString file = options.project.isEmpty() ? QString() : QFileInfo(options.project).absoluteFilePath();
    if (!project.open(file)) {
        showSummary(project.msg(), options.style, false, 0, {});
        return exitWrongUsage;
    }
    nsModAsmFe::Assembler& assembler = project.assembler();
    static AsmPrograms programs(project.programs(), project.dir(), project.msg());
    static AsmPermissions permissions(options.allowOutside, programs, options.externalPrograms);
    assembler.setListener(&permissions);
    const bool assembled = project.assemble(options.event);
    // A run that has reported an error counts as failed, even where the assembler could go on.
    const auto succeeds = [&] {
        return assembled && project.msg().errors() == 0 && project.msg().fatalWarnings() == 0;
    };
    AsmOutputFiles files(project, file);
    if (assembler.isAssembled()) {
        for (const AsmOutputRequest& request : options.outputs)
            files.writeImages(request);
        files.writeReport(options.listingFile, listingText);
        files.writeReport(options.symbolsFile, symbolsText);
    }
    programs.finish();
    // After a failure the outputs need not exist, and the rule of the last success still holds.
    if (succeeds())
        files.writeDepfile(options.depfile, options.depfileTargets);
    const bool success = succeeds();
    showSummary(project.msg(), options.style, success, assembler.program().opcodes.count(),
                assembler.writtenFiles() + files.written());
    return success ? exitAssembled : exitNotAssembled;
}

/// Prints what the help says about a message.
int explain(const QString& key)
{
    AsmExplain help;
    if (!help.read(ShippedFolder::programDir())) {
        printError(help.errorText());
        return exitWrongUsage;
    }
    const QByteArray text = help.explanation(key);
    if (!text.isEmpty()) {
        print(stdout, QString::fromUtf8(text).toLocal8Bit());
        return exitAssembled;
    }
    const QStringList similar = help.similarKeys(key);
    wrongUsage(similar.isEmpty() ? tr("No message has the key %1.").arg(key)
                                 : tr("No message has the key %1. Similar: %2").arg(key, similar.join(", ")));
    return exitWrongUsage;
}

/// The exit status; a failure if standard output could not be written.
int finish(const AsmOptions& options, int status)
{
    const QString failure = stdoutFailure();
    if (failure.isEmpty())
        return status;
    // For a report on standard output, the failure has been reported already.
    if (options.listingFile != "-" && options.symbolsFile != "-" && options.depfile != "-")
        printError(tr("Can not write standard output: %1").arg(failure));
    return status == exitAssembled ? exitNotAssembled : status;
}

int program(const QStringList& arguments)
{
    AsmOptions options;
    switch (options.parse(arguments)) {
    case AsmOptions::parseEnd:
        return finish(options, exitAssembled);
    case AsmOptions::parseWrong:
        return exitWrongUsage;
    case AsmOptions::parseRun:
        break;
    }
    if (!options.explainedKey.isEmpty())
        return finish(options, explain(options.explainedKey));
    if (!options.formattedFile.isEmpty()) {
        const QString failure = formatFile(options.formattedFile, options.inPlace);
        if (!failure.isEmpty())
            printError(failure);
        return finish(options, failure.isEmpty() ? exitAssembled : exitNotAssembled);
    }
    return finish(options, checkSourceDateEpoch() ? run(options) : exitWrongUsage);
}

} // namespace

int main(int argc, char** argv)
{
    return runProgram("nalvo-asm", argc, argv, program);
}

#include "ImportCase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

QString importProblem(const ImportCase& test)
{
    QTemporaryDir folder;
    const QDir dir(folder.path());
    const QString main = foreign::writeProgram(test.program, dir.filePath("foreign"));
    foreign::Options options;
    options.memorySize = test.program.memorySize;
    QStringList errors;
    const foreign::Image image = foreign::assemble(test.dialect, main, options, &errors);
    if (!errors.isEmpty())
        return "the program itself is wrong: " + errors.join("\n");
    // Where the program reads the time of the run, it is the log that tells it.
    bool log = false;
    for (const foreign::SourceFile& source : test.program.files)
        log |= source.text.contains("stamp");
    const QString reference = dir.filePath(log ? "reference.log" : "reference.hex");
    QFile file(reference);
    if (!file.open(QIODevice::WriteOnly))
        return "no reference";
    file.write(log ? foreign::logFile(image, main, options.stamp) : foreign::hexFile(image, options.memorySize));
    file.close();
    const QString result = dir.filePath("result");
    const QStringList arguments = {"-d", dialectOption(test.dialect), "-o", result, "--reference", reference, main};
    const ToolRun run = runTool(NALVO_IMPORT, arguments, folder.path());
    QString problem;
    const QMap<int, quint32> words = assembledProject(result, &problem);
    if (problem.isEmpty())
        problem = differences(image.words, words);
    if (problem.isEmpty() && run.status != 0)
        problem = QString("all words are right, but the exit status is %1").arg(run.status);
    return problem.isEmpty() ? QString() : problem + "\nnalvo-import:\n" + (run.err + run.out).section('\n', 0, 11);
}

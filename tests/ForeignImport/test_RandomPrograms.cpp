// Random programs in foreign dialects: generated, converted, assembled, and compared with the words that the original
// makes. A long run:
//   NALVO_FOREIGN_PROGRAMS=1000 build/release/test_ForeignImport --gtest_filter='*Random*'

#include "ImportRun.h"
#include "RandomForeign.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using foreign::Dialect;

namespace {

unsigned programs()
{
    const QByteArray text = qgetenv("NALVO_FOREIGN_PROGRAMS");
    return text.isEmpty() ? 30 : text.toUInt();
}

class RandomPrograms : public ::testing::TestWithParam<Dialect>
{
protected:
    /// Imports the program of the seed and compares the words.
    /// @return an empty text if all is well
    QString problemOf(unsigned seed);
};

QString RandomPrograms::problemOf(unsigned seed)
{
    QTemporaryDir folder;
    const QDir dir(folder.path());
    const foreign::RandomProgram program = foreign::randomProgram(GetParam(), seed);
    const QString main = foreign::writeProgram(program, dir.filePath("foreign"));
    foreign::Options options;
    options.memorySize = program.memorySize;
    QStringList errors;
    const foreign::Image image = foreign::assemble(GetParam(), main, options, &errors);
    if (!errors.isEmpty())
        return "the program itself is wrong: " + errors.join("\n");
    // Where the program reads the time of the run, it is the log that tells it.
    bool log = false;
    for (const foreign::SourceFile& source : program.files)
        log |= source.text.contains("stamp");
    const QString reference = dir.filePath(log ? "reference.log" : "reference.hex");
    QFile file(reference);
    if (!file.open(QIODevice::WriteOnly))
        return "no reference";
    file.write(log ? foreign::logFile(image, main, options.stamp) : foreign::hexFile(image, options.memorySize));
    file.close();
    const QString result = dir.filePath("result");
    const ToolRun run = runTool(
        NALVO_IMPORT, {"-d", dialectOption(GetParam()), "-o", result, "--reference", reference, main}, folder.path());
    QString said = (run.err + run.out).section('\n', 0, 11);
    QString problem;
    const QMap<int, quint32> words = assembledProject(result, &problem);
    if (problem.isEmpty())
        problem = differences(image.words, words);
    if (problem.isEmpty() && run.status != 0)
        problem = QString("all words are right, but the exit status is %1").arg(run.status);
    return problem.isEmpty() ? QString() : problem + "\nnalvo-import:\n" + said;
}

} // namespace

TEST_P(RandomPrograms, haveTheWordsOfTheOriginal)
{
    int wrong = 0;
    for (unsigned seed = 1; seed <= programs(); ++seed) {
        const QString problem = problemOf(seed);
        if (problem.isEmpty())
            continue;
        ++wrong;
        if (wrong <= 3 || qEnvironmentVariableIsSet("NALVO_FOREIGN_PROGRAMS"))
            ADD_FAILURE() << "seed " << seed << ": " << problem.toStdString();
    }
    EXPECT_EQ(wrong, 0) << "of " << programs() << " programs";
}

INSTANTIATE_TEST_SUITE_P(All, RandomPrograms,
                         ::testing::Values(Dialect::Kcpsm3, Dialect::Kcpsm6, Dialect::PBlazIde, Dialect::Mico8Vendor,
                                           Dialect::Mico8Gnu));

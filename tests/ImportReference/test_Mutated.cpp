// Random programs with faults: a few characters or lines are changed, so that most of them are wrong. What the original
// would still take has its words in the result, or is refused; nothing else becomes a program in silence. With
//   NALVO_FOREIGN_DOUBTS=1 build/release/test_ImportReference --gtest_filter='*Mutated*'
// those are shown that the converter takes and the naive assembler does not.

#include "ImportRun.h"
#include "RandomForeign.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <random>

using foreign::Dialect;

namespace {

#if defined(__SANITIZE_ADDRESS__)
const unsigned shortRun = 6;
#else
const unsigned shortRun = 40;
#endif

/// Changes the program at a few places.
QString mutated(const QByteArray& text, const QByteArray& lineEnd, std::mt19937* random)
{
    static const QStringList pieces = {" ", ",", ";",  ":",  "\"", "'",  "~",  "$",    "#",  "(",
                                       ")", "0", "1F", "s3", "x",  "r3", "'d", "'b",   "+",  "-",
                                       "%", "[", "]",  "&",  ".",  "\t", "=",  "EQU ", "1b", "NZ"};
    const auto below = [random](int count) { return int((*random)() % unsigned(count)); };
    QStringList lines = QString::fromLatin1(text).split(QString::fromLatin1(lineEnd));
    for (int i = 1 + below(2); i > 0; --i) {
        const int line = below(lines.size());
        QString& changed = lines[line];
        const int pos = below(changed.size() + 1);
        switch (below(6)) {
        case 0:
            changed.remove(pos, 1);
            break;
        case 1:
            changed.insert(pos, pieces[below(pieces.size())]);
            break;
        case 2:
            lines.insert(below(lines.size()), QString(changed));
            break;
        case 3:
            lines.removeAt(line);
            break;
        case 4:
            changed = changed.left(pos) + lines[below(lines.size())].mid(pos);
            break;
        default:
            changed.replace(pos, 1, pieces[below(pieces.size())]);
        }
    }
    return lines.join(QString::fromLatin1(lineEnd));
}

class Mutated : public ::testing::TestWithParam<Dialect>
{
};

} // namespace

TEST_P(Mutated, becomeTheSameOrAreRefused)
{
    const QByteArray asked = qgetenv("NALVO_FOREIGN_PROGRAMS");
    const bool showsDoubts = !qgetenv("NALVO_FOREIGN_DOUBTS").isEmpty();
    const unsigned count = asked.isEmpty() ? shortRun : asked.toUInt();
    for (unsigned seed = 1; seed <= count; ++seed) {
        std::mt19937 random(seed);
        // Those with even numbers have plain line ends.
        foreign::RandomProgram program = foreign::randomProgram(GetParam(), 2 * (seed % 50 + 1));
        QByteArray& text = program.files[0].text;
        text = mutated(text, text.contains("\r\n") ? "\r\n" : "\n", &random).toLatin1();
        QTemporaryDir folder;
        const QDir dir(folder.path());
        const QString main = foreign::writeProgram(program, dir.filePath("foreign"));
        foreign::Options options;
        options.memorySize = program.memorySize;
        options.stamp = {1, 2, 3, 0, 1, 2};
        QStringList errors;
        const foreign::Image image = foreign::assemble(GetParam(), main, options, &errors);
        qputenv("SOURCE_DATE_EPOCH", "946774923");
        const QString result = dir.filePath("result");
        const ToolRun run = runTool(NALVO_IMPORT, {"-d", dialectOption(GetParam()), "-o", result, main}, folder.path());
        ASSERT_TRUE(run.status == 0 || run.status == 1) << seed << run.err.toStdString();
        if (run.status == 1) {
            EXPECT_TRUE(run.err.contains("error:")) << seed << run.err.toStdString();
            continue;
        }
        if (!errors.isEmpty()) {
            if (showsDoubts)
                printf("seed %u: %s\n", seed, qPrintable(errors.join("\n   ").left(300)));
            continue;
        }
        QString problem;
        const QMap<int, quint32> words = assembledProject(result, &problem);
        EXPECT_EQ((problem + differences(image.words, words)).toStdString(), "") << "seed " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(All, Mutated,
                         ::testing::Values(Dialect::Kcpsm3, Dialect::Kcpsm6, Dialect::PBlazIde, Dialect::Mico8Vendor,
                                           Dialect::Mico8Gnu));

// The script that runs a program on a core by hand: it has to find out by itself when the core executes its first
// instruction.

#include "CoreWords.h"
#include "Seen.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

namespace {

const QString folder = QStringLiteral(NALVO_CORES_DIR);

struct Result
{
    int code;
    QStringList lines;
    QString errors;
};

Result runCore(const QString& source, const QString& workDir, const QStringList& args)
{
    QProcess process;
    process.start("sh", QStringList{folder + "/run_core.sh", source, workDir} + args);
    process.waitForFinished(-1);
    const QString output = QString::fromLocal8Bit(process.readAllStandardOutput());
    return {process.exitCode(), output.split('\n', Qt::SkipEmptyParts),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

bool write(const QString& name, const QString& text)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) == text.size();
}

QString read(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// A core that comes out of its reset a clock later.
QString slow(Language language)
{
    QString source = read(HdlCore::sourceOf(Core::PicoBlaze3, language));
    if (language == Language::Verilog)
        return source
            .replace("    always @(posedge clk) begin", "    reg late;\n    initial late = 1'b1;\n"
                                                        "    always @(posedge clk) late <= reset;\n"
                                                        "    always @(posedge clk) begin")
            .replace("if (reset) begin", "if (reset || late) begin");
    return source.replace("    signal second ", "    signal late : std_logic := '1';\n    signal second ")
        .replace("    below    <= depth - 1;", "    below    <= depth - 1;\n    late <= reset when rising_edge(clk);")
        .replace("if reset = '1' then", "if reset = '1' or late = '1' then");
}

class RunCore : public testing::TestWithParam<Language>
{
protected:
    void SetUp() override
    {
        if (!HdlCore::isToolThere(GetParam()))
            GTEST_SKIP() << qPrintable(HdlCore::toolOf(GetParam())) << " is not installed";
    }

    QTemporaryDir m_dir;
};

std::string nameOfCase(const testing::TestParamInfo<Language>& info)
{
    return nameOf(info.param);
}

} // namespace

TEST_P(RunCore, clock0IsTheFirstOneOfTheFirstInstructionHoweverLongAResetTakes)
{
    ASSERT_TRUE(write(m_dir.filePath("program.hex"), "3C001\n04105\n2C106\n34001\n"));
    ASSERT_TRUE(write(m_dir.filePath("reads"), "ab\n"));
    ASSERT_TRUE(write(m_dir.filePath("pulses"), "4 1\n"));
    const QStringList args = {"program=" + m_dir.filePath("program.hex"), "reads=" + m_dir.filePath("reads"),
                              "pulses=" + m_dir.filePath("pulses"), "clocks=12"};
    const QStringList wanted = {"I 000 0",   "I 001 2",   "R 05 ab 3", "I 002 4",
                                "W 06 ab 5", "INT 003 6", "I 3ff 8",   "I 000 10"};
    const Result asItIs = runCore(HdlCore::sourceOf(Core::PicoBlaze3, GetParam()), m_dir.filePath("work"), args);
    EXPECT_EQ(asItIs.lines, wanted) << qPrintable(asItIs.errors + asItIs.lines.join('\n'));

    const QString source = m_dir.filePath(HdlCore::sourceOf(Core::PicoBlaze3, GetParam()).section('/', -1));
    const QString text = slow(GetParam());
    ASSERT_TRUE(text.contains("late"));
    ASSERT_TRUE(write(source, text));
    const Result slower = runCore(source, m_dir.filePath("slow"), args);
    EXPECT_EQ(slower.lines, wanted) << qPrintable(slower.errors + slower.lines.join('\n'));
    EXPECT_EQ(slower.code, 0);
}

TEST_P(RunCore, aCoreThatIsNoneIsRefusedInClearWords)
{
    const QString suffix = GetParam() == Language::Verilog ? ".v" : ".vhd";
    ASSERT_TRUE(write(m_dir.filePath("kcpsm3" + suffix), "nonsense\n"));
    const Result broken = runCore(m_dir.filePath("kcpsm3" + suffix), m_dir.filePath("work"), {});
    EXPECT_EQ(broken.code, 2);
    EXPECT_TRUE(broken.errors.contains("can not be compiled")) << qPrintable(broken.errors);

    ASSERT_TRUE(write(m_dir.filePath("other" + suffix), "nonsense\n"));
    const Result unknown = runCore(m_dir.filePath("other" + suffix), m_dir.filePath("work"), {});
    EXPECT_EQ(unknown.code, 2);
    EXPECT_TRUE(unknown.errors.contains("not a core that is known here")) << qPrintable(unknown.errors);
}

INSTANTIATE_TEST_SUITE_P(Languages, RunCore, testing::ValuesIn(allLanguages), nameOfCase);

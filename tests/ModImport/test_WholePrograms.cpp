// Programs of hundreds of lines through the page, by the filters that ship: how many lines are converted, where it
// stops, and what the converted lines assemble to. The forms and their words are those of the filters' own tests.

#include "../ImportFilter/DialectCase.h"

#include "ImportFixture.h"
#include "QtPrinters.h"

#include "Assembly.h"
#include "ProcTables.h"

namespace {

/// Lines that stand alone, with what must become of them.
struct Program
{
    QStringList source;
    QStringList converted;
    QList<unsigned> words;
    QList<int> stops; ///< lines that can not be converted, from 0 on
};

/// A line of a dialect that depends on no other one, and on no address but that of the label.
bool standsAlone(const DialectCase& form, bool hasRelativeBranches)
{
    const QString converted = form.converted;
    if (form.refusal != nullptr)
        return qstrcmp(form.refusal, "stop") == 0 && !converted.contains('\n');
    return !form.words.isEmpty() && !converted.contains('#') && !converted.contains(':') &&
           !(hasRelativeBranches && converted.contains("here"));
}

Program programOf(const QList<DialectCase>& forms, const QString& filter, int lines)
{
    Program program;
    program.source.append("here:");
    program.converted.append("here:");
    while (program.source.size() < lines) {
        for (const DialectCase& form : forms) {
            if (form.filter != filter || !standsAlone(form, filter.startsWith("Mico8")))
                continue;
            if (form.refusal != nullptr)
                program.stops.append(program.source.size());
            program.source.append(QString(form.source).split('\n'));
            program.converted.append(QString(form.converted).split('\n'));
            program.words.append(form.words);
        }
    }
    return program;
}

struct Dialect
{
    const char* filter;
    QList<DialectCase> (*forms)();
    const nsProc::ProcTable& (*processor)();
};

void PrintTo(const Dialect& dialect, std::ostream* out)
{
    *out << dialect.filter;
}

class WholePrograms : public ImportFixture, public ::testing::WithParamInterface<Dialect>
{
protected:
    /// The words of the lines that were converted.
    static QList<unsigned> assembled(QStringList lines, const Program& program)
    {
        for (int line : program.stops)
            lines[line] = ";";
        nsImport::Assembly assembly(GetParam().processor());
        assembly.config.behaviorChkIntVector = nsModAsmFe::AsmFeConfig::intVectorSilent;
        const nsImport::AssemblyResult result =
            assembly.run({{"main.psm", lines.join('\n').toUtf8() + "\n#SET INSTMEM::PAGESIZE, 2048\n"}});
        EXPECT_TRUE(result.ok) << qPrintable(result.firstError());
        QList<unsigned> words;
        for (int address = 0; address < result.image.size(); ++address)
            words.append(result.image.word(address));
        return words;
    }
};

} // namespace

TEST_P(WholePrograms, areConvertedLineByLineToTheSameWords)
{
    const Program program = programOf(GetParam().forms(), GetParam().filter, 400);
    ASSERT_GE(program.source.size(), 400);
    ASSERT_GE(program.words.size(), 200);
    load(program.source.join('\n').toUtf8(), GetParam().filter);
    // Each failure stops; the next start goes on with the line below.
    for (int stop : program.stops) {
        button("importConvertAll")->click();
        EXPECT_EQ(destination()->blockCount(), stop + 1);
        EXPECT_FALSE(button("importUse")->isEnabled());
    }
    button("importConvertAll")->click();
    EXPECT_TRUE(button("importUse")->isEnabled());
    EXPECT_EQ(errors().filter("Can not convert line. Please convert manually").size(), program.stops.size());
    const QStringList result = destination()->text().split('\n');
    EXPECT_EQ(result.size(), program.source.size());
    EXPECT_EQ(result, program.converted);
    EXPECT_EQ(assembled(result, program), program.words);
}

INSTANTIATE_TEST_SUITE_P(All, WholePrograms,
                         ::testing::Values(Dialect{"KCPSM3", picoBlaze3Cases, nsProc::xpBlze3Table},
                                           Dialect{"KCPSM6", picoBlaze6Cases, nsProc::xpBlze6Table},
                                           Dialect{"pBlazIDE", pBlazIdeCases, nsProc::xpBlze3Table},
                                           Dialect{"Mico8 (vendor's assembler)", mico8Cases, nsProc::lMico8v3xTable},
                                           Dialect{"Mico8 (GNU assembler)", mico8Cases, nsProc::lMico8v3xTable}));

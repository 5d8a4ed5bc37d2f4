// A proof is worth what it finds: each of the deliberate faults of the models.

#include "Faults.h"
#include "ProveToolFixture.h"
#include "RandomWords.h"

#include "ProcDisassembler.h"
#include "ProcTables.h"

#include <algorithm>

namespace {

using Where = std::tuple<Core, Language>;

const nsProc::ProcTable& tableOf(Core core)
{
    return core == Core::PicoBlaze3   ? nsProc::xpBlze3Table()
           : core == Core::PicoBlaze6 ? nsProc::xpBlze6Table()
                                      : nsProc::lMico8v3xTable();
}

/// The source of a whole memory. A word that the assembler can not make is left out.
QByteArray sourceOf(Core core, const std::vector<quint32>& words)
{
    const nsProc::ProcDisassembler disassembler(tableOf(core));
    const int size = memorySize(core);
    QString text;
    for (int address = 0; address < size; ++address) {
        const auto name = [size](int target) { return "a" + QString::number((target + size) % size); };
        const int word = address < int(words.size()) ? int(words[size_t(address)]) : 0;
        QString line = disassembler.text(word, address, name);
        if (line.isEmpty())
            line = disassembler.text(0, address, name);
        text += name(address) + ":\n        " + line + '\n';
    }
    return text.toLatin1();
}

std::string nameOfCase(const testing::TestParamInfo<Where>& param)
{
    return std::string(nameOf(std::get<0>(param.param))) + nameOf(std::get<1>(param.param));
}

class ProveFaults : public ProveToolTest, public testing::WithParamInterface<Where>
{
protected:
    /// One program with what it is run with.
    struct sProgram_t
    {
        QString folder;
        QStringList options;
    };

    void SetUp() override
    {
        const auto [core, language] = GetParam();
        SKIP_WITHOUT(language);
        const std::vector<Trial> all = trials(core);
        // The first ones are of all kinds, the last ones for single instructions: by turns, so that most faults show
        // soon.
        for (size_t n = 0; n < all.size(); ++n)
            addProgram(core, all[n % 2 == 0 ? n / 2 : all.size() - 1 - n / 2]);
        if (core == Core::PicoBlaze6)
            addPreemptedReturn();
    }

    /// A return from interrupt that is pre-empted in bank A, where the newest cell of the stack holds bank B.
    void addPreemptedReturn()
    {
        writeProgram(Core::PicoBlaze6, "        LOAD    s0, 1\n"
                                       "        REGBANK B\n"
                                       "        LOAD    s0, 2\n"
                                       "        INT     ENABLE\n"
                                       "loop:\n"
                                       "        JUMP    loop\n"
                                       "isr:\n"
                                       "        WRPRT   s0, 1\n"
                                       "        REGBANK A\n"
                                       "        INT     ENABLE\n"
                                       "        RETI    ENABLE\n"
                                       "#ORG    ADDR, 0x3FF\n"
                                       "        JUMP    isr\n");
        keepProgram({"-q", "-n", "60", "--interrupt-at-clock", "20:60"});
    }

    void addProgram(Core core, const Trial& trial)
    {
        const CoreBuild& build = trial.build;
        writeProgram(core, sourceOf(core, trial.stimulus.program),
                     {{"memMap/pageSize", QString::number(memorySize(core))},
                      {"scrpdSize", QString::number(build.scratchpadSize)},
                      {"intVectorAddr", QString::number(build.vector)},
                      {"regCount", QString::number(build.registers)},
                      {"simAddressBits", QString::number(build.addressBits)},
                      {"simWaitStates", QString::number(trial.stimulus.waitStates)}});
        QByteArray reads;
        for (const quint8 value : trial.stimulus.reads)
            reads += QByteArray::number(value, 16) + '\n';
        write("reads" + QString::number(m_programs.size()), reads + QByteArray("0\n").repeated(2000));
        QStringList options = {"-q",
                               "--hwbuild",
                               QString::number(build.hwBuild),
                               "--reads",
                               "reads" + QString::number(m_programs.size()),
                               "--max-clocks",
                               QString::number(trial.stimulus.clocks)};
        for (const Pulse& pulse : trial.stimulus.interrupts)
            options += {"--interrupt-at-clock", QString("%1:%2").arg(pulse.clock).arg(pulse.length)};
        keepProgram(options);
    }

    /// What writeProgram() has written.
    void keepProgram(const QStringList& options)
    {
        const QString folder = QString("p%1/").arg(m_programs.size());
        mkdir(folder);
        for (const char* name : {"p.nalvo", "a.psm"})
            QFile::rename(path(name), path(folder + name));
        m_programs.push_back({folder, options});
    }

    AsmToolResult prove(const sProgram_t& program, const QString& source) const
    {
        return run(QStringList{"--core", source} + program.options + QStringList(program.folder + "p.nalvo"));
    }

    std::vector<sProgram_t> m_programs;
};

} // namespace

TEST_P(ProveFaults, EachIsFound)
{
    const auto [core, language] = GetParam();
    for (const sProgram_t& program : m_programs) {
        const AsmToolResult result = prove(program, HdlCore::sourceOf(core, language));
        ASSERT_EQ(result.status, 0) << qPrintable(program.folder) << result.out.constData() << result.err.constData();
    }
    const QString name = HdlCore::sourceOf(core, language).section('/', -1);
    int count = 0;
    for (const Fault& fault : readFaults()) {
        if (fault.file != name)
            continue;
        write(name, sourceWith(fault).toUtf8());
        bool isFound = false;
        for (size_t n = 0; n < m_programs.size() && !isFound; ++n) {
            const AsmToolResult result = prove(m_programs[n], path(name));
            EXPECT_TRUE(result.status == 0 || result.status == 1) << qPrintable(fault.what) << result.err.constData();
            isFound = result.status == 1;
            EXPECT_EQ(result.out.startsWith("different"), isFound);
            // What finds one fault often finds another.
            if (isFound)
                std::rotate(m_programs.begin(), m_programs.begin() + long(n), m_programs.begin() + long(n) + 1);
            if (isFound && qEnvironmentVariableIsSet("NALVO_FAULTS_VERBOSE"))
                printf("%3d %s\n", int(n), qPrintable(fault.what));
        }
        EXPECT_TRUE(isFound) << qPrintable(name + ": " + fault.what);
        ++count;
    }
    EXPECT_GE(count, 15);
}

INSTANTIATE_TEST_SUITE_P(Cores, ProveFaults,
                         testing::Combine(testing::ValuesIn(allCores), testing::ValuesIn(allLanguages)), nameOfCase);

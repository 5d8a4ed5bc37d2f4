// The assembler cases with random damage, through the real processors: nothing crashes, hangs, or fails without a
// message.

#include "ChildProcess.h"
#include "HostileRun.h"

#include "ModProcessor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>

#include <random>

using namespace nsModAsmFe;

namespace {

using Random = std::mt19937;

/// The texts of all cases, sorted by their paths.
QList<QByteArray> allSources()
{
    QStringList paths;
    QDirIterator it(QStringLiteral(NALVO_SOURCE_DIR "/tests/data/asm"), {"*.psm"}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        paths.append(it.next());
    paths.sort();
    QList<QByteArray> sources;
    for (const QString& path : paths) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            sources.append(file.readAll());
    }
    return sources;
}

/// Damages sources.
class Mutator
{
public:
    Mutator(const QList<QByteArray>& sources, unsigned int seed)
        : m_sources(sources)
        , m_random(seed)
    {
    }

    QByteArray mutant()
    {
        m_text = pick(m_sources);
        const int steps = 1 + number(5);
        for (int i = 0; i < steps; ++i)
            damage();
        return m_text;
    }

private:
    int number(int below) { return below > 0 ? int(m_random() % unsigned(below)) : 0; }
    template <class List>
    QByteArray pick(const List& list)
    {
        return list.at(number(list.size()));
    }

    void damage()
    {
        static const QList<QByteArray> words = {"0",
                                                "-1",
                                                "255",
                                                "256",
                                                "0x3FF",
                                                "0x400",
                                                "2147483647",
                                                "4294967296",
                                                "b101",
                                                "\\17",
                                                "0d1",
                                                "s0",
                                                "sF",
                                                "r31",
                                                "(s0)",
                                                "(s0",
                                                "s1)",
                                                "Z",
                                                "NC",
                                                "ENABLE",
                                                "\"A\"",
                                                "\"AB\"[1]",
                                                "\"\"",
                                                "'2BE",
                                                "'LEN",
                                                "'",
                                                "[7:0]",
                                                "[",
                                                "]",
                                                "~1",
                                                "1 % 0",
                                                "5%3",
                                                "1 << 40",
                                                "()",
                                                "::x",
                                                "a::",
                                                "+",
                                                ",",
                                                ",,",
                                                ";",
                                                ":",
                                                "\"",
                                                "\\",
                                                "(",
                                                ")",
                                                "|",
                                                "#EQU x, ",
                                                "#SET INSTMEM::PAGECOUNT, 2\n",
                                                "#SET INSTMEM::PAGESIZE, 4\n",
                                                "#ORG ADDR, 3\n",
                                                "#ORG MEMRANGE, SHARED\n",
                                                "#ORG MEMRANGE, PAGE1\n",
                                                "#NAMESPACE n\n",
                                                "#ENDNAMESPACE\n",
                                                "#IFDEF x\n",
                                                "#ENDIF\n",
                                                "JUMP ",
                                                "CALL ",
                                                "LOAD ",
                                                "RET",
                                                "RETI ",
                                                "INT ",
                                                "WRPRT ",
                                                "\n",
                                                " ",
                                                "\t",
                                                "INSTMEM",
                                                "append:",
                                                "TRUE"};
        switch (number(9)) {
        case 0:
            m_text.insert(number(m_text.size() + 1), char(m_random() & 0xff));
            break;
        case 1:
            m_text.remove(number(m_text.size()), 1 + number(8));
            break;
        case 2:
            if (!m_text.isEmpty())
                m_text[number(m_text.size())] = char(m_random() & 0xff);
            break;
        case 3:
        case 4:
            m_text.insert(number(m_text.size() + 1), pick(words));
            break;
        case 5:
            replaceWord(pick(words));
            break;
        default:
            damageLines();
            break;
        }
    }

    /// Puts the word in the place of one of the text.
    void replaceWord(const QByteArray& word)
    {
        const int start = m_text.indexOf(' ', number(m_text.size()));
        const int end = m_text.indexOf('\n', start + 1);
        if (start < 0 || end < 0)
            return;
        const int next = m_text.indexOf(' ', start + 1);
        const int stop = next < 0 ? end : qMin(next, end);
        m_text.replace(start + 1, stop - start - 1, word);
    }

    void damageLines()
    {
        QList<QByteArray> lines = m_text.split('\n');
        const int line = number(lines.size());
        switch (number(4)) {
        case 0:
            lines.removeAt(line);
            break;
        case 1:
            lines.insert(line, lines.at(line));
            break;
        case 2:
            lines.swapItemsAt(line, number(lines.size()));
            break;
        default:
            lines.insert(line, pick(pick(m_sources).split('\n')));
            break;
        }
        m_text = lines.join('\n');
    }

    const QList<QByteArray>& m_sources;
    Random m_random;
    QByteArray m_text;
};

/// Nothing between parentheses, and a percent sign without a blank before it, fail without a message.
bool mayFailSilently(const QByteArray& source)
{
    return QRegExp("[^\\s+*/&~^|()<>-]%|\\(\\s*(\\)|,|;|\n|$)").indexIn(QString::fromLatin1(source)) >= 0;
}

/// The argument of a define is reported, but the define stands and the run goes on. Is nothing else reported?
bool isDefineArgumentAlone(const QString& broken, const QByteArray& source)
{
    const QString begin("assembled with errors: ");
    const QString error("Unsupported argument: ");
    if (!broken.startsWith(begin))
        return false;
    for (const QString& message : broken.mid(begin.size()).split(" / ")) {
        const QRegExp define("#DEFINE\\s+[^\\s,;]+(\\s*,\\s*|\\s+)" + QRegExp::escape(message.mid(error.size())),
                             Qt::CaseInsensitive);
        if (!message.startsWith(error) || define.indexIn(QString::fromLatin1(source)) < 0)
            return false;
    }
    return true;
}

class Mutants : public ::testing::TestWithParam<const char*>
{
};

QString runMutants(const QString& processorName, int count, unsigned int seed)
{
    const QList<QByteArray> sources = allSources();
    if (sources.size() < 400)
        return "the cases are missing";
    AsmFixture f(AsmFixture::partNone);
    nsModProcessor::ModProcessor processor;
    f.msg.attach(static_cast<ModMsgPluginIf*>(&processor));
    f.asmFe.registerPlugin(static_cast<ModAsmFePluginIfInterMod*>(&processor));
    f.prj.registerPlugin(static_cast<ModPrjPluginIf*>(&processor));
    f.prj.tree.set("ModProcessor/processor", processorName);
    f.open();
    // The file of a mutant that crashes is kept.
    QDir().mkpath(NALVO_BINARY_DIR "/asm-mutants");
    // Processors run beside each other: each has files of its own.
    const QString path = QString(NALVO_BINARY_DIR "/asm-mutants/%1-%2.psm")
                             .arg(QString(processorName).remove(QRegExp("[^A-Za-z0-9]")))
                             .arg(seed);
    f.sources.srcFiles = QStringList(path);
    Mutator mutator(sources, seed);
    int assembled = 0;
    QString broken;
    for (int i = 0; i < count && broken.isEmpty(); ++i) {
        const QByteArray source = mutator.mutant();
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(source) != source.size())
            return path + " could not be written";
        file.close();
        f.calls.clear();
        f.asmFe.assemble(ModAsmFe::eEventNone);
        broken = brokenRule(f);
        if (broken == "fails without an error" && mayFailSilently(source))
            broken.clear();
        if (isDefineArgumentAlone(broken, source))
            broken.clear();
        assembled += f.asmFe.isAssembled() ? 1 : 0;
    }
    if (broken.isEmpty() && (assembled < count / 50 || assembled > count / 2))
        broken = QString("%1 of %2 mutants assembled: they say little").arg(assembled).arg(count);
    f.prj.close();
    return broken.isEmpty() ? broken : broken + "; see " + path;
}

TEST_P(Mutants, keepTheRules)
{
    const QString name = QString::fromLatin1(GetParam());
    const int count = underSanitizer ? 500 : 3000;
    for (unsigned int seed = 1; seed <= 2; ++seed) {
        SCOPED_TRACE(seed);
        expectGoodEnd([=] { return runMutants(name, count, seed * 100 + unsigned(name.size())); }, 60, 400);
    }
}

INSTANTIATE_TEST_SUITE_P(processors, Mutants,
                         ::testing::Values("Xilinx PicoBlaze 3", "Xilinx PicoBlaze 6", "Lattice Mico8 v3.x"),
                         [](const auto& row) { return QString(row.param).remove(QRegExp("[ .]")).toStdString(); });

} // namespace

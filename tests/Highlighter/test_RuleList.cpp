#include "ProcRun.h"
#include "RecordingHooks.h"

#include <QRegExp>
#include <QTextCodec>

#include <gtest/gtest.h>

namespace {

/// An editor that notes the rules as "kind sensitivity expression".
class RuleLister : public RecordingEditorHook
{
public:
    RuleLister()
        : RecordingEditorHook(&m_log)
    {
    }
    void clearHighlighter() override { rules.clear(); }
    void configHighlighterAddRegExp(eHighlightRule_t rule, QRegExp regExp) override
    {
        const QString cs = regExp.caseSensitivity() == Qt::CaseSensitive ? "CS" : "CI";
        rules.append(QString("%1 %2 %3").arg(rule).arg(cs, regExp.pattern()));
    }

    QStringList rules;

private:
    QStringList m_log;
};

QStringList words(const QString& prefix, const QString& list)
{
    QStringList rules;
    for (const QString& word : list.split(' '))
        rules.append(prefix + " \\b" + word + "\\b");
    return rules;
}

} // namespace

/// The order is the priority, so the whole list is named here.
TEST(RuleList, isAsTheEditorExpectsIt)
{
    RuleLister lister;
    ProcRun run("Xilinx PicoBlaze 6");
    ASSERT_TRUE(run.assemble(
        {" #SET IODEV::screen::EN, TRUE", " #SET IODEV::screen::SIZE, 4", " #SET IODEV::screen::VALUE, 1", " NOP"}));
    run.asmFe.modEditorHook = &lister;
    run.asmFe.prjOpen();
    run.asmFe.modEditorHook = nullptr;

    QStringList rules = lister.rules;
    int charsets = 0;
    for (const QByteArray& codec : QTextCodec::availableCodecs())
        charsets += rules.removeAll("12 CI \\b" + QString::fromLatin1(codec).toUpper() + "\\b");
    EXPECT_GT(charsets, 10);
    // Registers and banks come in any order.
    QStringList hardware = rules.filter(QRegExp("^2 "));
    hardware.sort();
    EXPECT_EQ(hardware.join('\n').toStdString(),
              words("2 CS", "A B s0 s1 s2 s3 s4 s5 s6 s7 s8 s9 sA sB sC sD sE sF").join('\n').toStdString());
    for (const QString& rule : hardware)
        rules.removeAll(rule);

    QStringList expected;
    expected << words("1 CI", "RET RETI ADDC SUBC INT COMP COMPC ADD AND CALL HWBUILD JUMP LOAD NOP OR ROL ROLC ROR "
                              "RORC SL0 SL1 SLX SR0 SR1 SRX SUB TEST TESTC XOR WRMEM WRPRT RDMEM RDPRT STAR regBank "
                              "LOADRET SET CLR")
             << words("14 CI", "ENABLE DISABLE C NC Z NZ ADDR MEMRANGE SHARED") << "14 CI PAGE[0-9]+"
             << "7 CS ^\\S+:"
             << "3 CS \\b0[xX]{1}[0-9A-Fa-f]+\\b"
             << "4 CS \\b[0-9]+\\b"
             << "5 CS \\\\[0-7]+"
             << "6 CS \\b[bB]{1}[0-1]+\\b"
             << words("12 CI", "[24]+BE LEN INSTMEM IODev hiMem loMem vhdl verilog hex sim mem fifo reg append")
             << "12 CI \\accessMode\\b" << words("12 CI", "true false rd wr rdWr") << "12 CI ::\\bIODEV::screen\\b"
             << "12 CI ::\\bIODev::defaultInstMem\\b"
             << "12 CI \\b\\S+\\b::"
             << "12 CI ::"
             << "0 CI #\\bEQU\\b"
             << "0 CI #\\bSET\\b"
             << "0 CI #\\bORG\\b"
             << "0 CI #\\bDEFINE\\b"
             << "0 CI #\\bDEFINE\\b[\\s\\t]+\\S+"
             << "0 CI #\\bIFDEF\\b"
             << "0 CI #\\bIFDEF\\b[\\s\\t\\S]+"
             << "0 CI #\\bELSEIF\\b"
             << "0 CI #\\bELSEIF\\b[\\s\\t\\S]+"
             << "0 CI #\\bELSE\\b"
             << "0 CI #\\bENDIF\\b"
             << "0 CI #\\bMACRO\\b"
             << "0 CI #\\bMACRO\\b[\\s\\t]+\\S+"
             << "0 CI #\\bMACRO\\b"
             << "0 CI #\\bNAMESPACE\\b"
             << "0 CI #\\bNAMESPACE\\b[\\s\\t]+\\S+"
             << "0 CI #\\bENDNAMESPACE\\b"
             << "13 CS \\\".*\\\""
             << "8 CS ;[^\n]*"
             << "10 CS ^;[\\s]*\\#\\#[^\n]*"
             << "11 CI ^*\\\\\\bnavHw\\b|^*\\\\\\bnavConst\\b|^*\\\\\\bnavSep\\b|^*\\\\\\bnavGrpBegin\\b"
                "|^*\\\\\\bnavGrpEnd\\b|^*\\\\\\bnavHw\\b\\s+\".*\"|^*\\\\\\bnavHw\\b\\s+\\S+\\s*"
                "|^*\\\\\\bnavConst\\b\\s+\".*\"|^*\\\\\\bnavConst\\b\\s+\\S+\\s*|^*\\\\\\bnavSep\\b\\s+\".*\""
                "|^*\\\\\\bnavSep\\b\\s+\\S+\\s*|^*\\\\\\bnavGrpBegin\\b\\s+\".*\""
                "|^*\\\\\\bnavGrpBegin\\b\\s+\\S+\\s*|^*\\\\\\bnavGrpEnd\\b";
    EXPECT_EQ(rules.join('\n').toStdString(), expected.join('\n').toStdString());
}

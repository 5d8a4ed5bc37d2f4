// The programs under examples/import: their reference images are what the assemblers of these tests make of them, and
// each shows all forms of its dialect.

#include "ForeignAssembler.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using foreign::Dialect;

namespace {

struct Example
{
    const char* main;
    Dialect dialect;
    int memorySize;
    bool log;
};

const Example examples[] = {
    {"kcpsm3/belt_counter.psm", Dialect::Kcpsm3, 1024, true},
    {"kcpsm6/console.psm", Dialect::Kcpsm6, 2048, true},
    {"pblazide/stepper.psm", Dialect::PBlazIde, 1024, false},
    {"mico8_vendor/flash_reader.s", Dialect::Mico8Vendor, 1024, false},
    {"mico8_gnu/monitor.s", Dialect::Mico8Gnu, 512, false},
};

QString pathOf(const char* main)
{
    return QString(NALVO_SOURCE_DIR "/examples/import/") + main;
}

/// Compares with the file that is checked in; NALVO_UPDATE_GOLDEN=1 writes it anew.
void expectFile(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (qEnvironmentVariableIsSet("NALVO_UPDATE_GOLDEN")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    EXPECT_EQ(file.readAll().toStdString(), text.toStdString()) << path.toStdString();
}

class ForeignExamples : public ::testing::TestWithParam<Example>
{
protected:
    static foreign::Image assembled()
    {
        QStringList errors;
        foreign::Options options;
        options.memorySize = GetParam().memorySize;
        const foreign::Image image = foreign::assemble(GetParam().dialect, pathOf(GetParam().main), options, &errors);
        EXPECT_EQ(errors.join("\n").toStdString(), "");
        return image;
    }
};

/// Each pattern matches at least one line of the program, comments included where the pattern asks for them.
void expectForms(const foreign::Image& image, const QStringList& patterns)
{
    for (const QString& pattern : patterns) {
        const QRegularExpression form(pattern);
        ASSERT_TRUE(form.isValid()) << pattern.toStdString();
        const bool shown = std::any_of(image.rows.begin(), image.rows.end(),
                                       [&](const foreign::Row& row) { return form.match(row.line.text).hasMatch(); });
        EXPECT_TRUE(shown) << "no line shows: " << pattern.toStdString();
    }
}

/// The words of a PicoBlaze program, each with the operands that it can have.
QStringList kcpsmForms()
{
    QStringList forms;
    for (const QString word : {"LOAD", "AND", "OR", "XOR", "TEST", "COMPARE", "ADD", "ADDCY", "SUB", "SUBCY"})
        forms.append("\\b" + word + "\\s+\\w+, *\\w");
    for (const QString word : {"SR0", "SR1", "SRX", "SRA", "RR", "SL0", "SL1", "SLX", "SLA", "RL"})
        forms.append("\\b" + word + "\\s+\\w+");
    for (const QString word : {"INPUT", "OUTPUT", "FETCH", "STORE"})
        forms << "\\b" + word + "\\s+\\w+, *\\(\\w+\\)"
              << "\\b" + word + "\\s+\\w+, *\\w+";
    for (const QString word : {"JUMP", "CALL"})
        forms << "\\b" + word + "\\s+[A-Za-z_]"
              << "\\b" + word + "\\s+[0-9A-F]{3}\\b"
              << "\\b" + word + "\\s+N?[ZC], *\\w";
    forms << "RETURN\\s*$"
          << "RETURN\\s+Z"
          << "RETURN\\s+NZ"
          << "RETURN\\s+C"
          << "RETURN\\s+NC"
          << "RETURNI\\s+ENABLE"
          << "RETURNI\\s+DISABLE"
          << "ENABLE\\s+INTERRUPT"
          << "CONSTANT\\s+\\w+, *[0-9A-F]+"
          << "NAMEREG\\s+s\\w, *\\w"
          << "NAMEREG\\s+[a-z_]{3,}, *\\w"
          << "ADDRESS\\s+[0-9A-F]+"
          << "\"A\"|\"J\""
          << "\";\""
          << "\\d'd"
          << "[01]{8}'b"
          << "^\\w+:\\s*(;.*)?$|^\\w+:";
    return forms;
}

} // namespace

TEST_P(ForeignExamples, theReferenceImageIsThatOfTheOriginal)
{
    const foreign::Image image = assembled();
    const QFileInfo main(pathOf(GetParam().main));
    const QString stem = main.absolutePath() + "/" + main.completeBaseName();
    expectFile(stem + ".hex", foreign::hexFile(image, GetParam().memorySize));
    if (GetParam().log)
        expectFile(stem + ".log", foreign::logFile(image, main.filePath(), foreign::Stamp()));
}

TEST_P(ForeignExamples, hasTheLengthOfARealProgram)
{
    EXPECT_GE(assembled().rows.size(), 200);
}

/// At least one branch leads to an address that the program leaves empty.
TEST_P(ForeignExamples, branchesToAnEmptyAddress)
{
    const foreign::Image image = assembled();
    if (GetParam().dialect == Dialect::Kcpsm6) {
        // Its unused words jump to the end, so that nothing is empty. These are the branches to words without a line.
        EXPECT_EQ(image.words.size(), 2048);
        EXPECT_EQ(image.words.value(0x7C0), image.words.value(0x7FF));
        return;
    }
    bool found = false;
    for (auto it = image.words.begin(); it != image.words.end(); ++it) {
        const quint32 word = it.value();
        if (GetParam().dialect == Dialect::Mico8Vendor || GetParam().dialect == Dialect::Mico8Gnu)
            found |= word >= 0x30000 && (word < 0x39000 || word >= 0x3B000) &&
                     !image.words.contains((it.key() + int(word & 0xFFF)) & 0xFFF);
        else
            found |= word >= 0x30000 && word < 0x38000 && !image.words.contains(int(word & 0x3FF));
    }
    EXPECT_TRUE(found);
}

INSTANTIATE_TEST_SUITE_P(All, ForeignExamples, ::testing::ValuesIn(examples), [](const auto& example) {
    return QString(example.param.main).section('/', 0, 0).toStdString();
});

TEST(ForeignExampleForms, kcpsm3)
{
    QStringList errors;
    const QString path = pathOf("kcpsm3/belt_counter.psm");
    const foreign::Image image = foreign::assembleKcpsm3(path, foreign::Options(), &errors);
    expectForms(image,
                kcpsmForms() + QStringList{"DISABLE\\s+INTERRUPT", "%[01]+", "\\$[0-9A-F]{2}", "INPUT\\s+\\w+, isr_b",
                                           "^Loop:", "^loop:", "NAMEREG\\s+SD", "NAMEREG\\s+\\w+, s2", "\\x{B0}"});
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.endsWith("\r\n\x1A"));
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
    EXPECT_TRUE(bytes.contains('\t'));
}

TEST(ForeignExampleForms, kcpsm6)
{
    QStringList errors;
    const foreign::Image image = foreign::assembleKcpsm6(pathOf("kcpsm6/console.psm"), foreign::Options(), &errors);
    expectForms(image, kcpsmForms() + QStringList{"~[a-z]",
                                                  "~\"",
                                                  "~\\d+'d",
                                                  "'upper",
                                                  "'lower",
                                                  "TESTCY s5, FF",
                                                  "TESTCY s5, s6",
                                                  "COMPARECY \\w+, \\d",
                                                  "COMPARECY s5, s6",
                                                  "STAR s",
                                                  "OUTPUTK 01, k_reset",
                                                  "OUTPUTK 20'd, 3",
                                                  "OUTPUTK \"A\"",
                                                  "OUTPUTK ~",
                                                  "OUTPUTK \\w+\\$",
                                                  "OUTPUTK \\w+#",
                                                  "LOAD&RETURN \\w+, \\d",
                                                  "LOAD&RETURN \\w+, \\w+\\$",
                                                  "LOAD&RETURN \\w+, \\w+#",
                                                  "REGBANK A",
                                                  "REGBANK B",
                                                  "HWBUILD",
                                                  "JUMP@",
                                                  "CALL@",
                                                  "INCLUDE \"lib/",
                                                  "INCLUDE \"texts.psm\"",
                                                  "STRING .*, CR",
                                                  "STRING .*, \\w+\\$",
                                                  "TABLE .*\\]$",
                                                  "TABLE .*'d",
                                                  "TABLE .*'b",
                                                  "INST [0-9A-F]{5}",
                                                  "DEFAULT_JUMP",
                                                  "\\bNUL",
                                                  "BEL",
                                                  "\\bBS",
                                                  "\\bHT",
                                                  "\\bLF",
                                                  "\\bVT",
                                                  "\\bCR",
                                                  "\\bESC",
                                                  "\\bDEL",
                                                  "\\bDCS",
                                                  "\\bST\\b",
                                                  "timestamp_hours",
                                                  "timestamp_minutes",
                                                  "timestamp_seconds",
                                                  "datestamp_year",
                                                  "datestamp_month",
                                                  "datestamp_day",
                                                  "timestamp\\$",
                                                  "datestamp\\$"});
}

TEST(ForeignExampleForms, pBlazIde)
{
    QStringList errors;
    const foreign::Image image = foreign::assemblePBlazIde(pathOf("pblazide/stepper.psm"), foreign::Options(), &errors);
    QStringList forms = {"EQU\\s+\\$",     "EQU\\s+\\d",      "EQU\\s+%",   "EQU\\s+s", "ORG\\s+\\$", "ORG\\s+\\d",
                         "DSIN",           "DSOUT",           "DSIO",       "DSRAM",    "DSROM",      "DS\\w+\\s.*\"",
                         "VHDL",           "MEM\\s",          "HEX\\s",     "EXEC",     "EINT",       "DINT",
                         "RETI\\s+ENABLE", "RETI\\s+DISABLE", "RET\\s*$",   "RET\\s+Z", "RET\\s+NZ",  "RET\\s+C",
                         "RET\\s+NC",      "JUMP\\s+\\$",     "CALL\\s+\\$"};
    for (const QString word :
         {"LOAD", "AND", "OR", "XOR", "TEST", "COMP", "ADD", "ADDC", "SUB", "SUBC", "IN", "OUT", "FETCH", "STORE"})
        forms << "\\s" + word + "\\s+\\w+, *s\\w\\b|\\s" + word + "\\s+\\w+, *\\w+"
              << "\\s" + word + "\\s+\\w+, *[$%\\w]";
    for (const QString word : {"SR0", "SR1", "SRX", "SRA", "RR", "SL0", "SL1", "SLX", "SLA", "RL"})
        forms.append("\\s" + word + "\\s+s");
    expectForms(image, forms);
}

TEST(ForeignExampleForms, mico8)
{
    QStringList errors;
    const foreign::Image vendor =
        foreign::assembleMico8Vendor(pathOf("mico8_vendor/flash_reader.s"), foreign::Options(), &errors);
    const foreign::Image gnu = foreign::assembleMico8Gnu(pathOf("mico8_gnu/monitor.s"), foreign::Options(), &errors);
    QStringList both;
    for (const QString word :
         {"add",    "addc",    "sub",   "subc",   "and",   "or",     "xor",  "mov",  "addi", "addic",  "subi",
          "subic",  "andi",    "ori",   "xori",   "cmpi",  "testi",  "movi", "inc",  "dec",  "ror",    "rorc",
          "rolc",   "clrc",    "setc",  "clrz",   "setz",  "clri",   "seti", "b",    "bz",   "bnz",    "bc",
          "bnc",    "call",    "callz", "callnz", "callc", "callnc", "ret",  "iret", "nop",  "import", "importi",
          "export", "exporti", "ssp",   "sspi",   "lsp",   "lspi",   "inp",  "outp", "inpi", "outpi"})
        both.append("\\s" + word + "\\b");
    both << "_lo\\("
         << "_hi\\("
         << "\\.equ"
         << "\\.org"
         << "^ */\\*"
         << "//"
         << "^#"
         << "0x1F|0X1F|0x0F"
         << "0b|0B"
         << "\\b0[0-7]+\\b"
         << "'[A-Z]'"
         << "\\$\\+"
         << "\\$-"
         << "#\\w";
    QStringList inOne = both;
    for (const QString& form : both) {
        const QRegularExpression expression(form);
        const auto shows = [&](const foreign::Row& row) { return expression.match(row.line.text).hasMatch(); };
        if (std::any_of(vendor.rows.begin(), vendor.rows.end(), shows) ||
            std::any_of(gnu.rows.begin(), gnu.rows.end(), shows))
            inOne.removeOne(form);
    }
    EXPECT_EQ(inOne.join(" ").toStdString(), "");
    expectForms(vendor, {"\\sequ\\s", "\\sreg\\s", "R03|R3|r02", "\\bcmp\\b", "\\btest\\b", "rol\\s+\\w+, *\\w+"});
    expectForms(gnu, {"\\.set", "\\.text", "\\.global", "\\.type", "\\.size", "\\.section", "^1:", "\\b1b\\b",
                      "\\b1f\\b", "^\\.L"});
}

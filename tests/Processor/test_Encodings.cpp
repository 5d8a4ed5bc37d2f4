// Every instruction of every processor with every value of its operands, and the first values that do not fit.

#include "Encodings.h"
#include "InstrSetTest.h"
#include "ProcProgram.h"
#include "ProcRun.h"
#include "QtPrinters.h"

#include <QSet>

namespace {

QString hex(int word)
{
    return QString("%1").arg(word, 5, 16, QChar('0')).toUpper();
}

class Encodings : public InstrSetTest
{
};

INSTANTIATE_TEST_SUITE_P(processors, Encodings, ::testing::ValuesIn(allInstrSets()), InstrSetTest::name);

/// What the run made of the program that is not as expected, the first few of it.
QStringList wrongWords(const ProcProgram& program, const ProcRun& run)
{
    QStringList wrong;
    for (int address = program.firstAddress(); address < program.nextAddress() && wrong.size() < 10; ++address) {
        const sProgramLine& line = program.line(address);
        if (run.words().at(address) != line.word)
            wrong.append(
                QString("%1: expected %2, is %3").arg(line.text, hex(line.word), hex(run.words().at(address))));
    }
    return wrong;
}

TEST_P(Encodings, everyInstructionWithEveryOperand)
{
    ProcProgram program(set());
    for (const sEncoding& encoding : set().encodings)
        program.addAll(encoding);
    ProcRun run(set().name, program.settings());
    ASSERT_TRUE(run.assemble(program.source())) << run.summary();
    EXPECT_EQ(run.msg.warnings(), QStringList());
    EXPECT_EQ(wrongWords(program, run), QStringList());

    // The table is as long as it should be: no form was forgotten in the walk.
    const QHash<QString, int> counts = {
        // 10 pairs of forms with two operands; ports, scratchpad; jumps and calls; RET, INT, RETI, NOP; shifts
        {"XPBlze3", 10 * (256 + 4096) + 2 * (4096 + 256) + 2 * (1024 + 256) + 2 * 5 * 1024 + 5 + 2 + 2 + 1 + 10 * 16},
        // the same, and constant ports, computed targets, LOADRET, REGBANK, HWBUILD
        {"XPBlze6",
         13 * (256 + 4096) + 4 * (4096 + 256) + 4096 + 2 * (5 * 4096 + 256) + 5 + 2 + 2 + 4096 + 2 + 16 + 1 + 10 * 16},
        // two operands, rotates of two and of one register, ports and scratchpad, jumps and calls, RET, RETI, flags,
        // INT, NOP
        {"LMico8v3x", 10 * (1024 + 8192) + 4 * (1024 + 32) + 4 * (8192 + 1024) + 2 * 5 * 4096 + 2 + 4 + 2 + 1},
    };
    EXPECT_EQ(program.count(), counts.value(set().section));
}

TEST_P(Encodings, numbersThatDoNotFit)
{
    const QHash<QChar, QString> messages = {{'k', set().numberTooLarge},
                                            {'p', set().portTooLarge},
                                            {'c', set().constPortTooLarge},
                                            {'s', set().addressTooLarge}};
    QStringList lines = {"NOP"};
    QHash<int, QString> expected;
    const auto add = [&](const QString& text, const QString& message, int number) {
        expected.insert(lines.size(), message.arg(number));
        lines.append(text);
    };
    for (const sEncoding& encoding : set().encodings) {
        const QStringList operands = operandsOf(encoding);
        for (int place = 0; place < operands.size(); ++place) {
            const QChar letter = letterOf(operands.at(place));
            if (!messages.contains(letter))
                continue;
            for (int number : {rangeOf(set(), letter).count, -1, 65536, 0x7fffffff, -256}) {
                for (int reg = 0; reg < set().regCount; ++reg) {
                    QStringList texts = operands;
                    texts[place] = QString::number(number);
                    texts.replaceInStrings("{r}", set().regName(reg)).replaceInStrings(QRegExp("\\{.\\}"), "0");
                    add(mnemonicOf(encoding.text) + ' ' + texts.join(", "), messages.value(letter), number);
                }
            }
        }
    }
    QHash<QString, int> settings = set().settings;
    settings.insert(set().section + "/memMap/pageSize", lines.size() + 1024);
    ProcRun run(set().name, settings);
    EXPECT_FALSE(run.assemble(lines));
    EXPECT_GT(expected.size(), 1000);
    EXPECT_EQ(run.messagesWithoutLine(), QStringList());
    for (int line = 0; line < lines.size() && !HasFailure(); ++line) {
        const QStringList wanted = expected.contains(line) ? QStringList(expected.value(line)) : QStringList();
        EXPECT_EQ(run.messages().value(line), wanted) << lines.at(line).toStdString();
    }
}

TEST_P(Encodings, mnemonicsThatTheProcessorLacks)
{
    QSet<QString> own;
    for (const sEncoding& encoding : set().encodings)
        own.insert(mnemonicOf(encoding.text));
    QStringList lacking;
    QStringList lines = {"NOP"};
    for (const QString& mnemonic : allMnemonics()) {
        if (own.contains(mnemonic))
            continue;
        lacking.append(mnemonic);
        // Whatever follows the word, and in whatever case it is written.
        lines << mnemonic << mnemonic + ' ' + set().regName(1) << mnemonic.toLower() + ' ' + set().regName(1) + ", 5"
              << mnemonic + " Z";
    }
    const QHash<QString, int> counts = {{"XPBlze3", 8}, {"XPBlze6", 2}, {"LMico8v3x", 12}};
    EXPECT_EQ(lacking.size(), counts.value(set().section)) << lacking.join(' ').toStdString();
    EXPECT_EQ(own.size() + lacking.size(), allMnemonics().size());
    ProcRun run(set().name, set().settings);
    EXPECT_FALSE(run.assemble(lines));
    for (int line = 1; line < lines.size(); ++line) {
        const QString mnemonic = lacking.at((line - 1) / 4);
        EXPECT_EQ(run.messages().value(line), QStringList("errOcUnsupported | Unsupported instruction: " + mnemonic))
            << lines.at(line).toStdString();
    }
    EXPECT_EQ(run.messages().value(0), QStringList());
}

TEST_P(Encodings, scratchpadAddressesOfEachSize)
{
    const QHash<QString, QList<int>> sizes = {
        {"XPBlze3", {64}}, {"XPBlze6", {64, 128, 256}}, {"LMico8v3x", {32, 33, 64, 255, 256}}};
    for (int size : sizes.value(set().section)) {
        QHash<QString, int> settings;
        settings.insert(set().section + "/scrpdSize", size);
        QStringList lines;
        for (int addr = 0; addr < 300; ++addr)
            lines.append(
                QString(addr % 2 == 0 ? "RDMEM %1, %2" : "WRMEM %1, %2").arg(set().regName(addr % 16)).arg(addr));
        ProcRun run(set().name, settings);
        EXPECT_FALSE(run.assemble(lines));
        for (int addr = 0; addr < lines.size(); ++addr) {
            const QString message = "errExceededScrpdSize | Address \"%1\"exceeds scratchpad size of \"%2\"!";
            const QStringList wanted = addr < size ? QStringList() : QStringList(message.arg(addr).arg(size - 1));
            EXPECT_EQ(run.messages().value(addr), wanted) << "size " << size;
        }
    }
}

} // namespace

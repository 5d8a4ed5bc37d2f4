#include "InstructionPages.h"

#include "PageReader.h"

#include "ProcDisassembler.h"
#include "ProcTables.h"
#include "eOpcode.h"

#include <QDir>
#include <QHash>
#include <QMap>

#include <algorithm>
#include <iterator>

namespace nsHelpBuild {

namespace {

using namespace nsModAsmFe;
using nsProc::ProcDisassembler;
using nsProc::ProcTable;
using Operand = ProcDisassembler::sOperand_t;
using Pattern = ProcDisassembler::sPattern_t;

const int wordBits = 18;

/// The names of a processor's pages, and of the sections of the hand-written files that are about it.
struct sProcessor_t
{
    const char* section;
    const char* pageId;
    const char* overview;
};
const sProcessor_t processors[] = {
    {"PicoBlaze 3", "instrXPBlze3", "procXPBlze3"},
    {"PicoBlaze 6", "instrXPBlze6", "procXPBlze6"},
    {"Mico8", "instrLMico8v3x", "procLMico8v3x"},
};

const sProcessor_t* processorOf(const ProcTable& table)
{
    for (const sProcessor_t& processor : processors) {
        if (QString::fromLatin1(table.name).contains(QLatin1String(processor.section)))
            return &processor;
    }
    return nullptr;
}

/// What is written by hand about a mnemonic.
struct Manual
{
    HeadedText text;
    QByteArray common;                    ///< the body up to the first section of a processor
    QHash<QString, QByteArray> ofSection; ///< by the name of the section
};

void splitSections(Manual* manual)
{
    QByteArray* part = &manual->common;
    bool fenced = false;
    for (const QByteArray& line : manual->text.body.split('\n')) {
        if (line.startsWith("```"))
            fenced = !fenced;
        if (!fenced && line.startsWith("## ")) {
            const QString title = QString::fromUtf8(line.mid(3)).trimmed();
            const bool isProcessor =
                std::any_of(std::begin(processors), std::end(processors),
                            [&](const sProcessor_t& p) { return title == QLatin1String(p.section); });
            part = isProcessor ? &manual->ofSection[title] : &manual->common;
            // Deeper than the mnemonic, whose section it becomes a part of.
            if (!isProcessor)
                part->append('#' + line + '\n');
            continue;
        }
        part->append(line + '\n');
    }
}

/// Reads all files, and reports those that are missing or surplus.
QHash<QString, Manual> readManuals(const QString& folder, QStringList* errors)
{
    QHash<QString, Manual> manuals;
    for (int opcode = ocUndefined + 1; opcode < ocCount; ++opcode) {
        const QString mnemonic = mnemonicOfOpcode(eOpcode_t(opcode));
        Manual manual;
        QString error;
        if (manual.text.read(folder + '/' + mnemonic + QStringLiteral(".md"), &error))
            splitSections(&manual);
        else
            errors->append(error);
        manuals.insert(mnemonic, manual);
    }
    for (const QString& file : QDir(folder).entryList({QStringLiteral("*.md")}, QDir::Files)) {
        if (!manuals.contains(file.chopped(3)))
            errors->append(folder + '/' + file + QStringLiteral(": no instruction has this name"));
    }
    return manuals;
}

/// How an operand is named in forms, and the letter of its bits.
struct sName_t
{
    QString text;
    QChar letter;
};

sName_t nameOf(const Operand& operand, int index, const ProcTable& table)
{
    const QString reg = QString(QLatin1Char(table.regs.letter)) + (index == 0 ? 'X' : 'Y');
    const QChar letter = index == 0 ? 'x' : 'y';
    switch (operand.kind) {
    case Operand::word:
        return {operand.text, QChar()};
    case Operand::reg:
        return {reg, letter};
    case Operand::regRef:
        return {'(' + reg + ')', letter};
    case Operand::number:
        return {index == 0 ? QStringLiteral("kk") : QStringLiteral("nn"), index == 0 ? 'k' : 'n'};
    case Operand::target:
        break;
    }
    return {QStringLiteral("label"), 'a'};
}

QString formOf(const QString& mnemonic, const Pattern& pattern, const ProcTable& table)
{
    QStringList operands;
    for (int i = 0; i < pattern.operands.size(); ++i)
        operands.append(nameOf(pattern.operands.at(i), i, table).text);
    return operands.isEmpty() ? mnemonic : mnemonic + ' ' + operands.join(QStringLiteral(", "));
}

/// The bits of a word, the highest first: 0, 1, or the letter of the operand that they hold.
QString bitsOf(const Pattern& pattern, const ProcTable& table)
{
    QString bits(wordBits, QChar('0'));
    for (int bit = 0; bit < wordBits; ++bit) {
        if ((pattern.match >> bit & 1) != 0)
            bits[wordBits - 1 - bit] = '1';
    }
    for (int i = 0; i < pattern.operands.size(); ++i) {
        const Operand& operand = pattern.operands.at(i);
        for (int bit = operand.shift; bit < operand.shift + operand.bits; ++bit)
            bits[wordBits - 1 - bit] = nameOf(operand, i, table).letter;
    }
    return bits;
}

/// The bits with a blank wherever another field begins.
QString grouped(const QString& bits)
{
    QString text;
    for (int i = 0; i < bits.size(); ++i) {
        const auto kind = [&](int at) { return bits.at(at).isDigit() ? QChar('0') : bits.at(at); };
        if (i > 0 && kind(i) != kind(i - 1))
            text += ' ';
        text += bits.at(i);
    }
    return text;
}

/// The forms of an instruction with their words as a table.
QByteArray formsOf(eOpcode_t opcode, const ProcTable& table, const ProcDisassembler& words)
{
    QString text = QStringLiteral("| Form | Word, bits 17 to 0 |\n|---|---|\n");
    for (const Pattern& pattern : words.patterns()) {
        if (pattern.opcode == opcode)
            text += QStringLiteral("| `%1` | `%2` |\n")
                        .arg(formOf(mnemonicOfOpcode(opcode), pattern, table), grouped(bitsOf(pattern, table)));
    }
    return text.toUtf8() + '\n';
}

QByteArray sectionOf(eOpcode_t opcode, const ProcTable& table, const ProcDisassembler& words, const Manual& manual)
{
    const QString mnemonic = mnemonicOfOpcode(opcode);
    const QHash<QString, QString>& head = manual.text.head;
    QByteArray text = "\n## " + mnemonic.toUtf8() + "\n\n**" + head.value(QStringLiteral("title")).toUtf8() + ".**\n\n";
    if (table.assembled(opcode) != nullptr)
        text += formsOf(opcode, table, words);
    const QString clocks = table.setting(nsProc::settingInstrClkCnt) != nullptr
                               ? QStringLiteral("as set, %1 in a new project").arg(table.instrClkCnt)
                               : QString::number(table.instrClkCnt);
    text += QStringLiteral("Zero flag: %1. Carry flag: %2. Clock cycles: %3.\n\n")
                .arg(head.value(QStringLiteral("flagZ")), head.value(QStringLiteral("flagC")), clocks)
                .toUtf8();
    return text + manual.common + '\n' + manual.ofSection.value(QString::fromLatin1(processorOf(table)->section)) +
           '\n';
}

} // namespace

QString instructionPageId(const ProcTable& table)
{
    const sProcessor_t* processor = processorOf(table);
    return processor != nullptr ? QString::fromLatin1(processor->pageId) : QString();
}

QVector<HelpPage> instructionPages(const QString& folder, QStringList* errors)
{
    const QHash<QString, Manual> manuals = readManuals(folder, errors);
    QVector<HelpPage> pages;
    for (const ProcTable* table : nsProc::procTables()) {
        const sProcessor_t* processor = processorOf(*table);
        if (processor == nullptr) {
            errors->append(QStringLiteral("no name for the instruction page of ") + QString::fromLatin1(table->name));
            continue;
        }
        HelpPage page;
        page.source = folder;
        page.id = QString::fromLatin1(processor->pageId);
        page.title = QStringLiteral("Instructions of ") + QString::fromLatin1(table->name);
        page.markdown =
            QStringLiteral("The instructions of [%1](pageid:%2), by mnemonic. In the words `x` and `y` are the bits of "
                           "the registers, `k` and `n` those of numbers, `a` those of an address.\n\n")
                .arg(QString::fromLatin1(table->name), QString::fromLatin1(processor->overview))
                .toUtf8();
        QMap<QString, eOpcode_t> sorted;
        for (int opcode = ocUndefined + 1; opcode < ocCount; ++opcode) {
            if (table->isExecuted(eOpcode_t(opcode)))
                sorted.insert(mnemonicOfOpcode(eOpcode_t(opcode)), eOpcode_t(opcode));
        }
        const ProcDisassembler words(*table);
        for (auto it = sorted.cbegin(); it != sorted.cend(); ++it)
            page.markdown += sectionOf(it.value(), *table, words, manuals.value(it.key()));
        pages.append(page);
    }
    return pages;
}

} // namespace nsHelpBuild

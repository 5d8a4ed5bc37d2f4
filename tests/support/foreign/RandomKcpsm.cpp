#include "KcpsmTables.h"
#include "RandomText.h"

namespace foreign {

namespace {

const QStringList trapsOf3 = {"ADDC",  "SUBC",     "COMP",    "RDPRT", "WRPRT", "RDMEM",  "WRMEM",  "RET",   "RETI",
                              "INT",   "NOP",      "ROL",     "ROR",   "ROLC",  "RORC",   "CLR",    "SET",   "LDRET",
                              "TESTC", "COMPC",    "LOADRET", "b1010", "FACE",  "BEEF0",  "B10012", "EQU",   "ORG",
                              "ADDR",  "ASCII",    "IFDEF",   "ENDIF", "PAGE0", "PROC",   "IODEV",  "loop",  "r0",
                              "r31",   "HWBUILD2", "SETS",    "sG",    "s10",   "DEFINE", "navSep", "ADDCYX"};

/// A register's own name.
bool isPlain(const QString& name)
{
    return name.size() == 2 && name[0] == 's' && QString("0123456789ABCDEF").contains(name[1]);
}

/// Names that a converter may come to by itself.
const QStringList takenNames = {"COMP_const", "RDPRT_label", "ADDC_label", "loop_2",    "Loop_2",
                                "addr_100",   "addr_3FF",    "NOP_2",      "ROL_label2"};

class RandomKcpsm : private RandomText
{
public:
    RandomKcpsm(bool six, unsigned seed)
        : RandomText(seed * 2 + (six ? 1 : 0),
                     trapsOf3 + takenNames +
                         (six ? QStringList{"cr", "Lf", "nul"} : QStringList{"STAR", "REGBANK", "HWBUILD"}),
                     true)
        , m_six(six)
    {
        if (six)
            reserve({"NUL", "BEL", "BS", "HT", "LF", "VT", "CR", "ESC", "DEL", "DCS", "ST"});
        for (int i = 0; i < 16; ++i)
            m_registers.append("s" + QString::number(i, 16).toUpper());
    }

    RandomProgram run();

private:
    struct Sequence
    {
        QString name;
        int size;
    };

    void addLine(const QString& text);
    void endLine(const QString& text) { addLine(text + (chance(30) ? gap() + ";" + commentText() : mayGap())); }
    void plan();
    void define();
    void defineString(const QString& name);
    void defineTable(const QString& name);
    void renameRegister();
    void moveOn();
    void moveTo(int address);
    bool hasRoom(int words);
    void include();
    void includeAgain();
    void instruction();
    void emitInstruction(const QString& text, int size);
    void sequence();
    void finish();

    QString instructionText();
    QString instructionOfSix();
    QString twoOperands(const QString& name, const QString& second);
    QString flow(const QString& name);
    QString anyRegister();
    QString literal();
    QString number();
    QString port();
    QString target();
    quint32 anyWord();

    bool m_six;
    bool m_large = false;
    bool m_stamps = false; ///< reads the time of the run
    int m_address = 0;
    bool m_isFull = false;         ///< no piece of the memory is free
    QStringList m_registers;       ///< the name of each one at this line
    QStringList m_freed;           ///< names that registers had before
    QStringList m_constants;       ///< all, also those whose line comes at the end
    QStringList m_late;            ///< constants that are defined at the end
    QStringList m_labels;          ///< all
    QStringList m_unplaced;        ///< labels that wait for their line
    QVector<Sequence> m_sequences; ///< strings and tables that were defined
    QVector<SourceFile> m_files;
    QString m_again;          ///< file of a few instructions that is included more than once; empty if there is none
    QVector<int> m_open;      ///< files that are being written, the innermost last
    QVector<int> m_linesLeft; ///< lines until an included file ends
};

void RandomKcpsm::addLine(const QString& text)
{
    m_files[m_open.last()].text += text.toLatin1() + "\n";
}

void RandomKcpsm::plan()
{
    for (int i = 3 + below(20); i > 0; --i) {
        const QString name = newName();
        m_constants.append(name);
        if (chance(40))
            m_late.append(name);
        else
            addLine(word("CONSTANT") + gap() + name + mayGap() + "," + mayGap() + literal());
    }
    for (int i = 4 + below(24); i > 0; --i)
        m_labels.append(newName());
    m_unplaced = m_labels;
    if (m_six && m_stamps)
        m_sequences << Sequence{"timestamp$", 8} << Sequence{"datestamp$", 11};
}

RandomProgram RandomKcpsm::run()
{
    m_large = m_six && chance(15);
    m_stamps = chance(25);
    m_files.append(SourceFile{"main.psm", QByteArray()});
    m_open.append(0);
    plan();
    if (chance(40))
        scatter(m_large ? 4096 : 1024, m_large ? 128 : 32, 3);
    const int lines = 50 + below(320);
    const bool defaultJump = m_six && !m_large && chance(15);
    if (defaultJump)
        endLine(gap() + word("DEFAULT_JUMP") + gap() + target());
    const int room = (m_large ? 4096 : 1024) - 64;
    for (int line = 0; line < lines && m_address < room && !m_isFull; ++line) {
        const int kind = below(100);
        if (kind < 4)
            addLine(mayGap() + (chance(50) ? ";" + commentText() : QString()));
        else if (kind < 7)
            define();
        else if (kind < 11)
            renameRegister();
        else if (kind < 12)
            moveOn();
        else if (m_six && kind < 14)
            chance(70) ? include() : includeAgain();
        else if (m_six && kind < 17)
            sequence();
        else
            instruction();
        if (!m_linesLeft.isEmpty() && --m_linesLeft.last() <= 0) {
            m_linesLeft.removeLast();
            m_open.removeLast();
        }
    }
    finish();
    // Line ends of another system, and an end mark.
    if (chance(30)) {
        for (SourceFile& file : m_files)
            file.text.replace("\n", "\r\n");
    }
    if (chance(20))
        m_files[0].text += "\x1A";
    return {m_files, m_large ? 4096 : 1024};
}

void RandomKcpsm::define()
{
    const int kind = m_six ? below(4) : 0;
    if (kind == 1) {
        defineString(newName() + "$");
    } else if (kind == 2) {
        defineTable(newName() + "#");
    } else {
        const QString name = newName();
        QString value = literal();
        if (m_six && chance(30))
            value = "~" + (chance(50) ? literal() : pick(m_constants));
        endLine(gap() + word("CONSTANT") + gap() + name + mayGap() + "," + mayGap() + value);
        m_constants.append(name);
    }
}

void RandomKcpsm::defineString(const QString& name)
{
    QStringList items;
    int size = 0;
    for (int i = 1 + below(4); i > 0; --i) {
        const int kind = below(6);
        const Sequence* other = m_sequences.isEmpty() ? nullptr : &m_sequences[below(m_sequences.size())];
        if (kind < 3) {
            QString text;
            for (int k = 1 + below(8); k > 0; --k)
                text += letter();
            items.append("\"" + text + "\"");
            size += text.size();
        } else if (kind == 3 && other != nullptr && other->name.endsWith('$') && size + other->size < 24) {
            items.append(other->name);
            size += other->size;
        } else {
            items.append(chance(50) ? literal() : pick(m_constants));
            ++size;
        }
    }
    endLine(gap() + word("STRING") + gap() + name + ", " + items.join(", "));
    m_sequences.append({name, size});
}

void RandomKcpsm::defineTable(const QString& name)
{
    const int kind = below(3);
    QStringList items;
    const int size = 1 + below(10);
    for (int i = 0; i < size; ++i) {
        const int byte = below(256);
        items.append(kind == 0 ? hex(byte, 1) : kind == 1 ? digits(byte, 10, 1) : digits(byte, 2, chance(50) ? 8 : 1));
    }
    endLine(gap() + word("TABLE") + gap() + name + mayGap() + "," + gap() + "[" + items.join(chance(50) ? ", " : ",") +
            "]" +
            (kind == 0   ? ""
             : kind == 1 ? "'d"
                         : "'b"));
    m_sequences.append({name, size});
}

void RandomKcpsm::renameRegister()
{
    const int number = below(15); // the last one keeps its name for the file that is included more than once
    const QString old = m_registers[number];
    const QString plain = "s" + QString::number(number, 16).toUpper();
    QString name;
    if (!m_registers.contains(plain) && chance(30))
        name = plain;
    else if (!m_freed.isEmpty() && chance(30))
        name = m_freed.takeAt(below(m_freed.size()));
    else
        name = newName();
    m_freed.removeAll(name);
    const bool wasPlain = isPlain(old);
    if (!wasPlain)
        m_freed.append(old);
    m_registers[number] = name;
    const QString spelled = wasPlain && chance(20) ? old.toUpper() : old;
    endLine(mayGap() + word("NAMEREG") + gap() + spelled + mayGap() + "," + mayGap() + name);
}

void RandomKcpsm::moveOn()
{
    // Nothing is behind the first word, which has to stand at 0.
    if (isScattered() && m_address > 0) {
        moveTo(nextPiece());
        return;
    }
    if (isScattered() || m_address == 0 || m_address > (m_large ? 0xC00 : 0x280))
        return;
    // A label may be left behind where no instruction follows.
    if (!m_unplaced.isEmpty() && chance(25))
        endLine(m_unplaced.takeAt(below(m_unplaced.size())) + ":");
    m_address += 1 + below(m_large ? 0x180 : 0x18);
    endLine(gap() + word("ADDRESS") + gap() + hex(m_address, 3));
}

/// @param address -1: there is none
void RandomKcpsm::moveTo(int address)
{
    m_isFull = address < 0;
    if (m_isFull)
        return;
    m_address = address + below(3);
    endLine(gap() + word("ADDRESS") + gap() + hex(m_address, 3));
}

/// Makes room for this many words.
bool RandomKcpsm::hasRoom(int words)
{
    if (!fits(m_address, words))
        moveTo(nextPiece());
    return !m_isFull && fits(m_address, words);
}

void RandomKcpsm::include()
{
    if (m_open.size() > 3 || m_files.size() > 6)
        return;
    static const QStringList folders = {"", "inc/", "lib/", "lib/deep/"};
    const QString folder = pick(folders);
    const QString name = QString("%1part%2.psm").arg(folder).arg(m_files.size());
    // From the folder of the program, or shorter from that of the file that includes.
    QString written = name;
    const QString here = m_files[m_open.last()].name;
    const QString ownFolder = here.left(here.lastIndexOf('/') + 1);
    if (!ownFolder.isEmpty() && name.startsWith(ownFolder) && chance(50))
        written = name.mid(ownFolder.size());
    endLine(gap() + word("INCLUDE") + gap() + "\"" + written + "\"");
    m_files.append(SourceFile{name, QByteArray()});
    m_open.append(m_files.size() - 1);
    m_linesLeft.append(1 + below(30));
}

void RandomKcpsm::includeAgain()
{
    if (m_again.isEmpty()) {
        m_again = "again.psm";
        m_files.append(SourceFile{m_again, "\tLOAD sF, 01 ; the same lines at each place\n\tADD sF, sF\n\tRETURN Z\n"});
    }
    if (!hasRoom(3))
        return;
    addLine(gap() + word("INCLUDE") + gap() + "\"" + m_again + "\"");
    m_address += 3;
}

void RandomKcpsm::instruction()
{
    emitInstruction(instructionText(), 1);
}

void RandomKcpsm::emitInstruction(const QString& text, int size)
{
    if (!hasRoom(size))
        return;
    QString before = gap();
    if (!m_unplaced.isEmpty() && chance(20)) {
        before = mayGap() + m_unplaced.takeAt(below(m_unplaced.size())) + mayGap() + ":";
        if (chance(30)) {
            endLine(before);
            before = gap();
        } else {
            before += mayGap();
        }
    }
    endLine(before + text);
    m_address += size;
}

void RandomKcpsm::sequence()
{
    if (m_sequences.isEmpty() || (!isScattered() && m_address > (m_large ? 0xD00 : 0x300)))
        return;
    const Sequence used = pick(m_sequences);
    if (chance(50)) {
        const QString name = anyRegister();
        emitInstruction(word("LOAD&RETURN") + gap() + name + mayGap() + "," + mayGap() + used.name, used.size);
    } else {
        const QString where = hex(below(16), 1);
        emitInstruction(word("OUTPUTK") + gap() + used.name + mayGap() + "," + mayGap() + where, used.size);
    }
}

void RandomKcpsm::finish()
{
    while (m_open.size() > 1)
        m_open.removeLast();
    if (m_address == 0)
        instruction();
    if (isScattered())
        moveTo(m_large ? 0xE80 : 0x3A0);
    // Some programs end with an interrupt vector, some with a label at the end of everything.
    const bool open = chance(20) && m_unplaced.size() > 1;
    const QString last = open ? m_unplaced.takeLast() : QString();
    for (const QString& label : m_unplaced) {
        endLine(label + ":" + gap() + instructionText());
        ++m_address;
    }
    m_unplaced.clear();
    if (open)
        addLine(last + ":");
    if (chance(50)) {
        const int vector = m_large ? 0xFFF : 0x3FF;
        addLine(gap() + "ADDRESS" + gap() + hex(vector, 3));
        addLine(gap() + word("JUMP") + gap() + target());
    }
    for (const QString& name : m_late)
        endLine(gap() + word("CONSTANT") + gap() + name + ", " + literal());
}

QString RandomKcpsm::instructionText()
{
    const int kind = below(100);
    if (m_six && kind < 20)
        return instructionOfSix();
    if (kind < 55) {
        const QString name = m_six ? kcpsm6Logic[below(12)].word : kcpsm3Logic[below(10)].word;
        const QString second = chance(50) ? anyRegister() : number();
        return twoOperands(name, second);
    }
    if (kind < 65)
        return word(kcpsmShifts[below(10)].word) + gap() + anyRegister();
    if (kind < 80) {
        static const QStringList names = {"INPUT", "OUTPUT", "FETCH", "STORE"};
        const QString name = pick(names);
        const QString inBrackets = "(" + mayGap() + anyRegister() + mayGap() + ")";
        if (chance(40))
            return twoOperands(name, inBrackets);
        if (chance(20))
            return twoOperands(name, anyRegister());
        if (name == "FETCH" || name == "STORE")
            return twoOperands(name, hex(below(m_six ? 256 : 64), 1 + below(2)));
        return twoOperands(name, number());
    }
    if (kind < 95) {
        static const QStringList names = {"JUMP", "JUMP", "CALL", "RETURN"};
        return flow(pick(names));
    }
    const QString how = chance(50) ? word("ENABLE") : word("DISABLE");
    return chance(50) ? how + gap() + word("INTERRUPT") : word("RETURNI") + gap() + how;
}

QString RandomKcpsm::instructionOfSix()
{
    const QString x = anyRegister();
    const QString y = anyRegister();
    switch (below(9)) {
    case 0:
        return word("OUTPUTK") + gap() + number() + mayGap() + "," + mayGap() + port();
    case 1:
        return twoOperands("LOAD&RETURN", number());
    case 2:
        return word("REGBANK") + gap() + (chance(50) ? "A" : "B");
    case 3:
        return word("HWBUILD") + gap() + x;
    case 4: {
        // A register of the other bank has its own name, whatever this one is called in the present bank.
        const int number = below(16);
        const QString plain = "s" + QString::number(number, 16).toUpper();
        const bool isTaken = m_registers[number] != plain && m_registers.contains(plain);
        return isTaken ? word("REGBANK") + gap() + "A" : word("STAR") + gap() + plain + ", " + y;
    }
    case 5:
        return word(chance(50) ? "JUMP@" : "CALL@") + gap() + "(" + mayGap() + x + mayGap() + "," + mayGap() + y +
               mayGap() + ")";
    case 6:
        return word("INST") + gap() + hex(int(anyWord()), 5);
    default: {
        const QString label = pick(m_labels);
        return twoOperands("LOAD", label + (chance(50) ? "'upper" : "'lower"));
    }
    }
}

QString RandomKcpsm::twoOperands(const QString& name, const QString& second)
{
    const QString first = word(name) + gap() + anyRegister();
    return first + mayGap() + "," + mayGap() + second;
}

QString RandomKcpsm::flow(const QString& name)
{
    static const QStringList conditions = {"Z", "NZ", "C", "NC"};
    const QString condition = chance(50) ? word(pick(conditions)) : QString();
    QString text = word(name);
    if (name == "RETURN")
        return condition.isEmpty() ? text : text + gap() + condition;
    text += gap() + (condition.isEmpty() ? QString() : condition + mayGap() + "," + mayGap());
    return text + target();
}

QString RandomKcpsm::anyRegister()
{
    const int number = below(16);
    const QString name = m_registers[number];
    if (!isPlain(name))
        return name;
    const QString letter = chance(15) ? "S" : "s";
    return letter + (chance(15) ? name.mid(1).toLower() : name.mid(1));
}

QString RandomKcpsm::literal()
{
    const int byte = below(256);
    const int kind = below(10);
    if (kind < 6)
        return hex(byte, chance(80) ? 2 : 1);
    if (kind < 7)
        return digits(byte, 10, 1) + "'d";
    if (kind < 8)
        return digits(byte, 2, 8) + "'b";
    if (kind < 9 || m_six)
        return "\"" + QString(letter()) + "\"";
    return chance(50) ? "$" + hex(byte, 2) : "%" + digits(byte, 2, 1 + below(8));
}

QString RandomKcpsm::number()
{
    static const QStringList predefined = {"NUL", "BEL", "BS", "HT", "LF", "VT", "CR", "ESC", "DEL", "DCS", "ST"};
    static const QStringList stamps = {"timestamp_hours", "timestamp_minutes", "timestamp_seconds",
                                       "datestamp_year",  "datestamp_month",   "datestamp_day"};
    const int kind = below(10);
    if (kind < 5)
        return literal();
    if (kind < 8 || !m_six)
        return pick(m_constants);
    if (kind < 9)
        return "~" + (chance(50) ? literal() : pick(m_constants));
    return m_stamps && chance(50) ? pick(stamps) : pick(predefined);
}

QString RandomKcpsm::port()
{
    const int number = below(16);
    return chance(70) ? hex(number, 1) : digits(number, 10, 1) + "'d";
}

QString RandomKcpsm::target()
{
    if (chance(85))
        return pick(m_labels);
    const int address = below(chance(30) ? 16 : m_large ? 4096 : 1024);
    return hex(address, chance(80) ? 3 : 1);
}

/// The word of some instruction.
quint32 RandomKcpsm::anyWord()
{
    const quint32 x = quint32(below(16)) << 8;
    const TwoOperandWord& row = kcpsm6Logic[below(12)];
    const quint32 number = quint32(below(256));
    const quint32 y = quint32(below(16)) << 4;
    const quint32 address = quint32(below(m_large ? 4096 : 1024));
    switch (below(5)) {
    case 0:
        return row.withNumber + x + number;
    case 1:
        return row.withRegister + x + y;
    case 2:
        return kcpsm6Flow[below(2)].ifNz + address;
    case 3:
        return 0x14000u + x + kcpsmShifts[below(10)].low;
    default:
        return 0x2B000u + (number << 4) + (x >> 8);
    }
}

} // namespace

RandomProgram randomKcpsm(bool six, unsigned seed)
{
    return RandomKcpsm(six, seed).run();
}

} // namespace foreign

#include "RandomText.h"

namespace foreign {

namespace {

const QStringList traps = {"LOAD",    "COMP",    "JUMP",    "WRPRT",  "RDPRT",     "WRMEM",       "RDMEM",  "RETI",
                           "INT",     "CLR",     "SET2",    "RET2",   "loop",      "LDRET",       "s0",     "sF",
                           "Z",       "C",       "NZ",      "NC",     "A",         "ENABLE",      "ADDR",   "ASCII",
                           "LOADRET", "STAR",    "IFDEF",   "ENDIF",  "PAGE0",     "PROC",        "IODEV",  "SL0",
                           "SRX",     "HWBUILD", "REGBANK", "r32",    "r010",      "DEFINE",      "navSep", "addr_100",
                           "b0",      "B12",     "a",       "loop_2", "INT_label", "RDPRT_const", "x1b",    "f"};

class RandomMico8 : private RandomText
{
public:
    RandomMico8(bool gnu, unsigned seed)
        : RandomText(seed * 2 + (gnu ? 1 : 0), traps, gnu)
        , m_gnu(gnu)
    {
    }

    RandomProgram run();

private:
    void endLine(const QString& text);
    void plan();
    void define(const QString& name);
    void setAgain();
    void lineWithoutWord();
    void moveTo(int address);
    void instruction();
    void localLabel();
    QString instructionText();
    QString branch();
    QString anyRegister();
    QString literal(int number);
    QString number();
    QString address();
    QString comma() { return mayGap() + "," + mayGap(); }

    bool m_gnu;
    QString m_text;
    int m_address = 0;
    bool m_isEnding = false; ///< what is written now goes to the reserved pieces
    bool m_isFull = false;   ///< no piece of the memory is free
    QStringList m_constants;
    QStringList m_late;  ///< constants that are defined at the end
    QStringList m_small; ///< constants up to 31
    QStringList m_registers;
    QStringList m_labels;
    QStringList m_unplaced;
    QStringList m_behind; ///< local labels that branches before this line wait for
    QStringList m_locals; ///< local labels that stand before this line
};

void RandomMico8::endLine(const QString& text)
{
    const QString comment = commentText();
    QString end = mayGap();
    const int kind = below(10);
    if (kind == 0)
        end = gap() + ";" + comment;
    else if (kind == 1)
        end = gap() + "//" + comment;
    else if (kind == 2)
        end = gap() + "/*" + comment + "*/";
    m_text += text + end + "\n";
}

void RandomMico8::plan()
{
    for (int i = 3 + below(20); i > 0; --i)
        define(newName());
    for (int i = below(4); i > 0; --i)
        m_late.append(newName());
    m_constants += m_late;
    for (int i = 4 + below(24); i > 0; --i)
        m_labels.append(m_gnu && chance(30) ? ".L" + QString::number(i) : newName());
    m_unplaced = m_labels;
}

void RandomMico8::define(const QString& name)
{
    const int kind = below(4);
    if (kind == 0 && !m_gnu) {
        endLine(name + gap() + word("REG") + gap() + (chance(20) ? "R" : "r") + QString::number(below(32)));
        m_registers.append(name);
        return;
    }
    const bool small = kind == 1;
    const QString value = literal(small ? below(32) : below(256));
    if (!m_gnu && chance(60))
        endLine(name + gap() + word("EQU") + gap() + value);
    else
        endLine(gap() + (m_gnu && chance(40) ? ".set" : ".equ") + gap() + name + comma() + value);
    (small ? m_small : m_constants).append(name);
}

/// Gives a constant another value from here on.
void RandomMico8::setAgain()
{
    const QString name = pick(m_constants);
    if (!m_late.contains(name))
        endLine(gap() + ".set" + gap() + name + comma() + literal(below(256)));
}

RandomProgram RandomMico8::run()
{
    if (m_gnu && chance(60))
        m_text += "\t.section .text\n\t.text\n\t.global main\n\t.type main, @function\n";
    plan();
    if (chance(40))
        scatter(1024, 32, 3);
    for (int lines = 50 + below(320); lines > 0 && !m_isFull; --lines) {
        const int kind = below(100);
        if (kind < 6) {
            lineWithoutWord();
        } else if (kind < 9) {
            m_gnu && !m_constants.isEmpty() && chance(30) ? setAgain() : define(newName());
        } else if (kind < 10 && isScattered() && m_address > 0) {
            moveTo(nextPiece());
        } else if (kind < 10 && !isScattered() && m_address > 0 && m_address < 0x280) {
            // A label may be left behind where no instruction follows.
            if (!m_unplaced.isEmpty() && chance(25))
                m_text += m_unplaced.takeAt(below(m_unplaced.size())) + ":\n";
            m_address += 1 + below(0x18);
            endLine(gap() + ".org" + gap() + literal(m_address));
        } else if (m_gnu && kind < 14) {
            localLabel();
        } else {
            instruction();
        }
    }
    m_isEnding = true;
    if (isScattered() && m_address > 0)
        moveTo(0x3A0);
    const QStringList rest = m_unplaced + m_behind;
    m_unplaced.clear();
    m_behind.clear();
    for (const QString& label : rest)
        m_text += label + ":" + gap() + word("NOP") + "\n";
    for (const QString& name : m_late)
        endLine(m_gnu ? gap() + ".equ" + gap() + name + comma() + literal(below(256))
                      : name + gap() + "equ" + gap() + literal(below(256)));
    if (m_gnu && chance(50))
        m_text += "\t.size main, .-main\n";
    if (m_gnu && chance(30))
        m_text += "\t.end\nThis is no program:\n\tmovi r99, nothing\n";
    if (chance(30))
        m_text.replace("\n", "\r\n");
    return {{{"main.s", m_text.toLatin1()}}, 1024};
}

void RandomMico8::lineWithoutWord()
{
    const QString comment = commentText();
    switch (below(5)) {
    case 0:
        m_text += "\n";
        break;
    case 1:
        m_text += "#" + comment + "\n";
        break;
    case 2:
        m_text += "/*" + comment + "\n  more; of // it 'x\n" + comment + " */\n";
        break;
    case 3:
        m_text += mayGap() + "//" + comment + "\n";
        break;
    default:
        m_text += mayGap() + ";" + comment + "\n";
    }
}

void RandomMico8::localLabel()
{
    const QString number = m_behind.isEmpty() || chance(30) ? QString::number(1 + below(12)) : pick(m_behind);
    m_behind.removeAll(number);
    if (!m_locals.contains(number))
        m_locals.append(number);
    m_text += number + ":\n";
    instruction();
}

/// @param address -1: there is none
void RandomMico8::moveTo(int address)
{
    m_isFull = address < 0;
    if (m_isFull)
        return;
    m_address = address + below(3);
    endLine(gap() + ".org" + gap() + literal(m_address));
}

void RandomMico8::instruction()
{
    if (!m_isEnding && !fits(m_address, 1))
        moveTo(nextPiece());
    if (m_isFull)
        return;
    if (!m_unplaced.isEmpty() && chance(20) && !m_text.endsWith(':')) {
        m_text += m_unplaced.takeAt(below(m_unplaced.size())) + mayGap() + ":" + mayGap();
        if (chance(30))
            m_text += "\n";
    }
    endLine(gap() + instructionText());
    ++m_address;
}

QString RandomMico8::instructionText()
{
    static const QStringList pairs = {"ADD", "ADDC", "SUB", "SUBC", "AND", "OR", "XOR", "CMP", "TEST", "MOV"};
    static const QStringList numbers = {"ADDI", "ADDIC", "SUBI", "SUBIC", "ANDI",
                                        "ORI",  "XORI",  "CMPI", "TESTI", "MOVI"};
    static const QStringList rotates = {"ROR", "ROL", "RORC", "ROLC"};
    static const QStringList direct = {"EXPORT", "IMPORT", "SSP", "LSP", "INP", "OUTP"};
    static const QStringList indirect = {"EXPORTI", "IMPORTI", "SSPI", "LSPI", "INPI", "OUTPI"};
    static const QStringList alone = {"CLRC", "SETC", "CLRZ", "SETZ", "CLRI", "SETI", "RET", "IRET", "NOP"};
    const int kind = below(100);
    const QString x = anyRegister();
    const QString y = anyRegister();
    if (kind < 20)
        return word(pick(pairs)) + gap() + x + comma() + y;
    if (kind < 42)
        return word(pick(numbers)) + gap() + x + comma() + number();
    if (kind < 47)
        return word(chance(50) ? "INC" : "DEC") + gap() + x;
    if (kind < 53)
        return word(pick(rotates)) + gap() + x + comma() + y;
    if (kind < 63)
        return word(pick(direct)) + gap() + x + comma() + address();
    if (kind < 70)
        return word(pick(indirect)) + gap() + x + comma() + y;
    if (kind < 78)
        return word(pick(alone));
    return branch();
}

QString RandomMico8::branch()
{
    static const QStringList branches = {"B", "BZ", "BNZ", "BC", "BNC", "CALL", "CALLZ", "CALLNZ", "CALLC", "CALLNC"};
    const QString start = word(pick(branches)) + gap();
    const int kind = below(10);
    if (kind < 6)
        return start + pick(m_labels);
    if (kind < 8 && m_gnu) {
        if (chance(50) && !m_locals.isEmpty())
            return start + pick(m_locals) + "b";
        const QString number = QString::number(1 + below(12));
        if (!m_behind.contains(number))
            m_behind.append(number);
        return start + number + "f";
    }
    if (chance(10))
        return start + (m_gnu && chance(50) ? "." : "$");
    if (chance(10))
        return start + "0x" + hex(below(0x400), 1 + below(3));
    if (chance(50))
        return start + "$+" + QString::number(below(40));
    return start + "$-" + QString::number(below(qMin(m_address, 40) + 1));
}

QString RandomMico8::anyRegister()
{
    if (!m_registers.isEmpty() && chance(40))
        return pick(m_registers);
    const int number = below(32);
    const QString letter = chance(25) ? "R" : "r";
    return letter + (chance(15) ? digits(number, 10, 2) : digits(number, 10, 1));
}

QString RandomMico8::literal(int number)
{
    const int kind = below(10);
    if (kind < 4)
        return "0x" + hex(number, 1 + below(2));
    if (kind < 7)
        return digits(number, 10, 1);
    if (kind < 8)
        return "0" + digits(number, 8, 1);
    if (kind < 9 || number < ' ' || number > '~' || number == '\'' || number == '\\')
        return "0b" + digits(number, 2, 1);
    return "'" + QString(QChar(number)) + "'";
}

QString RandomMico8::number()
{
    const QString mark = chance(15) ? "#" : "";
    const int kind = below(10);
    if (kind < 5)
        return mark + literal(below(256));
    if (kind < 8 && !m_constants.isEmpty())
        return mark + pick(m_constants);
    const QString half = chance(50) ? "_lo(" : "_hi(";
    return half + (chance(70) ? pick(m_labels) : literal(below(256))) + ")";
}

QString RandomMico8::address()
{
    const QString mark = chance(15) ? "#" : "";
    return mark + (m_small.isEmpty() || chance(60) ? literal(below(32)) : pick(m_small));
}

} // namespace

RandomProgram randomMico8(bool gnu, unsigned seed)
{
    return RandomMico8(gnu, seed).run();
}

} // namespace foreign

#include "RandomText.h"

namespace foreign {

namespace {

const QStringList traps = {"COMPARE",  "ADDCY",   "SUBCY", "INPUT", "OUTPUT", "RDPRT",  "WRPRT",     "RDMEM",
                           "WRMEM",    "INT",     "NOP2",  "ROL",   "ROR",    "ROLC",   "RORC",      "CLR",
                           "SET",      "LDRET",   "TESTC", "COMPC", "ADDR",   "ASCII",  "LOADRET",   "STAR",
                           "loop",     "r0",      "r31",   "IFDEF", "ENDIF",  "PAGE0",  "PROC",      "IODEV",
                           "REGBANK",  "HWBUILD", "sG",    "FF",    "AD",     "B1",     "DEFINE",    "navSep",
                           "addr_100", "b0",      "B12",   "a",     "B",      "loop_2", "INT_label", "RDPRT_const"};

class RandomPBlazIde : private RandomText
{
public:
    explicit RandomPBlazIde(unsigned seed)
        : RandomText(seed, traps, false)
    {
    }

    RandomProgram run();

private:
    void endLine(const QString& text) { m_text += text + (chance(30) ? gap() + ";" + commentText() : mayGap()) + "\n"; }
    void define(const QString& name);
    void moveTo(int address);
    void instruction();
    QString instructionText();
    QString anyRegister();
    QString literal(int number);
    QString number();
    QString target();

    QString m_text;
    int m_address = 0;
    bool m_isEnding = false; ///< what is written now goes to the reserved pieces
    bool m_isFull = false;   ///< no piece of the memory is free
    QStringList m_constants;
    QStringList m_cells; ///< names of addresses of the scratchpad
    QStringList m_registers;
    QStringList m_labels;
    QStringList m_unplaced;
};

void RandomPBlazIde::define(const QString& name)
{
    static const QStringList ports = {"DSIN", "DSOUT", "DSIO"};
    static const QStringList memories = {"DSRAM", "DSROM"};
    const QString start = name + gap();
    const QString file = chance(20) ? ", \"some file.txt\"" : QString();
    switch (below(5)) {
    case 0:
        endLine(start + word("EQU") + gap() + anyRegister());
        m_registers.append(name);
        break;
    case 1:
        endLine(start + word(pick(ports)) + gap() + literal(below(256)) + file);
        m_constants.append(name);
        break;
    case 2:
        endLine(start + word(pick(memories)) + gap() + literal(below(64)) + file);
        m_cells.append(name);
        break;
    default:
        endLine(start + word("EQU") + gap() + number());
        m_constants.append(name);
    }
}

RandomProgram RandomPBlazIde::run()
{
    if (chance(50)) {
        endLine(gap() + word("VHDL") + gap() + "\"t.vhd\", \"rom.vhd\", \"rom\"");
        endLine(gap() + word("MEM") + " \"rom.mem\"");
        endLine(gap() + word("HEX") + " \"rom.hex\"");
        endLine(gap() + word("EXEC") + " \"tool.exe\"");
    }
    for (int i = 2 + below(20); i > 0; --i)
        define(newName());
    for (int i = 4 + below(24); i > 0; --i)
        m_labels.append(newName());
    m_unplaced = m_labels;
    if (chance(40))
        scatter(1024, 32, 3);
    for (int lines = 50 + below(320); lines > 0 && !m_isFull; --lines) {
        const int kind = below(100);
        if (kind < 4) {
            m_text += mayGap() + (chance(50) ? ";" + commentText() : QString()) + "\n";
        } else if (kind < 8) {
            define(newName());
        } else if (kind < 9 && isScattered() && m_address > 0) {
            moveTo(nextPiece());
        } else if (kind < 9 && !isScattered() && m_address > 0 && m_address < 0x280) {
            // A label may be left behind where no instruction follows.
            if (!m_unplaced.isEmpty() && chance(25))
                m_text += m_unplaced.takeAt(below(m_unplaced.size())) + ":\n";
            m_address += 1 + below(0x18);
            endLine(gap() + word("ORG") + gap() + literal(m_address));
        } else {
            instruction();
        }
    }
    m_isEnding = true;
    if (isScattered() && m_address > 0)
        moveTo(0x3A0);
    const QStringList rest = m_unplaced;
    m_unplaced.clear();
    for (const QString& label : rest) {
        m_text += label + ":" + gap();
        instruction();
    }
    if (chance(50)) {
        endLine(gap() + word("ORG") + gap() + literal(0x3FF));
        endLine(gap() + word("JUMP") + gap() + target());
    }
    if (chance(30))
        m_text.replace("\n", "\r\n");
    return {{{"main.psm", m_text.toLatin1()}}, 1024};
}

/// @param address -1: there is none
void RandomPBlazIde::moveTo(int address)
{
    m_isFull = address < 0;
    if (m_isFull)
        return;
    m_address = address + below(3);
    endLine(gap() + word("ORG") + gap() + literal(m_address));
}

void RandomPBlazIde::instruction()
{
    if (!m_isEnding && !fits(m_address, 1))
        moveTo(nextPiece());
    if (m_isFull)
        return;
    if (!m_unplaced.isEmpty() && chance(20)) {
        m_text += m_unplaced.takeAt(below(m_unplaced.size())) + mayGap() + ":" + mayGap();
        if (chance(30))
            m_text += "\n";
    }
    endLine(gap() + instructionText());
    ++m_address;
}

QString RandomPBlazIde::instructionText()
{
    static const QStringList logic = {"LOAD", "AND", "OR", "XOR", "TEST", "COMP", "ADD", "ADDC", "SUB", "SUBC"};
    static const QStringList shifts = {"SR0", "SR1", "SRX", "SRA", "RR", "SL0", "SL1", "SLX", "SLA", "RL"};
    static const QStringList memory = {"IN", "OUT", "FETCH", "STORE"};
    static const QStringList flow = {"JUMP", "JUMP", "CALL", "RET"};
    static const QStringList conditions = {"Z", "NZ", "C", "NC"};
    const int kind = below(100);
    if (kind < 45) {
        const QString start = word(pick(logic)) + gap() + anyRegister() + mayGap() + "," + mayGap();
        return start + (chance(50) ? anyRegister() : number());
    }
    if (kind < 55)
        return word(pick(shifts)) + gap() + anyRegister();
    if (kind < 75) {
        const QString name = pick(memory);
        const QString start = word(name) + gap() + anyRegister() + mayGap() + "," + mayGap();
        if (chance(40))
            return start + anyRegister();
        if (name == "IN" || name == "OUT")
            return start + number();
        return start + (m_cells.isEmpty() || chance(50) ? literal(below(64)) : pick(m_cells));
    }
    if (kind < 92) {
        const QString name = pick(flow);
        const QString condition = chance(50) ? word(pick(conditions)) : QString();
        if (name == "RET")
            return word(name) + (condition.isEmpty() ? QString() : gap() + condition);
        const QString start =
            word(name) + gap() + (condition.isEmpty() ? QString() : condition + mayGap() + "," + mayGap());
        return start + target();
    }
    if (kind < 96)
        return word(chance(50) ? "EINT" : "DINT");
    return word("RETI") + gap() + word(chance(50) ? "ENABLE" : "DISABLE");
}

QString RandomPBlazIde::anyRegister()
{
    if (!m_registers.isEmpty() && chance(40))
        return pick(m_registers);
    return (chance(15) ? "S" : "s") + hex(below(16), 1);
}

QString RandomPBlazIde::literal(int number)
{
    const int kind = below(4);
    if (kind < 2)
        return digits(number, 10, 1);
    return kind < 3 ? "$" + hex(number, 1 + below(2)) : "%" + digits(number, 2, 1 + below(8));
}

QString RandomPBlazIde::number()
{
    return m_constants.isEmpty() || chance(50) ? literal(below(256)) : pick(m_constants);
}

QString RandomPBlazIde::target()
{
    return chance(85) ? pick(m_labels) : literal(below(1024));
}

} // namespace

RandomProgram randomPBlazIde(unsigned seed)
{
    return RandomPBlazIde(seed).run();
}

} // namespace foreign

#include "Encodings.h"

const std::vector<const sInstrSet*>& allInstrSets()
{
    static const std::vector<const sInstrSet*> sets = {&picoBlaze3(), &picoBlaze6(), &mico8()};
    return sets;
}

QStringList allMnemonics()
{
    return {"ADD",  "ADDC",    "AND",   "CALL", "CLR",   "COMP",  "COMPC",   "INT", "HWBUILD", "JUMP",
            "LOAD", "LOADRET", "NOP",   "OR",   "RDMEM", "RDPRT", "REGBANK", "RET", "RETI",    "ROL",
            "ROLC", "ROR",     "RORC",  "SET",  "SL0",   "SL1",   "SLX",     "SR0", "SR1",     "SRX",
            "STAR", "WRMEM",   "WRPRT", "SUB",  "SUBC",  "TEST",  "TESTC",   "XOR"};
}

QString mnemonicOf(const QString& text)
{
    return text.section(' ', 0, 0);
}

QStringList operandsOf(const sEncoding& encoding)
{
    const QString operands = QString(encoding.text).section(' ', 1);
    return operands.isEmpty() ? QStringList() : operands.split(", ");
}

QChar letterOf(const QString& operand)
{
    const int brace = operand.indexOf('{');
    return brace < 0 ? QChar() : operand.at(brace + 1);
}

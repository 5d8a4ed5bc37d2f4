#include "eOpcode.h"

#include <QHash>

namespace nsModAsmFe {

namespace {

struct sOpcodeName_t
{
    const char* mnemonic;
    const char* name;
};

/// Indexed by eOpcode_t.
const sOpcodeName_t opcodeNames[ocCount] = {
    {"", "undefined"},  {"ADD", "add"},     {"ADDC", "addc"},       {"AND", "and"},     {"CALL", "call"},
    {"CLR", "clr"},     {"COMP", "comp"},   {"COMPC", "compC"},     {"INT", "int"},     {"HWBUILD", "hwbld"},
    {"JUMP", "jump"},   {"LOAD", "load"},   {"LOADRET", "loadRet"}, {"NOP", "nop"},     {"OR", "or"},
    {"RDMEM", "rdMem"}, {"RDPRT", "rdPrt"}, {"REGBANK", "regBank"}, {"RET", "ret"},     {"RETI", "reti"},
    {"ROL", "rl"},      {"ROLC", "rlc"},    {"ROR", "rr"},          {"RORC", "rrc"},    {"SET", "set"},
    {"SL0", "sl0"},     {"SL1", "sl1"},     {"SLX", "slX"},         {"SR0", "sr0"},     {"SR1", "sr1"},
    {"SRX", "srX"},     {"STAR", "star"},   {"WRMEM", "wrMem"},     {"WRPRT", "wrPrt"}, {"SUB", "sub"},
    {"SUBC", "subc"},   {"TEST", "test"},   {"TESTC", "testC"},     {"XOR", "xor"},
};

} // namespace

eOpcode_t opcodeOfMnemonic(const QString& mnemonic)
{
    static const QHash<QString, eOpcode_t> opcodes = [] {
        QHash<QString, eOpcode_t> hash;
        for (int i = ocAdd; i < ocCount; ++i)
            hash.insert(QString::fromLatin1(opcodeNames[i].mnemonic), eOpcode_t(i));
        return hash;
    }();
    return opcodes.value(mnemonic, ocUndefined);
}

const char* mnemonicOfOpcode(eOpcode_t opcode)
{
    return opcode > ocUndefined && opcode < ocCount ? opcodeNames[opcode].mnemonic : "";
}

const char* opcodeName(eOpcode_t opcode)
{
    return opcode >= ocUndefined && opcode < ocCount ? opcodeNames[opcode].name : "undefined";
}

} // namespace nsModAsmFe

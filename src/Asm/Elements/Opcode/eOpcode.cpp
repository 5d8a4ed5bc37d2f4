#include "eOpcode.h"

#include "EnumTable.h"

#include <QHash>

namespace nsModAsmFe {

namespace {

struct sOpcodeRow_t
{
    eOpcode_t opcode;
    const char* word; ///< as lists of words show it; the mnemonic is the same in upper case
    const char* name; ///< in debug output
};

/// Indexed by eOpcode_t.
constexpr sOpcodeRow_t rows[] = {
    {ocUndefined, "", "undefined"},
    {ocAdd, "ADD", "add"},
    {ocAddc, "ADDC", "addc"},
    {ocAnd, "AND", "and"},
    {ocCall, "CALL", "call"},
    {ocClr, "CLR", "clr"},
    {ocComp, "COMP", "comp"},
    {ocCompc, "COMPC", "compC"},
    {ocInt, "INT", "int"},
    {ocHwbuild, "HWBUILD", "hwbld"},
    {ocJump, "JUMP", "jump"},
    {ocLoad, "LOAD", "load"},
    {ocLoadret, "LOADRET", "loadRet"},
    {ocNop, "NOP", "nop"},
    {ocOr, "OR", "or"},
    {ocRdmem, "RDMEM", "rdMem"},
    {ocRdprt, "RDPRT", "rdPrt"},
    {ocRegbank, "regBank", "regBank"},
    {ocRet, "RET", "ret"},
    {ocReti, "RETI", "reti"},
    {ocRol, "ROL", "rl"},
    {ocRolc, "ROLC", "rlc"},
    {ocRor, "ROR", "rr"},
    {ocRorc, "RORC", "rrc"},
    {ocSet, "SET", "set"},
    {ocSl0, "SL0", "sl0"},
    {ocSl1, "SL1", "sl1"},
    {ocSlx, "SLX", "slX"},
    {ocSr0, "SR0", "sr0"},
    {ocSr1, "SR1", "sr1"},
    {ocSrx, "SRX", "srX"},
    {ocStar, "STAR", "star"},
    {ocWrmem, "WRMEM", "wrMem"},
    {ocWrprt, "WRPRT", "wrPrt"},
    {ocSub, "SUB", "sub"},
    {ocSubc, "SUBC", "subc"},
    {ocTest, "TEST", "test"},
    {ocTestc, "TESTC", "testC"},
    {ocXor, "XOR", "xor"},
};

static_assert(isIndexedBy(rows, &sOpcodeRow_t::opcode, ocCount), "the rows are indexed by eOpcode_t");

bool isOpcode(eOpcode_t opcode)
{
    return opcode >= ocUndefined && opcode < ocCount;
}

} // namespace

eOpcode_t opcodeOfMnemonic(const QString& mnemonic)
{
    static const QHash<QString, eOpcode_t> opcodes = [] {
        QHash<QString, eOpcode_t> hash;
        for (int i = ocUndefined + 1; i < ocCount; ++i)
            hash.insert(mnemonicOfOpcode(eOpcode_t(i)), eOpcode_t(i));
        return hash;
    }();
    return opcodes.value(mnemonic, ocUndefined);
}

QString mnemonicOfOpcode(eOpcode_t opcode)
{
    return QString::fromLatin1(wordOfOpcode(opcode)).toUpper();
}

const char* wordOfOpcode(eOpcode_t opcode)
{
    return isOpcode(opcode) ? rows[opcode].word : "";
}

const char* opcodeName(eOpcode_t opcode)
{
    return isOpcode(opcode) ? rows[opcode].name : rows[ocUndefined].name;
}

} // namespace nsModAsmFe

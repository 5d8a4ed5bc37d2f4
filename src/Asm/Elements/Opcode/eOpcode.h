#pragma once

#include <QString>

namespace nsModAsmFe {

/// The neutral instruction set that all processors share; a back end refuses what its processor lacks.
enum eOpcode_t {
    ocUndefined = 0,
    ocAdd = 1,
    ocAddc = 2,
    ocAnd = 3,
    ocCall = 4,
    ocClr = 5,
    ocComp = 6,
    ocCompc = 7,
    ocInt = 8,
    ocHwbuild = 9,
    ocJump = 10,
    ocLoad = 11,
    ocLoadret = 12,
    ocNop = 13,
    ocOr = 14,
    ocRdmem = 15,
    ocRdprt = 16,
    ocRegbank = 17,
    ocRet = 18,
    ocReti = 19,
    ocRol = 20,
    ocRolc = 21,
    ocRor = 22,
    ocRorc = 23,
    ocSet = 24,
    ocSl0 = 25,
    ocSl1 = 26,
    ocSlx = 27,
    ocSr0 = 28,
    ocSr1 = 29,
    ocSrx = 30,
    ocStar = 31,
    ocWrmem = 32,
    ocWrprt = 33,
    ocSub = 34,
    ocSubc = 35,
    ocTest = 36,
    ocTestc = 37,
    ocXor = 38,
    ocCount = 39, ///< number of values, not an opcode
};

/// The opcode of a mnemonic in upper case, ocUndefined if there is none.
eOpcode_t opcodeOfMnemonic(const QString& mnemonic);
/// The mnemonic of an opcode in upper case, empty for ocUndefined.
QString mnemonicOfOpcode(eOpcode_t opcode);
/// The mnemonic as lists of words show it, such as "regBank"; empty for ocUndefined.
const char* wordOfOpcode(eOpcode_t opcode);
/// The word that names the opcode in debug output, such as "rdMem".
const char* opcodeName(eOpcode_t opcode);

} // namespace nsModAsmFe

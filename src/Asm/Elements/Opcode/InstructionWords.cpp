#include "InstructionWords.h"

#include "eOpcode.h"

namespace nsModAsmFe {

namespace {

constexpr eOpcode_t highlighted[] = {
    ocRet,     ocReti,  ocAddc,  ocSubc, ocInt,     ocComp,    ocCompc, ocAdd,   ocAnd,  ocCall,
    ocHwbuild, ocJump,  ocLoad,  ocNop,  ocOr,      ocRol,     ocRolc,  ocRor,   ocRorc, ocSl0,
    ocSl1,     ocSlx,   ocSr0,   ocSr1,  ocSrx,     ocSub,     ocTest,  ocTestc, ocXor,  ocWrmem,
    ocWrprt,   ocRdmem, ocRdprt, ocStar, ocRegbank, ocLoadret, ocSet,   ocClr,
};

constexpr eOpcode_t arithmetic[] = {ocAdd, ocAddc, ocSub, ocSubc};
constexpr eOpcode_t dataMovement[] = {ocLoad, ocLoadret, ocRdprt, ocWrprt, ocWrmem, ocRdmem};
constexpr eOpcode_t interrupt[] = {ocInt, ocReti};
constexpr eOpcode_t logic[] = {ocAnd, ocOr, ocXor, ocComp, ocCompc, ocTest, ocTestc};
constexpr eOpcode_t programFlow[] = {ocJump, ocCall, ocRet, ocLoadret, ocNop, ocSet, ocClr};
constexpr eOpcode_t shiftAndRotate[] = {ocRol, ocRolc, ocRor, ocRorc, ocSl0, ocSl1, ocSlx, ocSr0, ocSr1, ocSrx};
constexpr eOpcode_t special[] = {ocStar, ocRegbank, ocHwbuild};

template <size_t n>
constexpr int countOf(const eOpcode_t (&list)[n], eOpcode_t opcode)
{
    int count = 0;
    for (eOpcode_t element : list)
        count += element == opcode;
    return count;
}

constexpr bool isEachListed()
{
    for (int i = ocUndefined + 1; i < ocCount; ++i) {
        const auto opcode = eOpcode_t(i);
        if (countOf(highlighted, opcode) != 1)
            return false;
        if (countOf(arithmetic, opcode) + countOf(dataMovement, opcode) + countOf(interrupt, opcode) +
                countOf(logic, opcode) + countOf(programFlow, opcode) + countOf(shiftAndRotate, opcode) +
                countOf(special, opcode) ==
            0)
            return false;
    }
    return true;
}
static_assert(isEachListed(), "each instruction is highlighted once, and stands in the insertion menu");

template <size_t n>
QStringList wordsOf(const eOpcode_t (&opcodes)[n])
{
    QStringList words;
    for (eOpcode_t opcode : opcodes)
        words.append(QLatin1String(wordOfOpcode(opcode)));
    return words;
}

} // namespace

const QStringList& instructionWords()
{
    static const QStringList words = wordsOf(highlighted);
    return words;
}

const QList<sInstructionGroup_t>& instructionGroups()
{
    static const QList<sInstructionGroup_t> groups = {
        {"Arithmetic", wordsOf(arithmetic)},    {"Data movement", wordsOf(dataMovement)},
        {"Interrupt", wordsOf(interrupt)},      {"Logic", wordsOf(logic)},
        {"Program flow", wordsOf(programFlow)}, {"Shift and rotate", wordsOf(shiftAndRotate)},
        {"Special", wordsOf(special)},
    };
    return groups;
}

} // namespace nsModAsmFe

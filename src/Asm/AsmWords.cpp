#include "AsmWords.h"

#include "AsmBackend.h"

namespace nsModAsmFe {

AsmWords::AsmWords()
    : m_instructionWords({"RET",     "RETI",  "ADDC",  "SUBC", "INT",     "COMP",    "COMPC", "ADD",   "AND",  "CALL",
                          "HWBUILD", "JUMP",  "LOAD",  "NOP",  "OR",      "ROL",     "ROLC",  "ROR",   "RORC", "SL0",
                          "SL1",     "SLX",   "SR0",   "SR1",  "SRX",     "SUB",     "TEST",  "TESTC", "XOR",  "WRMEM",
                          "WRPRT",   "RDMEM", "RDPRT", "STAR", "regBank", "LOADRET", "SET",   "CLR"})
    , m_argumentWords({"ENABLE", "DISABLE", "C", "NC", "Z", "NZ"})
    , m_instructionWordSet(m_instructionWords.cbegin(), m_instructionWords.cend())
    , m_argumentWordSet(m_argumentWords.cbegin(), m_argumentWords.cend())
{
}

const QList<AsmWords::sInstructionGroup_t>& AsmWords::instructionGroups()
{
    static const QList<sInstructionGroup_t> groups = {
        {"Arithmetic", {"ADD", "ADDC", "SUB", "SUBC"}},
        {"Data movement", {"LOAD", "LOADRET", "RDPRT", "WRPRT", "WRMEM", "RDMEM"}},
        {"Interrupt", {"INT", "RETI"}},
        {"Logic", {"AND", "OR", "XOR", "COMP", "COMPC", "TEST", "TESTC"}},
        {"Program flow", {"JUMP", "CALL", "RET", "LOADRET", "NOP", "SET", "CLR"}},
        {"Shift and rotate", {"ROL", "ROLC", "ROR", "RORC", "SL0", "SL1", "SLX", "SR0", "SR1", "SRX"}},
        {"Special", {"STAR", "regBank", "HWBUILD"}},
    };
    return groups;
}

void AsmWords::setProcessor(AsmBackend* backend)
{
    const auto names = [](const QHash<QString, int>* table) {
        return table != nullptr ? *table : QHash<QString, int>();
    };
    m_regTable = names(backend != nullptr ? backend->regNames() : nullptr);
    m_bankTable = names(backend != nullptr ? backend->regBankNames() : nullptr);
}

} // namespace nsModAsmFe

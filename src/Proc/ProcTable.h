#pragma once

#include "ConstList.h"
#include "ProcCoreConfig.h"
#include "ProcInstr.h"
#include "ProcSetting.h"

#include <QString>

namespace nsProc {

/// How the registers are named: a letter and the number.
struct sRegNaming_t
{
    char letter = 'r';
    int base = 10; ///< of the number; digits above 9 are in upper case
    int count = 0; ///< registers that have a name
};

/// The differences between simulated processors, except for the instructions that they have.
struct sSimTraits_t
{
    int callStackCapacity = 31;        ///< levels
    bool clearsEachInstr = true;       ///< highlights end with each instruction; else only with each single step
    bool logicClearsCarry = true;      ///< `AND`, `OR`, `XOR` clear carry, and `TEST` sets it to the parity
    bool chainsZero = false;           ///< `ADDC` and `SUBC` only keep a zero flag that was set before
    bool takesComputedTargets = false; ///< `JUMP` and `CALL` take a target from two registers
    bool takesPortConstants = false;   ///< `WRPRT` takes a constant
};

/// What the hardware of a processor does at the edges, where the simulation leaves the words of the text: for the
/// simulation exactly as the core.
struct sCoreTraits_t
{
    enum eStack_t {
        eStackOfCalls, ///< wraps; each instruction writes its address to the cell at the pointer, a return goes behind
                       ///< it
        eStackOfReturns, ///< wraps; calls and entries alone write a cell, which holds the address to return to
        eStackResets,    ///< beyond its ends the core resets itself
    };

    eStack_t stack = eStackOfCalls;
    int stackCells = 32;             ///< cells of a stack that wraps, levels of one that resets
    int memorySize = 1024;           ///< words, of an instruction memory of one page
    int startAddr = 0;               ///< of the first instruction after power-up
    bool startZero = false;          ///< zero flag after power-up
    bool hasFlagCopy = false;        ///< C and Z of an interrupt are kept once, and not with the return address
    bool entryKeepsNewFlags = false; ///< the routine sees C and Z as the pre-empted instruction would leave them
    bool latchesRequests = false;    ///< a request stays for good; entries come between instructions and cost nothing
    bool rotatesSource = false;      ///< rotations take the second register
    bool rotateKeepsCarry = false;   ///< `ROL` and `ROR` leave carry alone
    bool constantWriteHasLines = false; ///< a write of a constant shows its low four bits above the port
    bool hasLongAddresses = false;      ///< ports and the scratchpad can have more than 256 addresses, and wait
    bool takesRegModulo = false;        ///< registers that the core is built without are those below
    int accessClocks = 2;               ///< clock cycles of an access to a port or the scratchpad
};

/// The page of a processor: all that distinguishes it from the others. Back end, simulator, settings, register names
/// and disassembler read it.
struct ProcTable
{
    const char* name = "";       ///< display name; also the value that the project stores
    const char* define = "";     ///< define for the sources, and namespace of the processor's `#SET` parameters
    const char* cfgSection = ""; ///< first component of the processor's keys in the project

    // Hosts of the help links.
    const char* asmHelpPage = "";
    const char* simHelpPage = "";
    const char* cfgHelpPage = "";

    sRegNaming_t regs;
    const char* banks = ""; ///< a letter for each register bank; empty if registers are in no bank

    sInstrLayout_t layout;
    const sInstr_t* instrOf[nsModAsmFe::ocCount] = {}; ///< by opcode; see setInstrs()

    // The hardware as it is built, or as a new project has it where that is a setting.
    int regCount = 16;
    int scrpdSize = 64; ///< bytes
    int intVectorAddr = 1023;
    int instrClkCnt = 2;                ///< clock cycles of an instruction
    bool everyPageHasIntVector = false; ///< the vector is at an address that each page has, whatever its size

    sSimTraits_t sim;
    sCoreTraits_t core;

    const sProcSetting_t* settings = nullptr; ///< in the order of the settings page
    int settingRowCount = 0;
    ConstList<eSetting_t, settingCount> storedSettings; ///< in the order of the project file
    /// What may not change during a simulation, in the order of the checks.
    ConstList<eSetting_t, settingCount> fixedSettings;

    // To fill the table. The rows live as long as the table.
    template <int N>
    constexpr void setInstrs(const sInstr_t (&rows)[N])
    {
        for (const sInstr_t& row : rows)
            instrOf[row.opcode] = &row;
    }
    template <int N>
    constexpr void setSettings(const sProcSetting_t (&rows)[N])
    {
        settings = rows;
        settingRowCount = N;
    }

    /// Row of an instruction; null if the processor does not have it in its sources.
    constexpr const sInstr_t* assembled(nsModAsmFe::eOpcode_t opcode) const
    {
        const sInstr_t* row =
            opcode > nsModAsmFe::ocUndefined && opcode < nsModAsmFe::ocCount ? instrOf[opcode] : nullptr;
        return row != nullptr && row->form != formUnsupported && row->form != formSimulated ? row : nullptr;
    }
    /// @return the simulator executes the instruction
    constexpr bool isExecuted(nsModAsmFe::eOpcode_t opcode) const
    {
        return opcode > nsModAsmFe::ocUndefined && opcode < nsModAsmFe::ocCount &&
               instrOf[opcode]->form != formUnsupported;
    }
    /// Row of a setting; null if the processor does not have it.
    constexpr const sProcSetting_t* setting(eSetting_t setting) const
    {
        for (int i = 0; i < settingRowCount; ++i) {
            if (settings[i].setting == setting)
                return &settings[i];
        }
        return nullptr;
    }
    /// Row of the setting with this `#SET` parameter, in upper case; null if there is none.
    const sProcSetting_t* settingOfDirective(const QString& name) const;
    constexpr int bankCount() const
    {
        int count = 0;
        while (banks[count] != '\0')
            ++count;
        return count > 0 ? count : 1;
    }

    /// Name of a register, such as "sF".
    QString regName(int number) const;
    /// The settings of a new project.
    ProcCoreConfig defaultConfig() const;
    /// Registers of a bank with these settings.
    int regCountOf(const ProcCoreConfig& config) const;
    /// Bytes of the scratchpad with these settings.
    int scrpdSizeOf(const ProcCoreConfig& config) const;
    /// Clock cycles of an instruction with these settings.
    int instrClkCntOf(const ProcCoreConfig& config) const;
};

/// Does each instruction of the neutral set have exactly one row?
template <int N>
constexpr bool coversInstrs(const sInstr_t (&rows)[N])
{
    int count[nsModAsmFe::ocCount] = {};
    for (const sInstr_t& row : rows)
        ++count[row.opcode];
    for (int opcode = nsModAsmFe::ocUndefined + 1; opcode < nsModAsmFe::ocCount; ++opcode) {
        if (count[opcode] != 1)
            return false;
    }
    return count[nsModAsmFe::ocUndefined] == 0;
}

/// Do the parts of a table fit together?
constexpr bool isConsistent(const ProcTable& table)
{
    for (eSetting_t setting : table.storedSettings) {
        if (table.setting(setting) == nullptr)
            return false;
    }
    for (eSetting_t setting : table.fixedSettings) {
        if (table.setting(setting) == nullptr)
            return false;
    }
    const sInstrLayout_t& layout = table.layout;
    return table.regs.count == 1 << layout.regBits && layout.dstShift >= layout.srcShift + layout.regBits;
}

} // namespace nsProc

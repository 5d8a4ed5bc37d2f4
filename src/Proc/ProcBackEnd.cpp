#include "ProcBackEnd.h"

#include "ProcAsmReport.h"
#include "ProcAsmSettings.h"
#include "ProcAsmWords.h"
#include "ProcTable.h"

#include "AsmBackend.h"
#include "IODevList.h"
#include "Opcode.h"
#include "OpcodeList.h"

namespace nsProc {

using namespace nsModAsmFe;

ProcBackEnd::ProcBackEnd(const ProcTable& table)
    : m_table(table)
{
    for (int number = 0; number < table.regs.count; ++number)
        m_regs.insert(table.regName(number), number);
    for (const char* bank = table.banks; *bank != '\0'; ++bank)
        m_banks.insert(QString(QLatin1Char(*bank)), int(bank - table.banks));
}

bool ProcBackEnd::assembleStage1(const AsmBeProgram& program, ProcCoreConfig* config) const
{
    const ProcAsmReport report(m_table.asmHelpPage, program.msgHndlr);
    ProcAsmSettings settings(m_table, program, report, config);
    return settings.setConfigFromDirectives() && settings.checkConfigStage1() && assembleOpcodes(program, *config) &&
           checkAddresses(program, *config, report);
}

bool ProcBackEnd::assembleStage2(const AsmBeProgram& program, const ProcCoreConfig& config) const
{
    const IODev* dev = program.ioDevs->find(config.scrpdIODev);
    if (dev == nullptr || dev->memSize == config.scrpdSize)
        return true;
    ProcAsmReport(m_table.asmHelpPage, program.msgHndlr).signMsg(errScrpdIODevSizeMismatch, nullptr);
    return false;
}

bool ProcBackEnd::assembleOpcodes(const AsmBeProgram& program, const ProcCoreConfig& config) const
{
    const ProcAsmReport report(m_table.asmHelpPage, program.msgHndlr);
    return ProcAsmWords(m_table, config.scrpdSize, report).assembleOpcodes(*program.opcodes, program.watch);
}

bool ProcBackEnd::assembleOpcode(const AsmBeProgram& program, const ProcCoreConfig& config, Opcode* opcode) const
{
    const ProcAsmReport report(m_table.asmHelpPage, program.msgHndlr);
    return ProcAsmWords(m_table, config.scrpdSize, report).assembleOpcode(opcode);
}

bool ProcBackEnd::checkAddresses(const AsmBeProgram& program, const ProcCoreConfig& config,
                                 const ProcAsmReport& report) const
{
    if (program.opcodes->opcodeOfMemAddr(0) == nullptr) {
        report.signMsg(errMissingInstrAtStartAddr, nullptr);
        return false;
    }
    return program.chkIntVector == 2 || checkIntVector(*program.opcodes, config, program.chkIntVector == 1, report);
}

/// @param isWarning a missing instruction warns; else it is an error
bool ProcBackEnd::checkIntVector(const OpcodeList& opcodes, const ProcCoreConfig& config, bool isWarning,
                                 const ProcAsmReport& report) const
{
    const int addr = config.intVectorAddr;
    const Opcode* opcode = opcodes.opcodeOfAddr(addr);
    if (opcode == nullptr) {
        report.signMsg(isWarning ? warnMissingInstrAtIntVectorAddr : errMissingInstrAtIntVectorAddr, addr);
        return isWarning;
    }
    if (opcode->memRange == 0)
        return true;
    for (int range = 1; range <= config.pageCount; ++range) {
        if (opcodes.opcodeOfAddr(addr, range) != nullptr)
            continue;
        report.signMsg(isWarning ? warnMissingInstrAtIntVectorAddrAndPage : errMissingInstrAtIntVectorAddrAndPage, addr,
                       range - 1);
        return isWarning;
    }
    return true;
}

} // namespace nsProc

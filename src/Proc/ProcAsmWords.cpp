// The machine words: one function a form, each with the checks of its arguments in their order.

#include "ProcAsmWords.h"

#include "ProcTable.h"

#include "Opcode.h"
#include "OpcodeList.h"
#include "RunWatch.h"

namespace nsProc {

using namespace nsModAsmFe;

namespace {

/// Place of the word for a flag; wordAlways if the argument is none.
eWordFlow_t wordOfFlag(const Arg* arg)
{
    switch (arg->type) {
    case Arg::flagZ:
        return wordZ;
    case Arg::flagNZ:
        return wordNZ;
    case Arg::flagC:
        return wordC;
    case Arg::flagNC:
        return wordNC;
    default:
        return wordAlways;
    }
}

bool exceeds(const Arg* arg, int maximum)
{
    // Negative numbers are too large, as they are to the hardware.
    return static_cast<unsigned int>(arg->iValue) > static_cast<unsigned int>(maximum);
}

} // namespace

ProcAsmWords::ProcAsmWords(const ProcTable& table, int scrpdSize, const ProcAsmReport& report)
    : m_table(table)
    , m_layout(table.layout)
    , m_scrpdMax(scrpdSize - 1)
    , m_report(report)
{
}

bool ProcAsmWords::assembleOpcodes(const OpcodeList& opcodes, RunWatch* watch)
{
    bool success = true;
    for (Opcode* opcode : opcodes) {
        if (watch != nullptr && !watch->goesOn())
            return false;
        success = assembleOpcode(opcode) && success;
    }
    return success;
}

bool ProcAsmWords::assembleOpcode(Opcode* opcode)
{
    const sInstr_t* instr = m_table.assembled(opcode->opcode);
    if (instr == nullptr) {
        m_report.signMsg(errOcUnsupported, &opcode->srcRef, opcode->name);
        return false;
    }
    switch (instr->form) {
    case formTwoOperand:
        return assembleTwoOperand(opcode, *instr);
    case formPort:
    case formScrpd:
        return assemblePort(opcode, *instr);
    case formFlow:
        return assembleFlow(opcode, *instr);
    case formReturn:
        return assembleReturn(opcode, *instr);
    case formSwitch:
        return assembleSwitch(opcode, *instr);
    case formNone:
        return assembleNone(opcode, *instr);
    case formReg:
        return assembleReg(opcode, *instr);
    case formRegNumber:
        return assembleRegNumber(opcode, *instr);
    case formRotate:
        return assembleRotate(opcode, *instr);
    case formFlag:
        return assembleFlag(opcode, *instr);
    case formBank:
        return assembleBank(opcode, *instr);
    case formUnsupported:
    case formSimulated:
        break;
    }
    return false;
}

/// Reports an argument that has no place in the instruction. @return false
bool ProcAsmWords::refuse(const Opcode* opcode, const Arg* arg)
{
    m_report.signMsg(errUnsupportedArgument, &opcode->srcRef, arg->name);
    return false;
}

/// @return the number fits into an immediate; else an error is reported
bool ProcAsmWords::checkNumber(const Opcode* opcode, const Arg* arg)
{
    if (!exceeds(arg, m_layout.maxNumber))
        return true;
    m_report.signMsg(errExceededMaxNumeric, &opcode->srcRef, arg->name, m_layout.maxNumber);
    return false;
}

bool ProcAsmWords::assembleTwoOperand(Opcode* opcode, const sInstr_t& instr)
{
    const Arg* arg0 = opcode->arg0;
    const Arg* arg1 = opcode->arg1;
    if (arg0->type != Arg::reg)
        return refuse(opcode, arg0);
    const int dst = assembleArg_regDst(arg0);
    if (arg1->type == Arg::reg) {
        opcode->instWord = instr.words[wordRegister] + dst + assembleArg_regSrc(arg1);
        return true;
    }
    if (arg1->type != Arg::numeric)
        return refuse(opcode, arg1);
    if (!checkNumber(opcode, arg1))
        return false;
    opcode->instWord = instr.words[wordNumber] + dst + arg1->iValue;
    return true;
}

bool ProcAsmWords::assemblePort(Opcode* opcode, const sInstr_t& instr)
{
    const Arg* arg0 = opcode->arg0;
    const Arg* arg1 = opcode->arg1;
    const bool isPort = instr.form == formPort;
    if (arg0->type == Arg::numeric && isPort && instr.words[wordConstant] != 0)
        return assembleConstantPort(opcode, instr);
    if (arg0->type != Arg::reg)
        return refuse(opcode, arg0);
    const int dst = assembleArg_regDst(arg0);
    if (arg1->type == Arg::regRef) {
        opcode->instWord = instr.words[wordRegister] + dst + assembleArg_regSrc(arg1);
        return true;
    }
    if (arg1->type == Arg::numeric) {
        const int maximum = isPort ? m_layout.maxPort : m_scrpdMax;
        if (exceeds(arg1, maximum)) {
            const eAsmMsg_t portMsg = m_layout.portIsNumber ? errExceededMaxNumeric : errExceededMaxPort;
            m_report.signMsg(isPort ? portMsg : errExceededScrpdSize, &opcode->srcRef, arg1->name, maximum);
            return false;
        }
        opcode->instWord = instr.words[wordNumber] + dst + (arg1->iValue << m_layout.addrShift);
        return true;
    }
    if (arg1->type == Arg::reg) {
        m_report.signMsg(errUnenclosedRegister, &opcode->srcRef, arg1->name);
        return false;
    }
    return refuse(opcode, arg1);
}

bool ProcAsmWords::assembleConstantPort(Opcode* opcode, const sInstr_t& instr)
{
    const Arg* port = opcode->arg1;
    if (!checkNumber(opcode, opcode->arg0))
        return false;
    if (port->type != Arg::numeric)
        return refuse(opcode, port);
    if (exceeds(port, m_layout.maxConstantPort)) {
        m_report.signMsg(errExceededMaxPort, &opcode->srcRef, port->name, m_layout.maxConstantPort);
        return false;
    }
    opcode->instWord = instr.words[wordConstant] + (opcode->arg0->iValue << m_layout.constantShift) + port->iValue;
    return true;
}

/// Number of the register at its place in the word.
int ProcAsmWords::assembleArg_regDst(const Arg* arg) const
{
    return arg->iValue << m_layout.dstShift;
}

int ProcAsmWords::assembleArg_regSrc(const Arg* arg) const
{
    return arg->iValue << m_layout.srcShift;
}

/// The distance of a jump in 12 bits. A distance that does not fit is reported and cut, so that the run can continue.
int ProcAsmWords::assembleArg_labelOffsAddr(int from, int to)
{
    const int offset = to - from;
    if (offset > 2047)
        m_report.signOffset(QT_TRANSLATE_NOOP("nsProc::ProcAsmBe", "Offset exceeds maximum of 2047"));
    if (offset < -2048)
        m_report.signOffset(QT_TRANSLATE_NOOP("nsProc::ProcAsmBe", "Offset exceeds minimum of -2048"));
    return offset & 0xfff;
}

bool ProcAsmWords::assembleComputedFlow(Opcode* opcode, const sInstr_t& instr)
{
    if (opcode->arg0->type == Arg::reg) {
        m_report.signMsg(errUnenclosedRegisters, &opcode->srcRef);
        return false;
    }
    if (opcode->arg1->type != Arg::regRef)
        return refuse(opcode, opcode->arg1);
    opcode->instWord = instr.words[wordComputed] + assembleArg_regDst(opcode->arg0) + assembleArg_regSrc(opcode->arg1);
    return true;
}

bool ProcAsmWords::assembleFlow(Opcode* opcode, const sInstr_t& instr)
{
    const Arg* arg0 = opcode->arg0;
    const Arg* arg1 = opcode->arg1;
    if (instr.words[wordComputed] != 0 && (arg0->type == Arg::reg || arg0->type == Arg::regRef))
        return assembleComputedFlow(opcode, instr);
    const bool always = arg1->type == Arg::empty;
    const eWordFlow_t word = wordOfFlag(arg0);
    if (!always && word == wordAlways)
        return refuse(opcode, arg0);
    const Arg* target = always ? arg0 : arg1;
    if (target->type != Arg::label)
        return refuse(opcode, target);
    const int addr = target->labelOpcode->pageAddr;
    const int mask = (1 << m_layout.flowBits) - 1;
    // The word has no room for the higher bits of an address, so the core ignores them.
    if (!m_layout.relativeFlow && (addr & ~mask) != 0)
        m_report.signMsg(warnFlowAddrTruncated, &opcode->srcRef, QString::number(addr), addr & mask);
    opcode->instWord = instr.words[always ? wordAlways : word] +
                       (m_layout.relativeFlow ? assembleArg_labelOffsAddr(opcode->pageAddr, addr) : addr & mask);
    return true;
}

bool ProcAsmWords::assembleReturn(Opcode* opcode, const sInstr_t& instr)
{
    if (opcode->arg1->type != Arg::empty)
        return refuse(opcode, opcode->arg1);
    const eWordFlow_t word = wordOfFlag(opcode->arg0);
    if (word == wordAlways && opcode->arg0->type != Arg::empty)
        return refuse(opcode, opcode->arg0);
    opcode->instWord = instr.words[word];
    return true;
}

bool ProcAsmWords::assembleSwitch(Opcode* opcode, const sInstr_t& instr)
{
    if (opcode->arg1->type != Arg::empty)
        return refuse(opcode, opcode->arg1);
    if (opcode->arg0->type != Arg::enable && opcode->arg0->type != Arg::disable)
        return refuse(opcode, opcode->arg0);
    opcode->instWord = instr.words[opcode->arg0->type == Arg::enable ? wordEnable : wordDisable];
    return true;
}

bool ProcAsmWords::assembleNone(Opcode* opcode, const sInstr_t& instr)
{
    for (const Arg* arg : {opcode->arg0, opcode->arg1}) {
        if (arg->type != Arg::empty)
            return refuse(opcode, arg);
    }
    opcode->instWord = instr.words[0];
    return true;
}

bool ProcAsmWords::assembleReg(Opcode* opcode, const sInstr_t& instr)
{
    if (opcode->arg0->type != Arg::reg)
        return refuse(opcode, opcode->arg0);
    if (opcode->arg1->type != Arg::empty)
        return refuse(opcode, opcode->arg1);
    opcode->instWord = instr.words[0] + assembleArg_regDst(opcode->arg0);
    return true;
}

bool ProcAsmWords::assembleRegNumber(Opcode* opcode, const sInstr_t& instr)
{
    if (opcode->arg0->type != Arg::reg)
        return refuse(opcode, opcode->arg0);
    if (opcode->arg1->type != Arg::numeric)
        return refuse(opcode, opcode->arg1);
    if (!checkNumber(opcode, opcode->arg1))
        return false;
    opcode->instWord = instr.words[0] + assembleArg_regDst(opcode->arg0) + opcode->arg1->iValue;
    return true;
}

bool ProcAsmWords::assembleRotate(Opcode* opcode, const sInstr_t& instr)
{
    const Arg* arg0 = opcode->arg0;
    const Arg* arg1 = opcode->arg1;
    if (arg0->type != Arg::reg)
        return refuse(opcode, arg0);
    if (arg1->type != Arg::reg && arg1->type != Arg::empty)
        return refuse(opcode, arg1);
    // With one register, it is source and destination.
    const Arg* source = arg1->type == Arg::reg ? arg1 : arg0;
    opcode->instWord = instr.words[0] + assembleArg_regDst(arg0) + assembleArg_regSrc(source);
    return true;
}

bool ProcAsmWords::assembleFlag(Opcode* opcode, const sInstr_t& instr)
{
    if (opcode->arg1->type != Arg::empty)
        return refuse(opcode, opcode->arg1);
    if (opcode->arg0->type == Arg::empty) {
        m_report.signMsg(errMissingArgument, &opcode->srcRef);
        return false;
    }
    if (opcode->arg0->type != Arg::flagC && opcode->arg0->type != Arg::flagZ)
        return refuse(opcode, opcode->arg0);
    opcode->instWord = instr.words[opcode->arg0->type == Arg::flagC ? wordFlagC : wordFlagZ];
    return true;
}

bool ProcAsmWords::assembleBank(Opcode* opcode, const sInstr_t& instr)
{
    if (opcode->arg0->type != Arg::regBank)
        return refuse(opcode, opcode->arg0);
    if (opcode->arg1->type != Arg::empty)
        return refuse(opcode, opcode->arg1);
    opcode->instWord = instr.words[0] + opcode->arg0->iValue;
    return true;
}

} // namespace nsProc

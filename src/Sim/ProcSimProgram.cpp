#include "ProcSimProgram.h"

#include "Opcode.h"
#include "OpcodeList.h"

#include <QCoreApplication>

namespace nsProc {

using namespace nsModAsmFe;

namespace {

/// The context of the translation is the class that shows the messages.
QString tr(const char* text)
{
    return QCoreApplication::translate("nsProc::ProcSim", text);
}

const int maxRegIndex = 255; ///< that a decoded instruction can hold

} // namespace

/// Decodes one instruction. Only its first fault counts, as the arguments are read one after the other.
class ProcSimProgram::Decoder
{
public:
    Decoder(ProcSimProgram* program, int position, int regCount)
        : m_program(*program)
        , m_position(position)
        , m_regCount(regCount)
        , m_opcode(*program->m_opcodes[size_t(position)])
        , m_instr(program->m_instrs[size_t(position)])
    {
    }

    void decode();

private:
    void decodeArgs();
    void decodeFlow();
    void decodeSwitch();
    void decodeRegBank();
    void decodeFlag();
    void decodeWrPrt();

    void fail(const QString& text) { fail({sSimReport_t::eKindInternal, errNoOpcodeToExec, text, 0, false}); }
    void fail(const sSimReport_t& report);
    void getValueReg(const Arg* arg, quint8* reg, Arg::eArgType_t type = Arg::reg);
    void setValueReg(const Arg* arg);
    void getValueRegNum(const Arg* arg);
    void getValueNum(const Arg* arg, int* value);
    void getValueLabel(const Arg* arg);
    bool condition(const Arg* arg);
    bool isLeftToStep() const;
    bool mayEndHere() const;

    ProcSimProgram& m_program;
    int m_position;
    int m_regCount;
    const Opcode& m_opcode;
    sSimInstr_t& m_instr;
    bool m_isLate = false;       ///< faults from now on
    const Arg* m_read = nullptr; ///< the register that was read last
};

void ProcSimProgram::Decoder::decode()
{
    m_instr.op = m_opcode.opcode >= 0 && m_opcode.opcode < ocCount ? quint8(m_opcode.opcode) : quint8(ocUndefined);
    m_instr.mode = sSimInstr_t::byNumber;
    m_instr.next = m_position + 1 < m_program.count() ? m_position + 1 : sSimInstr_t::none;
    m_instr.target = sSimInstr_t::none;
    if (!m_program.m_table->isExecuted(eOpcode_t(m_instr.op)))
        m_instr.op = ocUndefined;
    decodeArgs();
    if (m_program.m_faults.contains(m_position) || isLeftToStep() || mayEndHere())
        m_instr.op |= sSimInstr_t::leftToStep;
}

bool ProcSimProgram::Decoder::isLeftToStep() const
{
    switch (m_instr.op) {
    case ocJump:
    case ocCall:
        return m_instr.target < 0;
    case ocRdprt:
    case ocWrprt:
    case ocHwbuild:
        return true;
    default:
        return false;
    }
}

void ProcSimProgram::Decoder::decodeArgs()
{
    const Arg* first = m_opcode.arg0;
    const Arg* second = m_opcode.arg1;
    switch (m_instr.op) {
    case ocUndefined:
    case ocNop:
        return;
    case ocJump:
    case ocCall:
        return decodeFlow();
    case ocRet:
        m_instr.mode = sSimInstr_t::always;
        if (first->type != Arg::empty)
            condition(first);
        return;
    case ocInt:
    case ocReti:
        return decodeSwitch();
    case ocRegbank:
        return decodeRegBank();
    case ocClr:
    case ocSet:
        return decodeFlag();
    case ocWrprt:
        return decodeWrPrt();
    case ocLoad:
    case ocStar:
        getValueRegNum(second);
        return setValueReg(first);
    case ocLoadret:
        if (second->type != Arg::numeric)
            fail(tr("Can not get value of argument: %1").arg(second->name));
        m_instr.value = second->iValue;
        return setValueReg(first);
    case ocRdmem:
    case ocRdprt:
        getValueRegNum(second);
        m_isLate = true;
        return setValueReg(first);
    case ocHwbuild:
        m_isLate = true;
        return setValueReg(first);
    case ocRol:
    case ocRolc:
    case ocRor:
    case ocRorc:
    case ocSl0:
    case ocSl1:
    case ocSlx:
    case ocSr0:
    case ocSr1:
    case ocSrx:
        return getValueReg(first, &m_instr.dst);
    default:
        getValueReg(first, &m_instr.dst);
        return getValueRegNum(second);
    }
}

/// Is there a way to the instruction that follows, and no such instruction?
bool ProcSimProgram::Decoder::mayEndHere() const
{
    if (m_instr.next != sSimInstr_t::none)
        return false;
    switch (m_instr.op) {
    case ocJump:
    case ocCall:
    case ocRet:
        return m_instr.mode != sSimInstr_t::always;
    case ocReti:
    case ocLoadret:
        return false;
    default:
        return true;
    }
}

void ProcSimProgram::Decoder::decodeFlow()
{
    m_instr.mode = sSimInstr_t::always;
    const Arg* arg = m_opcode.arg0;
    if (arg->type == Arg::label) {
        getValueLabel(arg);
    } else if (arg->type == Arg::regRef && m_program.m_table->sim.takesComputedTargets) {
        getValueReg(arg, &m_instr.dst, Arg::regRef);
        getValueReg(m_opcode.arg1, &m_instr.src, Arg::regRef);
        m_instr.target = sSimInstr_t::computed;
    } else if (condition(arg)) {
        // A label that is not needed is not looked at.
        m_isLate = true;
        getValueLabel(m_opcode.arg1);
    }
}

void ProcSimProgram::Decoder::decodeSwitch()
{
    const Arg::eArgType_t type = m_opcode.arg0->type;
    m_instr.value = type == Arg::enable ? 1 : 0;
    if (m_instr.op == ocInt && type != Arg::enable && type != Arg::disable)
        fail(tr("Unsupported argument!"));
}

void ProcSimProgram::Decoder::decodeRegBank()
{
    m_instr.value = m_opcode.arg0->iValue;
    if (m_instr.value != 0 && m_instr.value != 1)
        fail(tr("Can not get value of argument: %1").arg(m_opcode.arg0->name));
}

void ProcSimProgram::Decoder::decodeFlag()
{
    const Arg::eArgType_t type = m_opcode.arg0->type;
    m_instr.dst = type == Arg::flagZ ? 1 : 0;
    if (type != Arg::flagC && type != Arg::flagZ)
        fail(tr("Unsupported argument!"));
}

void ProcSimProgram::Decoder::decodeWrPrt()
{
    if (m_program.m_table->sim.takesPortConstants && m_opcode.arg0->type == Arg::numeric) {
        m_instr.mode = sSimInstr_t::constantPort;
        getValueNum(m_opcode.arg0, &m_instr.target);
        getValueNum(m_opcode.arg1, &m_instr.value);
        return;
    }
    getValueReg(m_opcode.arg0, &m_instr.dst);
    getValueRegNum(m_opcode.arg1);
}

void ProcSimProgram::Decoder::fail(const sSimReport_t& report)
{
    if (!m_program.m_faults.contains(m_position))
        m_program.m_faults.insert(m_position, {report, m_isLate, m_read});
}

void ProcSimProgram::Decoder::getValueReg(const Arg* arg, quint8* reg, Arg::eArgType_t type)
{
    if (arg->type != type)
        fail((type == Arg::reg ? tr("Argument is no register: %1") : tr("Argument is no register reference: %1"))
                 .arg(arg->name));
    else if (arg->iValue >= m_regCount || arg->iValue > maxRegIndex)
        fail(tr("Register index exceeds register count: %1").arg(arg->name));
    else if (arg->iValue < 0)
        fail({sSimReport_t::eKindMessage, errRegRd, arg->name, 0, false});
    else
        *reg = quint8(arg->iValue);
    m_read = arg;
}

/// A register that is only written.
void ProcSimProgram::Decoder::setValueReg(const Arg* arg)
{
    if (arg->type == Arg::reg && arg->iValue < 0)
        fail(tr("Register index exceeds register count: %1").arg(arg->name));
    else
        getValueReg(arg, &m_instr.dst);
}

void ProcSimProgram::Decoder::getValueRegNum(const Arg* arg)
{
    switch (arg->type) {
    case Arg::reg:
    case Arg::regRef:
        m_instr.mode = sSimInstr_t::byRegister;
        getValueReg(arg, &m_instr.src, arg->type);
        break;
    case Arg::numeric:
        m_instr.value = arg->iValue;
        break;
    default:
        fail(tr("Can not get value of argument: %1").arg(arg->name));
    }
}

void ProcSimProgram::Decoder::getValueNum(const Arg* arg, int* value)
{
    if (arg->type != Arg::numeric)
        fail(tr("Argument is no numeric: %1").arg(arg->name));
    *value = arg->iValue;
}

void ProcSimProgram::Decoder::getValueLabel(const Arg* arg)
{
    if (arg->type != Arg::label)
        fail(tr("Argument is no label: %1").arg(arg->name));
    else if (arg->labelOpcode == nullptr)
        fail(tr("Label is not resolved: %1").arg(arg->name));
    else
        m_instr.target = m_program.positionOf(arg->labelOpcode);
}

bool ProcSimProgram::Decoder::condition(const Arg* arg)
{
    switch (arg->type) {
    case Arg::flagC:
        m_instr.mode = sSimInstr_t::ifCarry;
        return true;
    case Arg::flagNC:
        m_instr.mode = sSimInstr_t::ifNotCarry;
        return true;
    case Arg::flagZ:
        m_instr.mode = sSimInstr_t::ifZero;
        return true;
    case Arg::flagNZ:
        m_instr.mode = sSimInstr_t::ifNotZero;
        return true;
    default:
        fail(tr("Unsupported argument!"));
        return false;
    }
}

void ProcSimProgram::clear()
{
    m_instrs.clear();
    m_opcodes.clear();
    m_positions.clear();
    m_faults.clear();
    m_isPlaced = true;
    m_hasShared = false;
    m_pageSize = 0;
}

void ProcSimProgram::decode(const OpcodeList& opcodes, int regCount, int rangeCount)
{
    clear();
    m_opcodes.assign(opcodes.begin(), opcodes.end());
    m_instrs.resize(m_opcodes.size());
    m_positions.reserve(count());
    for (int position = 0; position < count(); ++position) {
        const Opcode* opcode = m_opcodes[size_t(position)];
        m_positions.insert(opcode, position);
        m_isPlaced = m_isPlaced && opcode->memRange >= 0 && opcode->memRange < rangeCount;
        m_hasShared = m_hasShared || opcode->memRange == 0;
    }
    for (int position = 0; position < count(); ++position)
        Decoder(this, position, regCount).decode();
}

void ProcSimProgram::leaveToStep(const std::function<bool(const sSimInstr_t&)>& isLeft)
{
    for (sSimInstr_t& instr : m_instrs) {
        if (isLeft(instr))
            instr.op |= sSimInstr_t::leftToStep;
    }
}

int ProcSimProgram::positionOf(const Opcode* opcode) const
{
    return m_positions.value(opcode, sSimInstr_t::none);
}

int ProcSimProgram::address(int position) const
{
    return m_pageSize > 0 ? position % m_pageSize : m_opcodes[size_t(position)]->pageAddr;
}

int ProcSimProgram::word(int position) const
{
    const Opcode* opcode = m_opcodes[size_t(position)];
    return opcode != nullptr ? opcode->instWord : 0;
}

const ProcSimProgram::sFault_t* ProcSimProgram::fault(int position) const
{
    if (m_faults.isEmpty())
        return nullptr;
    const auto found = m_faults.constFind(position);
    return found == m_faults.constEnd() ? nullptr : &found.value();
}

bool ProcSimProgram::isFirstOfLine(int position) const
{
    return position == 0 ||
           m_opcodes[size_t(position - 1)]->srcRef.absLineNo < m_opcodes[size_t(position)]->srcRef.absLineNo;
}

} // namespace nsProc

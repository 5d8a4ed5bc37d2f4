#pragma once

#include "ProcSimCoreData.h"
#include "ProcSimExact.h"
#include "ProcSimInstr.h"
#include "ProcSimObserver.h"
#include "ProcSimPorts.h"

#include "Opcode.h"

namespace nsProc {

/// The machine of a single instruction as the core executes it, with the marks that views show.
class ProcSimEngine::Exact::Step
{
public:
    /// What of the instruction comes to something.
    enum ePart_t {
        eWhole,
        eFlagsAlone, ///< it is pre-empted, and leaves its flags nevertheless
        eHalf,       ///< the core is reset meanwhile: registers, scratchpad and strobes alone
    };

    Step(Exact* exact, int position, ePart_t part, SimOutcome* outcome)
        : logicClearsCarry(exact->m_engine.m_table->sim.logicClearsCarry)
        , chainsZero(exact->m_engine.m_table->sim.chainsZero)
        , rotateKeepsCarry(exact->traits().rotateKeepsCarry)
        , m_exact(*exact)
        , m_engine(exact->m_engine)
        , m_core(*exact->m_engine.m_core)
        , m_outcome(*outcome)
        , m_instr(exact->program().instr(position))
        , m_opcode(exact->program().opcode(position))
        , m_position(position)
        , m_part(part)
    {
    }

    /// @return executed
    bool execute() { return ProcSimInstr<Step>::execute(*this, m_instr.opcode(), m_instr); }
    /// It was a flow whose condition holds, or without one.
    bool isTaken() const { return m_isTaken; }

    const bool logicClearsCarry;
    const bool chainsZero;
    static constexpr bool chainsLowByte = true;
    const bool rotateKeepsCarry;

    // For the instructions.
    int dstReg(const sSimInstr_t& in) { return reg(in.dst, 0); }
    int srcReg(const sSimInstr_t& in);
    int shiftedReg(const sSimInstr_t& in) { return m_exact.traits().rotatesSource ? srcReg(in) : dstReg(in); }
    bool setReg(const sSimInstr_t& in, int value);
    bool setOtherReg(const sSimInstr_t& in, int value);
    bool carry() const { return m_core.carryBit() != 0; }
    bool zero() const { return m_core.zeroBit() != 0; }
    void setCarry(bool value)
    {
        if (m_part != eHalf)
            m_core.setCarryBit(value);
    }
    void setZero(bool value)
    {
        if (m_part != eHalf)
            m_core.setZeroBit(value);
    }
    void setBank(int bank)
    {
        if (m_part == eWhole)
            m_core.setBank(bank);
    }
    void setInterrupt(eInt_t state);

    bool goTo(int position)
    {
        if (m_part == eWhole)
            m_next = position;
        return true;
    }
    bool flowTarget(const sSimInstr_t& in, int* target);
    bool pushToCallstack();
    bool mayReturn();
    bool returnFromCall();
    bool returnFromInterrupt();

    bool readHwbld(int* value);
    bool readScrpd(int addr, int* value);
    bool writeScrpd(int addr, int value);
    bool readPort(int addr, int* value);
    void notePortRead(int addr, int value);
    bool writePort(int addr, int value);
    bool simOpcode_unsupported();

    /// Where the instruction leads.
    int next() const { return m_next; }
    /// It has made the core reset itself.
    bool resetsCore() const { return m_resets; }

private:
    int reg(int index, int argument)
    {
        int value = 0;
        m_core.reg(index, alias(argument), &value);
        return value;
    }
    QString alias(int argument) const;
    bool refuse(eSimMsg_t msg)
    {
        m_outcome.report(msg);
        return false;
    }
    /// A port or scratchpad address with what other registers add to one in a register.
    int longAddress(int addr) const;
    /// The cell of the scratchpad that an address selects.
    bool selectScrpd(int* addr, eSimMsg_t msg);

    Exact& m_exact;
    ProcSimEngine& m_engine;
    ProcSimCoreData& m_core;
    SimOutcome& m_outcome;
    const sSimInstr_t m_instr;          ///< a copy: an observer may change the program
    const nsModAsmFe::Opcode* m_opcode; ///< null for an empty cell
    int m_position;
    ePart_t m_part;
    int m_port = 0; ///< that is read
    int m_next = sSimInstr_t::none;
    bool m_isTaken = false;
    bool m_resets = false;
};

} // namespace nsProc

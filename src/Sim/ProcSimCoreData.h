#pragma once

#include "ProcSimTypes.h"

#include <QString>
#include <QtGlobal>

#include <vector>

namespace nsProc {

/// The state of a simulated processor core: registers, flags, scratchpad, interrupt state and the displayed program
/// counter.
///
/// These values are stored nowhere else. The widgets show them and change them when the user types, the simulator reads
/// and writes them with each instruction. Uses no widgets, so a run needs none.
///
/// A value that the program has set is highlighted until clearHighlighted(), whose cost does not depend on the number
/// of highlights.
class ProcSimCoreData
{
public:
    /// @param regCount registers of a bank
    /// @param bankCount register banks, 1 or 2
    /// @param scrpdSize bytes of the scratchpad; negative counts as 0
    ProcSimCoreData(int regCount, int bankCount, int scrpdSize);

    // Registers, 0 to 255 each. Those without a bank work on the selected one.
    int regCount() const { return m_regCount; }
    int bankCount() const { return m_bankCount; }
    /// The program sets a register.
    /// @param alias the name that the program used
    /// @param value its low 8 bits are taken
    /// @return false, with nothing changed, for an index not below regCount()
    bool setReg(int index, const QString& alias, int value);
    /// The program reads a register.
    /// @return false, with nothing changed, for an index not below regCount()
    bool reg(int index, const QString& alias, int* value);
    int bank() const { return m_bank; }
    /// Anything but 1 is bank 0; so is 1 where there is one bank only.
    void setBank(int bank) { m_bank = bank == 1 && m_bankCount > 1 ? 1 : 0; }
    void toggleBank() { setBank(1 - m_bank); }

    // For display and edits. The index must be below regCount(), the bank below bankCount().
    int regValue(int bank, int index) const { return m_values[cell(bank, index)]; }
    const QString& regAlias(int bank, int index) const { return mark(bank, index).alias; }
    bool isRegHighlighted(int bank, int index) const { return mark(bank, index).step == m_step; }
    /// The user sets a register: it is not highlighted.
    void editReg(int bank, int index, int value) { m_values[cell(bank, index)] = quint8(value); }
    /// The program names a register of the selected bank without a use of its value. @param index below regCount()
    void noteAlias(int index, const QString& alias);

    // For a run of many instructions, which sets values alone: marks and aliases stay as they are.
    /// The values of a bank, regCount() of them.
    quint8* regValues(int bank) { return m_values.data() + cell(bank, 0); }
    /// The first cells of the scratchpad; those behind them were not written yet, and are 0.
    quint8* scrpdValues() { return m_scrpd.data(); }
    int scrpdValueCount() const { return int(m_scrpd.size()); }

    // Flags, 0 or 1.
    void setCarryBit(int value);
    int carryBit() const { return m_carry; }
    bool isCarryHighlighted() const { return m_carryStep == m_step; }
    void editCarryBit(int value) { m_carry = value != 0; }
    void setZeroBit(int value);
    int zeroBit() const { return m_zero; }
    bool isZeroHighlighted() const { return m_zeroStep == m_step; }
    void editZeroBit(int value) { m_zero = value != 0; }

    void setInterrupt(eInt_t state) { m_interrupt = state; }
    eInt_t interrupt() const { return m_interrupt; }

    /// Value that the instruction `HWBUILD` reads, 0 to 255; the user sets it. Negative: there is none at present.
    void setHwbld(int value) { m_hwbld = value < 0 ? -1 : value & 0xFF; }
    int hwbld() const { return m_hwbld; }
    /// @return false, with nothing changed, if there is no value
    bool readHwbld(int* value) const
    {
        if (m_hwbld >= 0)
            *value = m_hwbld;
        return m_hwbld >= 0;
    }

    // Scratchpad, bytes.
    int scrpdSize() const { return m_scrpdSize; }
    /// Sets the first cells.
    /// @return false, with nothing changed, with more values than cells
    bool initScrpd(const unsigned int* values, int count);
    /// The program writes a cell; it is then the one that is highlighted.
    /// @return false, with nothing changed, for an address outside
    bool setScrpd(int addr, int value);
    bool scrpd(int addr, int* value) const;
    /// The user sets a cell.
    void editScrpd(int addr, int value);
    /// All cells to 0.
    void clearScrpd();
    /// The highlighted cell, -1 if there is none.
    int scrpdHighlighted() const { return m_scrpdStep == m_step ? m_scrpdAddr : -1; }

    /// What is shown as the address of the next instruction, with the name of its page.
    /// @param pageName shared with the caller's list
    void setPc(int addr, const QString& pageName);
    int pc() const { return m_pc; }
    const QString& pageName() const { return m_pageName; }

    void clearHighlighted() { ++m_step; }
    /// Registers of all banks, flags and scratchpad to 0, aliases empty, highlights off, interrupt disabled. The bank
    /// stays selected.
    void clear();

    /// @return true once after the program has changed a flag: the widget of the core is then brought to the front
    bool takeContentChanged();

private:
    /// What is shown of a register beside its value.
    struct sMark_t
    {
        QString alias;
        quint64 step = 0; ///< highlighted while this is the current step
    };

    size_t cell(int bank, int index) const { return size_t(bank * m_regCount + index); }
    sMark_t& mark(int bank, int index) { return m_marks[cell(bank, index)]; }
    const sMark_t& mark(int bank, int index) const { return m_marks[cell(bank, index)]; }
    void storeScrpd(int addr, int value);

    int m_regCount;
    int m_bankCount;
    int m_scrpdSize;
    std::vector<quint8> m_values; ///< bank by bank
    std::vector<sMark_t> m_marks; ///< the same
    /// Grows with the highest address written: a scratchpad may be declared far larger than a program can reach.
    std::vector<quint8> m_scrpd;
    int m_bank = 0;
    int m_carry = 0;
    int m_zero = 0;
    eInt_t m_interrupt = eIntDisabled;
    int m_hwbld = 0;
    int m_pc = 0;
    QString m_pageName;
    int m_scrpdAddr = -1;
    bool m_contentChanged = false;
    quint64 m_step = 1;
    quint64 m_carryStep = 0;
    quint64 m_zeroStep = 0;
    quint64 m_scrpdStep = 0;
};

} // namespace nsProc

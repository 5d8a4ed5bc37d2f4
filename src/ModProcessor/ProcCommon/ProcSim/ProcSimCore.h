#pragma once

#include "ProcSimTypes.h"

#include <QWidget>

#include <memory>

class QCheckBox;
class QFrame;
class QGridLayout;
class QLabel;

namespace nsProc {

class ProcSimCoreData;
class ProcSimCoreReg;
class ProcSimEdtBit;
class ProcSimEdtInterrupt;
class ProcSimEdtNumeric;
class ProcSimScrpd;

/// The dock of a simulated core: program counter, flags, interrupt, registers and scratchpad, all to be edited.
///
/// It shows a ProcSimCoreData, and each keystroke of the user changes it at once. An address for the program counter is
/// reported by a signal when it is complete, as the data does not know the instructions.
class ProcSimCore : public QWidget
{
    Q_OBJECT

public:
    ~ProcSimCore() override;

    const std::shared_ptr<ProcSimCoreData>& data() const { return m_data; }
    /// @param base 8, 10 or 16
    void setBase(int base);
    /// The interrupt is an input with a level: a switch holds it, and a click on the state lifts it for one clock.
    void setExact(bool isExact);
    /// During a run the field of the program counter is read-only, as its value changes all the time.
    void setRunning(bool running);
    /// An address that the user has typed for the program counter and not ended with Return; it is reported no more
    /// after this.
    /// @return false, with nothing changed, if there is none
    bool takeTypedPc(int* addr);
    /// Shows what has changed in the data, and emits contentChanged() if the program has changed a flag.
    void refresh();

    // Access to the state; the display is updated at once.
    void setCarryBit(int value);
    int carryBit() const;
    void setZeroBit(int value);
    int zeroBit() const;
    /// @return false for an index not below the number of registers
    bool setReg(int index, const QString& alias, int value);
    /// @return false for an index not below the number of registers
    bool reg(int index, const QString& alias, int* value);
    bool initScrpd(unsigned int* values, int count);
    bool setScrpd(int addr, int value);
    bool scrpd(int addr, int* value) const;
    void setInterrupt(eInt_t state);
    eInt_t interrupt() const;
    void setPc(int addr, const QString& pageName);
    int pc() const;
    void clearHighlighted();
    void clear();

signals:
    /// A value was changed that the user wants to see. @param widget this
    void contentChanged(QWidget* widget);
    /// The user has typed an address for the program counter, which the display shows until the next refresh().
    void pcTyped(int addr);
    /// Of an exact simulation: the interrupt input is to be held, or let go.
    void interruptHeld(bool up);
    /// The same: it is to be up for one clock.
    void interruptRequested();

protected:
    /// @param pcMax highest address of the program counter
    /// @param regs shows the registers of the same data; owned by the core from now on
    ProcSimCore(std::shared_ptr<ProcSimCoreData> data, int pcMax, ProcSimCoreReg* regs, QWidget* parent = nullptr);

    /// Adds a field for the value that `HWBUILD` reads.
    void addHwbld();

private:
    QFrame* hLine();
    void addWhatsThis();
    void changeInterrupt();
    QLabel* title(const QString& text, QWidget* buddy, const QString& toolTip);

    std::shared_ptr<ProcSimCoreData> m_data;
    QGridLayout* m_head;
    ProcSimEdtNumeric* m_pc;
    QLabel* m_pageName;
    ProcSimEdtNumeric* m_hwbld = nullptr; ///< null where there is none
    ProcSimEdtBit* m_carry;
    ProcSimEdtBit* m_zero;
    ProcSimEdtInterrupt* m_interrupt;
    QCheckBox* m_hold;
    ProcSimCoreReg* m_regs;
    ProcSimScrpd* m_scrpd;
    bool m_isExact = false;
};

} // namespace nsProc

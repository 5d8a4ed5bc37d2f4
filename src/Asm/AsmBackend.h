#pragma once

#include <QHash>
#include <QString>

namespace nsModAsmFe {

class AsmFeMsgHndlr;
class IODevList;
class OpcodeList;
class RunWatch;
class SetList;

/// The part of the program that a back end works on during a run, and the settings that concern it. Nothing is owned;
/// all of it lives until the run has ended.
struct AsmBeProgram
{
    OpcodeList* opcodes = nullptr;     ///< read, and their machine words written
    SetList* sets = nullptr;           ///< read, and those of the processor marked as used
    IODevList* ioDevs = nullptr;       ///< read; filled before the second stage
    AsmFeMsgHndlr* msgHndlr = nullptr; ///< reports
    RunWatch* watch = nullptr;         ///< of the run in progress; null outside of a run
    bool isSetRefused = false;         ///< a `#SET` over a setting of the configuration is an error
    bool isSetWarned = false;          ///< a `#SET` over a setting of the configuration warns
    int pageSize = 0;                  ///< words of an instruction memory page, from the memory mapper
    int pageCount = 1;                 ///< pages of the instruction memory
    bool isSharedMemHigh = true;       ///< the shared range lies at the top of a page
    int chkIntVector = 1;              ///< no instruction at the interrupt vector: 0 error, 1 warning, 2 no check
};

/// The processor's part of the assembler, as the stages see it: its names, its words, its checks.
class AsmBackend
{
public:
    virtual ~AsmBackend() = default;

    /// Display name, such as "Xilinx PicoBlaze 3".
    virtual QString processorName() = 0;
    /// Name that sources can test with `#IFDEF`, such as "PROC::XPBLZE3".
    virtual QString processorDefine() = 0;
    /// Register names with their numbers, matched with case; null if there are none. Owned by the back end.
    virtual const QHash<QString, int>* regNames() = 0;
    /// Names of register banks with their numbers; null if there are none. Owned by the back end.
    virtual const QHash<QString, int>* regBankNames() = 0;
    /// Default page size of the memory mapper, in words.
    virtual int beConfig() = 0;
    /// Writes the machine words. Runs after the instruction check.
    /// @return false after at least one reported error
    virtual bool assembleStage1(const AsmBeProgram& program) = 0;
    /// Checks what depends on the IO devices.
    virtual bool assembleStage2(const AsmBeProgram& program) = 0;
    /// A run has ended.
    virtual void setAssembled(bool assembled) = 0;
};

} // namespace nsModAsmFe

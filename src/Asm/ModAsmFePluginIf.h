#pragma once

#include <QHash>
#include <QString>

class ModAsmFeHookIf;

/// A client of the assembler.
class ModAsmFePluginIf
{
public:
    virtual ~ModAsmFePluginIf() = default;

    /// A run has ended, whatever it came to. Its messages stand in the view.
    virtual void asmRunEnded() {}

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModAsmFeHookIf* modAsmFeHook = nullptr;
};

/// A client that wants the hook and nothing else.
class ModAsmFePluginIfInterMod
{
public:
    virtual ~ModAsmFePluginIfInterMod() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModAsmFeHookIf* modAsmFeHook = nullptr;
};

/// The processor's part of the assembler: its names, its words, its checks.
class ModAsmFePluginIfBackend
{
public:
    virtual ~ModAsmFePluginIfBackend() = default;

    /// Display name, such as "Xilinx PicoBlaze 3".
    virtual QString processorName() = 0;
    /// Name that sources can test with `#IFDEF`, such as "PROC::XPBLZE3".
    virtual QString processorDefine() = 0;
    /// Register names with their numbers, matched with case; null if there are none. Owned by the back end.
    virtual const QHash<QString, int>* regNames() = 0;
    /// Names of register banks with their numbers; null if there are none. Owned by the back end.
    virtual const QHash<QString, int>* regBankNames() = 0;
    /// Writes the machine words. Runs after the instruction check.
    /// @return false after at least one reported error
    virtual bool assembleStage1() = 0;
    /// Checks what depends on the IO devices.
    virtual bool assembleStage2() = 0;
    /// A run has ended.
    virtual void setAssembled(bool assembled) = 0;
    /// Default page size of the memory mapper, in words.
    virtual int beConfig() = 0;

    /// Set by the server while the back end is registered, null otherwise. Not owned.
    ModAsmFeHookIf* modAsmFeHook = nullptr;
};

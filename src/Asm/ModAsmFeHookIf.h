#pragma once

#include "SymbolTable.h"

#include <QVector>

class ModAsmFePluginIf;
class ModAsmFePluginIfBackend;
class ModAsmFePluginIfInterMod;

namespace nsModAsmFe {
class AsmFeFileHndlr;
class AsmFeMsgHndlr;
class AsmFeParseArg;
class AsmWords;
class EquList;
class IODevList;
class LabelList;
class OpcodeList;
class OrgList;
class SetList;
struct sSymbolSource;
} // namespace nsModAsmFe

/// The assembled program and the assembler's settings. Served by nsModAsmFe::ModAsmFe.
///
/// The lists belong to the server. Their elements live until the next run starts: clients must not keep a pointer to
/// one beyond that, and must not read them while isAssembled() is false.
class ModAsmFeHookIf
{
public:
    virtual ~ModAsmFeHookIf() = default;

    virtual void registerPlugin(ModAsmFePluginIfInterMod* plugin) = 0;
    virtual void unregisterPlugin(ModAsmFePluginIfInterMod* plugin) = 0;
    virtual void registerPlugin(ModAsmFePluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModAsmFePluginIf* plugin) = 0;
    /// One back end at a time: a further one takes the place of the present one.
    virtual void registerPlugin(ModAsmFePluginIfBackend* plugin) = 0;
    virtual void unregisterPlugin(ModAsmFePluginIfBackend* plugin) = 0;

    virtual nsModAsmFe::LabelList* labelList() = 0;
    virtual nsModAsmFe::EquList* equList() = 0;
    virtual nsModAsmFe::OrgList* orgList() = 0;
    virtual nsModAsmFe::SetList* setList() = 0;
    virtual nsModAsmFe::OpcodeList* opcodeList() = 0;
    virtual nsModAsmFe::IODevList* ioDevList() = 0;

    /// @return a `#SET` over a setting of the configuration is an error
    virtual bool setOverwriteBehaviorError() = 0;
    /// @return a `#SET` over a setting of the configuration warns
    virtual bool setOverwriteBehaviorWarning() = 0;
    /// @return the last run succeeded, or the present one has so far
    virtual bool isAssembled() = 0;
    /// Size of a page in words, number of pages, and whether the shared range lies at the top of a page.
    /// @return isAssembled(); the values are filled in any case
    virtual bool instMemConfig(int* pageSize, int* pageCount, bool* sharedMemHi) = 0;

    virtual nsModAsmFe::AsmFeFileHndlr* fileHndlr() = 0;
    virtual nsModAsmFe::AsmFeMsgHndlr* msgHndlr() = 0;
    virtual nsModAsmFe::AsmFeParseArg* parseArg() = 0;
    /// Check of the interrupt vector: 0 error if no instruction stands there, 1 warning, 2 no check.
    virtual int asmBehaviorChkIntVector() = 0;

    /// The names in these sources with all their places, as they stand now, and the values that they have in the
    /// program of the last run. Takes some milliseconds for ten thousand lines.
    virtual nsModAsmFe::SymbolTable symbolTable(const QVector<nsModAsmFe::sSymbolSource>&) { return {}; }
    /// The words with a meaning, of language and processor; null if the server knows none. Owned by the server.
    virtual const nsModAsmFe::AsmWords* words() { return nullptr; }
    /// Names of all character sets that a string can be encoded in.
    virtual QStringList charsetNames() { return {}; }
    /// Hands the addresses of the program over to the editor once more, for documents that came later than the run.
    virtual void handOverAddresses() {}
    /// Fills the list of constants, as a run for outputs does.
    virtual void showEquList() {}
};

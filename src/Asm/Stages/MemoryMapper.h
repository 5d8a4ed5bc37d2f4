#pragma once

#include <QString>

namespace nsModAsmFe {

class AsmFeConfig;
class AsmFeMsgHndlr;
class AsmFeParseArg;
class MemRangeList;
class Opcode;
class OpcodeList;
class OrgList;
class RunWatch;
class Set;
class SetList;
struct AsmMemGeometry;
struct AsmProgram;
struct SrcReference;

/// The instruction memory: its pages and ranges, and the address of each instruction.
class MemoryMapper
{
public:
    /// @param program read: origins and settings, which are marked as used; written: ranges, geometry, and the
    /// addresses of the instructions
    /// @param config read: what a `#SET` over a setting does
    MemoryMapper(AsmProgram& program, const AsmFeConfig& config, const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages,
                 RunWatch& watch);

    /// Checks the `#ORG`s and gives them their types. @return false after a reported error
    bool mapOpcodeToMemCheckOrgDirectives();
    /// Maps the program. Origins and settings have been checked.
    /// @param pageSize of the processor, in words, where the sources name none
    /// @return false after a reported error
    bool mapOpcodeToMem(int pageSize);
    /// Reports instructions that refer to another page. Needs the types of the arguments.
    bool mapOpcodeToMemCheckForInterPageReferencing();

private:
    bool mapOpcodeToMemSetConfig(int pageSize);
    bool mapOpcodeToMemSetConfigNumber(Set* set, int* value, const char* name);
    bool mapOpcodeToMemSetConfigSharedLocation(Set* set);
    bool mapOpcodeToMemSetRanges();
    bool addMemRanges();
    void assignMemRanges();
    bool mapOpcodeToMemSetAddresses();
    bool applyOrgAddresses();
    bool mapSharedRange(int* pageStart, int* pageLimit);
    bool placeOpcode(Opcode* opcode, int range, int* free, int limit);
    bool mapOpcodeToMemSetAddressesUpwards(int range, int start, int* limit);
    bool mapOpcodeToMemSetAddressesDownwards(int range, int* start, int limit);
    bool mapOpcodeToMemCheckForUnmappedOpcode();
    void mapOpcodeToMemSignErrorOutOfMemoryRange(const SrcReference* srcRef, int range, int addr);
    QString memRangeName(int range) const;

    OrgList& m_orgs;
    SetList& m_sets;
    OpcodeList& m_opcodes;
    MemRangeList& m_memRanges;
    AsmMemGeometry& m_geometry;
    const AsmFeConfig& m_config;
    const AsmFeParseArg& m_numbers;
    AsmFeMsgHndlr& m_messages;
    RunWatch& m_watch;
};

} // namespace nsModAsmFe

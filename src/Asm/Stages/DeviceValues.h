#pragma once

#include <QString>

namespace nsModAsmFe {

class AsmFeMsgHndlr;
class AsmFeParseArg;
class IODev;
class Opcode;
class OpcodeList;
class RunWatch;
class Set;
class SetList;
struct AsmMemGeometry;
struct AsmProgram;

/// Contents of IO devices: lists of values, and pieces of the instruction memory.
class DeviceValues
{
public:
    /// @param program read: settings, which are marked as used, words and geometry; instructions that a device takes
    /// are marked as mapped
    DeviceValues(AsmProgram& program, const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages, RunWatch& watch);

    /// Fills the cells of a device from its `VALUE`s. @return false after a reported error
    bool setupIODevAttrValues(IODev* dev);
    /// Some device has taken instructions.
    bool instMemMapped() const { return m_instMemMapped; }

private:
    struct sInstMemSpan_t;

    bool setupIODevAttrValue(IODev* dev, Set* set);
    bool setupIODevAttrValueNumeric(IODev* dev, Set* set, const QString& item, int addr);
    bool setupIODevAttrValueInstMem(IODev* dev, Set* set, const QString& item, int* addr);
    bool parseInstMemItem(Set* set, const QString& item, sInstMemSpan_t* span);
    bool parseInstMemRange(Set* set, const QString& range, sInstMemSpan_t* span);
    bool parseInstMemBits(Set* set, const QString& bits, sInstMemSpan_t* span);
    bool mapInstMem(IODev* dev, Set* set, const sInstMemSpan_t& span, int addr);
    bool mapInstWord(IODev* dev, Set* set, const sInstMemSpan_t& span, int addr, Opcode* opcode, qint64 memAddr);

    const SetList& m_sets;
    OpcodeList& m_opcodes;
    const AsmMemGeometry& m_geometry;
    const AsmFeParseArg& m_numbers;
    AsmFeMsgHndlr& m_messages;
    RunWatch& m_watch;
    bool m_instMemMapped = false;
};

} // namespace nsModAsmFe

#pragma once

#include "DeviceValues.h"

#include <QString>

namespace nsModAsmFe {

class AsmFeConfig;
class AsmFeMsgHndlr;
class AsmFeParseArg;
class IODev;
class IODevList;
class OpcodeList;
class RunWatch;
class Set;
class SetList;
struct AsmMemGeometry;
struct AsmProgram;
struct AsmProjectInfo;
struct SrcReference;
struct sTargetKind_t;

/// IO devices: their declaration, their parameters, and the device that takes the program where no source declares one.
/// One object builds the devices of one run.
class DeviceBuilder
{
public:
    /// @param program read: settings, which are marked as used, words and geometry; written: devices, and which
    /// instructions a device has taken
    /// @param config read: the outputs of the device that takes the program
    /// @param project read: the folder that paths in sources are relative to
    DeviceBuilder(AsmProgram& program, const AsmFeConfig& config, const AsmProjectInfo& project,
                  const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages, RunWatch& watch);

    /// @return false after a reported error
    bool setupIODevs();

private:
    bool setupIODev(IODev* dev);
    bool setupIODevAttrSize(IODev* dev);
    bool setupIODevAttrBaseAddr(IODev* dev);
    bool setupIODevAttrInitValue(IODev* dev);
    bool setupIODevAttrSimEn(IODev* dev);
    bool setupIODevAttrSimAccessMode(IODev* dev);
    bool setupIODevAttrType(IODev* dev);
    bool setupIODevAttrTarget(IODev* dev, const sTargetKind_t& kind);
    bool checkTarget(const IODev* dev, const sTargetKind_t& kind);
    bool setupIODevSetNumeric(Set* set, int* value);
    bool setupIODevSetBoolean(Set* set, bool* value);
    bool setupIODevSetString(Set* set, QString* value);
    bool setupIODevSetPath(Set* set, QString* value);
    bool setupIODevSetWidth(Set* set, int* bits);
    bool setupIODevSetLayout(Set* set, const sTargetKind_t& kind, int* layout);
    bool setupIODevDefault();
    bool setupIODevChkInstMemMapped();

    SetList& m_sets;
    OpcodeList& m_opcodes;
    IODevList& m_ioDevs;
    const AsmMemGeometry& m_geometry;
    const AsmFeConfig& m_config;
    const AsmProjectInfo& m_project;
    AsmFeMsgHndlr& m_messages;
    RunWatch& m_watch;
    DeviceValues m_values;
    const SrcReference* m_devSrcRef = nullptr; ///< where the device that is set up was declared; not owned
    int m_devWords = 0;                        ///< cells of all devices so far
};

} // namespace nsModAsmFe

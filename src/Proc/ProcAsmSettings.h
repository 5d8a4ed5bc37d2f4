#pragma once

#include "ProcAsmReport.h"

namespace nsModAsmFe {
struct AsmBeProgram;
class Set;
} // namespace nsModAsmFe

namespace nsProc {

struct ProcCoreConfig;
struct ProcTable;
struct sProcSetting_t;

/// The settings of a run, as far as the sources change them: the first that a back end does.
class ProcAsmSettings
{
public:
    /// @param table read
    /// @param program its `#SET` read, and those of the processor marked as used
    /// @param config written. Nothing is owned
    ProcAsmSettings(const ProcTable& table, const nsModAsmFe::AsmBeProgram& program, const ProcAsmReport& report,
                    ProcCoreConfig* config);

    /// Takes the parameters of the processor's namespace. Those that the processor does not have stay unused, which the
    /// usage check reports.
    bool setConfigFromDirectives();
    /// Checks of the settings after the directives.
    bool checkConfigStage1();

private:
    bool setConfigFromDirective(nsModAsmFe::Set* set, const sProcSetting_t& setting);
    bool setConfigScrpdIODev(nsModAsmFe::Set* set);
    bool mayOverride(const nsModAsmFe::Set* set, const sProcSetting_t& setting);
    bool expectNumeric(const nsModAsmFe::Set* set);
    // The position is null if the value is not from a source.
    bool checkConfigIntVectorAddr(const nsModAsmFe::SrcReference* srcRef);
    bool checkConfigScrpdSize(const sProcSetting_t& setting, const nsModAsmFe::SrcReference* srcRef);

    const ProcTable& m_table;
    const nsModAsmFe::AsmBeProgram& m_program;
    const ProcAsmReport& m_report;
    ProcCoreConfig* m_config;
};

} // namespace nsProc

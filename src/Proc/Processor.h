#pragma once

#include "AsmBackend.h"
#include "ProcBackEnd.h"
#include "ProcCoreConfig.h"

#include <memory>

class PrjSettings;

namespace nsProc {

struct ProcTable;

/// A processor of a project, without a window: its table, the settings that the project stores, the settings of the
/// last run, and its part of the assembler.
///
/// Each run starts from the stored settings: what a source sets applies to that run only.
class Processor : public nsModAsmFe::AsmBackend
{
public:
    /// @param table what the processor is; must live as long as the processor. All of them: procTables()
    /// @param run where the settings of the run are kept, with those of the table at the start; null: in the processor.
    /// Not owned
    explicit Processor(const ProcTable& table, ProcCoreConfig* run = nullptr);

    /// The processor that the project has chosen, with the project's settings; null if it has chosen none.
    static std::unique_ptr<Processor> ofProject(PrjSettings* project);

    const ProcTable& table() const { return m_backEnd.table(); }
    /// As the project stores them.
    const ProcCoreConfig& settings() const { return m_settings; }
    /// Sets them for the project and for the present run.
    void setSettings(const ProcCoreConfig& settings);
    /// Sets them for the project; they take effect with the next run.
    void setStoredSettings(const ProcCoreConfig& settings) { m_settings = settings; }
    /// Settings of the last run, which the simulator works with.
    ProcCoreConfig* runConfig() const { return m_run; }
    /// The settings of a new run: the stored ones. @return as runConfig()
    ProcCoreConfig* startRun();

    /// Reads the processor's keys. A number out of its range is replaced by the nearest one in it.
    void readSettings(PrjSettings* project);
    /// Writes the processor's keys, also those with default values.
    void writeSettings(PrjSettings* project) const;

    // AsmBackend
    QString processorName() override;
    QString processorDefine() override;
    const QHash<QString, int>* regNames() override { return m_backEnd.regNames(); }
    const QHash<QString, int>* regBankNames() override { return m_backEnd.regBankNames(); }
    int beConfig() override { return m_settings.pageSize; }
    bool assembleStage1(const nsModAsmFe::AsmBeProgram& program) override;
    bool assembleStage2(const nsModAsmFe::AsmBeProgram& program) override;
    void setAssembled(bool) override {}

private:
    ProcBackEnd m_backEnd;
    ProcCoreConfig m_settings;
    ProcCoreConfig m_ownRun;
    ProcCoreConfig* m_run;
};

} // namespace nsProc

#pragma once

#include "AsmBackend.h"
#include "ModAsmFePluginIf.h"

namespace nsModAsmFe {

/// The registered back end, as the assembler sees it. A registered one takes what it needs from its hook, so nothing is
/// handed to its stages.
class PluginBackend : public AsmBackend
{
public:
    /// @param plugin null for none; not owned. With none, no other operation may be called.
    void setPlugin(ModAsmFePluginIfBackend* plugin) { m_plugin = plugin; }
    ModAsmFePluginIfBackend* plugin() const { return m_plugin; }

    QString processorName() override { return m_plugin->processorName(); }
    QString processorDefine() override { return m_plugin->processorDefine(); }
    const QHash<QString, int>* regNames() override { return m_plugin->regNames(); }
    const QHash<QString, int>* regBankNames() override { return m_plugin->regBankNames(); }
    int beConfig() override { return m_plugin->beConfig(); }
    bool assembleStage1(const AsmBeProgram&) override { return m_plugin->assembleStage1(); }
    bool assembleStage2(const AsmBeProgram&) override { return m_plugin->assembleStage2(); }
    void setAssembled(bool assembled) override { m_plugin->setAssembled(assembled); }

private:
    ModAsmFePluginIfBackend* m_plugin = nullptr; ///< not owned
};

} // namespace nsModAsmFe

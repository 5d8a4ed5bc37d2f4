#pragma once

#include "BatchMsg.h"
#include "ModAsmFe.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ModSources.h"
#include "ModulePhases.h"
#include "PluginList.h"

namespace nsBatch {

/// The message service as a module.
class BatchMsgModule : public ModPluginIf
{
public:
    explicit BatchMsgModule(BatchMsg* msg)
        : m_msg(msg)
    {
    }

    void modRegisterPlugins(QList<ModPluginIf*> modules) override
    {
        registerPluginsOf<ModMsgPluginIf>(modules, m_msg);
        registerPluginsOf<ModMsgPluginIfInterMod>(modules, m_msg);
    }
    void modInit() override {}
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override {}
    void modExit() override {}

private:
    BatchMsg* m_msg;
};

/// The modules that a run without a window needs. They find one another as in the window; the hook of a module that is
/// not in the list is null.
///
/// They live until the process ends: taking a large program apart piece by piece would only cost time.
struct BatchModules
{
    /// Makes the modules; to be called once.
    static BatchModules& create(const BatchMsgStyle& style)
    {
        instance = new BatchModules(style);
        return *instance;
    }

    BatchModules(const BatchModules&) = delete;
    BatchModules& operator=(const BatchModules&) = delete;

    /// The one that was made. Not used, but keeps the memory reachable for leak checkers.
    inline static BatchModules* volatile instance = nullptr;

    BatchMsg msg;
    BatchMsgModule msgModule{&msg};
    nsModPrj::ModPrj prj;
    nsModSources::ModSources sources;
    nsModAsmFe::ModAsmFe asmFe;
    nsModProcessor::ModProcessor processor;
    ModulePhases phases;

private:
    explicit BatchModules(const BatchMsgStyle& style)
        : msg(style)
    {
        for (ModPluginIf* module : std::initializer_list<ModPluginIf*>{&msgModule, &prj, &sources, &processor, &asmFe})
            phases.append(module);
        phases.start();
        // The run is started by the program, once, and not by the opening of the project.
        asmFe.setAssembleOnChange(false);
    }
};

} // namespace nsBatch

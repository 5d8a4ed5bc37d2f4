#include "ModulePhases.h"

#include "ModPluginIf.h"

void ModulePhases::append(ModPluginIf* module)
{
    if (module != nullptr)
        m_modules.append(module);
}

template <class Phase>
void ModulePhases::run(Phase phase) const
{
    for (ModPluginIf* module : m_modules)
        phase(module);
}

void ModulePhases::start()
{
    if (m_state != eState_t::created)
        return;
    m_state = eState_t::running;
    run([this](ModPluginIf* module) { module->modRegisterPlugins(m_modules); });
    run([](ModPluginIf* module) { module->modInit(); });
    run([](ModPluginIf* module) { module->modInitIntermod(); });
    run([](ModPluginIf* module) { module->modRun(); });
}

bool ModulePhases::isExitAllowed() const
{
    for (ModPluginIf* module : m_modules) {
        if (!module->modExitRequest())
            return false;
    }
    return true;
}

bool ModulePhases::stop()
{
    if (m_state == eState_t::stopped)
        return true;
    if (!isExitAllowed())
        return false;
    m_state = eState_t::stopped;
    run([](ModPluginIf* module) { module->modExitIntermod(); });
    run([](ModPluginIf* module) { module->modExit(); });
    return true;
}

#include "ModSyscall.h"

#include "ModPrjHookIf.h"

namespace nsModSyscall {

ModSyscall::ModSyscall(QObject* parent)
    : QObject(parent)
{
}

bool ModSyscall::run(eEvent_t)
{
    return true;
}

void ModSyscall::prjOpen()
{
    static_cast<SyscallConfig&>(*this) = SyscallConfig();
    rdSyscallConfig(modPrjHook);
}

void ModSyscall::prjSave()
{
    wrSyscallConfig(modPrjHook);
}

void ModSyscall::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModSyscallPluginIf>(modules, this);
}

void ModSyscall::registerPlugin(ModSyscallPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modSyscallHook = this;
}

void ModSyscall::unregisterPlugin(ModSyscallPluginIf* plugin)
{
    if (m_plugins.remove(plugin))
        plugin->modSyscallHook = nullptr;
}

} // namespace nsModSyscall

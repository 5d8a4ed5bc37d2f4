#include "ModScript.h"

#include "ModMsgHookIf.h"

namespace nsModScript {

ModScript::ModScript(QObject* parent)
    : QObject(parent)
{
}

void ModScript::executeScriptFile(QString fileName)
{
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(tr("This release can not run scripts: %1").arg(fileName));
}

void ModScript::registerObject(QObject*, QString) {}

bool ModScript::executeScript(QString)
{
    return false;
}

void ModScript::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModScriptPluginIf>(modules, this);
}

void ModScript::registerPlugin(ModScriptPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modScriptHook = this;
}

} // namespace nsModScript

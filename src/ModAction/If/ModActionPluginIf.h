#pragma once

#include "ModActionHookIf.h"

#include <QList>

class QAction;

/// A client with actions in the menus and tool bars.
class ModActionPluginIf
{
public:
    virtual ~ModActionPluginIf() = default;

    /// The client's entries of the class's menu, in order; empty where it has none. The client keeps the ownership.
    virtual QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) = 0;
    /// The same for the class's tool bar.
    virtual QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) = 0;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModActionHookIf* modActionHook = nullptr;
};

/// A client that wants the hook and nothing else.
class ModActionPluginIfInterMod
{
public:
    virtual ~ModActionPluginIfInterMod() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModActionHookIf* modActionHook = nullptr;
};

#pragma once

class ModActionPluginIf;
class ModActionPluginIfInterMod;

/// The menus and tool bars of the main window, in eight classes. Served by nsModAction::ModAction.
class ModActionHookIf
{
public:
    /// Menu and tool bar that an action belongs to.
    enum eActionClass_t {
        eActionClassConfiguration = 0,
        eActionClassFile = 1,
        eActionClassEdit = 2,
        eActionClassNavigation = 3,
        eActionClassSimulator = 4,
        eActionClassAssembler = 5,
        eActionClassTools = 6,
        eActionClassHelp = 7,
    };

    virtual ~ModActionHookIf() = default;

    virtual void registerPlugin(ModActionPluginIfInterMod* plugin) = 0;
    virtual void unregisterPlugin(ModActionPluginIfInterMod* plugin) = 0;
    /// Refreshes the menus, as soon as the program runs.
    virtual void registerPlugin(ModActionPluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModActionPluginIf* plugin) = 0;
    /// Asks all clients for their lists again and rebuilds menus and tool bars. Before modRun() this does nothing.
    virtual void refreshActions() = 0;
};

#pragma once

#include <QList>

/// What every module is to the main window: one object that is driven through seven phases.
///
/// Each phase runs for all modules, in the order of the module list, before the next phase starts. A module finds the
/// others in modRegisterPlugins() alone, by a cast to the plug-in interfaces that it serves; it never holds a pointer
/// to another module's class. No phase can fail: a module that cannot do its job reports through ModMsgHookIf and
/// carries on.
class ModPluginIf
{
public:
    virtual ~ModPluginIf() = default;

    /// First phase, once: registers the clients that stand in the list. Hooks of this module may still be null.
    /// @param modules the whole module list, in order; not owned, entries may be null
    virtual void modRegisterPlugins(QList<ModPluginIf*> modules) = 0;

    /// Second phase, once: own set-up that needs nobody else. Creates the actions and widgets that the module owns.
    virtual void modInit() = 0;

    /// Third phase, once: set-up that calls the hooks of others.
    virtual void modInitIntermod() = 0;

    /// Fourth phase, once: the last moment before the window is shown.
    virtual void modRun() = 0;

    /// May the window close? No state may change here, as a module further on could refuse.
    /// @return true allows the close
    virtual bool modExitRequest() = 0;

    /// Once, while all hooks are still usable: takes widgets back and writes settings.
    virtual void modExitIntermod() = 0;

    /// Once, last: releases what modInit() made.
    virtual void modExit() = 0;
};

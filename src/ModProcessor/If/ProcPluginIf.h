#pragma once

#include "ModActionPluginIf.h"
#include "ModAsmFePluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPrjPluginIf.h"

#include <QString>

namespace nsModProcessor {

class ProcConfigPluginIf;

/// A processor: one object that all other modules see only through their own plug-in interfaces.
///
/// Attaching calls modInit(), registers the object everywhere and calls modInitIntermod(); detaching calls
/// modExitIntermod(), unregisters it everywhere and calls modExit(). The object exists before and after, and keeps its
/// settings.
class ProcPluginIf : public ModMsgPluginIf,
                     public ModGuiPluginIf,
                     public ModEditorPluginIf,
                     public ModActionPluginIf,
                     public ModAsmFePluginIfBackend,
                     public ModCfgAppPluginIfInterMod,
                     public ModPrjPluginIfInterMod
{
public:
    /// Display name; also the value that the project stores.
    QString processorName() override = 0;

    /// Creates actions and back end. No hook may be used yet.
    virtual void modInit() = 0;
    /// All hooks are set.
    virtual void modInitIntermod() = 0;
    /// All hooks are still set.
    virtual void modExitIntermod() = 0;
    /// Deletes the back end.
    virtual void modExit() = 0;

    /// The settings widget, created on the first call and kept until configWidgetClose().
    virtual ProcConfigPluginIf* configWidget() = 0;
    virtual void configWidgetSetConfig() = 0;
    virtual void configWidgetFetchConfig() = 0;
    /// @return the settings dialog may close
    virtual bool configWidgetCloseRequest() = 0;
    virtual void configWidgetClose() = 0;

    /// Reads the processor's keys from the open project.
    virtual void rdCfg() = 0;
    /// Writes the processor's keys into the open project.
    virtual void wrCfg() = 0;
};

} // namespace nsModProcessor

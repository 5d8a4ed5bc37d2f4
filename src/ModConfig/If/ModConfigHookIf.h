#pragma once

#include <QString>

class ModConfigPluginIf;

/// The settings dialog. Served by nsModConfig::ModConfig.
class ModConfigHookIf
{
public:
    virtual ~ModConfigHookIf() = default;

    virtual void registerPlugin(ModConfigPluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModConfigPluginIf* plugin) = 0;

    /// Opens the dialog, or brings it to the front.
    virtual void openDialog() = 0;
    /// Opens the dialog at the page with this title.
    virtual void openDialog(QString title) = 0;
    /// @param accepted true applies the settings; pages may then refuse and leave the dialog open
    virtual void closeDialog(bool accepted) = 0;
    /// Brings the page with this title to the front of the open dialog.
    /// @return false: the dialog is closed, or has no such page
    virtual bool selectDialogPageByTitle(QString title) = 0;
};

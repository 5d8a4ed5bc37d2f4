#pragma once

#include "ModGuiHookIf.h"

/// A client with widgets in the main window.
class ModGuiPluginIf
{
public:
    virtual ~ModGuiPluginIf() = default;

    /// The user asks to close one of the client's widgets; to agree, call ModGuiHookIf::removeWidget().
    virtual void removeWidgetRequest(QWidget* widget) = 0;
    /// The current widget of an area has changed.
    /// @param plugin owner of the widget, may be null
    virtual void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) = 0;
    /// The user wants to see this file, which a page of eLocationTabs shows, in the list of files. @param path absolute
    virtual void showFileRequest(QString path) { Q_UNUSED(path) }

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModGuiHookIf* modGuiHook = nullptr;
};

/// A client that wants the hook and nothing else.
class ModGuiPluginIfInterMod
{
public:
    virtual ~ModGuiPluginIfInterMod() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModGuiHookIf* modGuiHook = nullptr;
};

#pragma once

class ModCfgAppHookIf;

/// A client with settings of its own.
class ModCfgAppPluginIf
{
public:
    virtual ~ModCfgAppPluginIf() = default;

    /// The settings have been read from the file: take them.
    virtual void rdAppCfg() = 0;
    /// The settings are about to be written: put them into the tree.
    virtual void wrAppCfg() = 0;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModCfgAppHookIf* modCfgAppHook = nullptr;
};

/// A client that wants the hook and nothing else.
class ModCfgAppPluginIfInterMod
{
public:
    virtual ~ModCfgAppPluginIfInterMod() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModCfgAppHookIf* modCfgAppHook = nullptr;
};

#pragma once

class ModHlpHookIf;

/// A client of the help browser.
class ModHlpPluginIf
{
public:
    virtual ~ModHlpPluginIf() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModHlpHookIf* modHlpHook = nullptr;
};

#pragma once

class ModFindReplaceHookIf;

/// A client with widgets in which the user can search.
class ModFindReplacePluginIf
{
public:
    virtual ~ModFindReplacePluginIf() = default;

    virtual void findInit() = 0;
    virtual void findExit() = 0;
    virtual void findNext(bool fromStart) = 0;
    virtual void findPrev(bool fromEnd) = 0;
    virtual void replace(bool forward) = 0;
    virtual void replaceAll(bool forward) = 0;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModFindReplaceHookIf* modFindReplaceHook = nullptr;
};

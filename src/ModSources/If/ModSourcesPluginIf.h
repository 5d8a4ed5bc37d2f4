#pragma once

class ModSourcesHookIf;

/// A client that follows the sources.
class ModSourcesPluginIf
{
public:
    virtual ~ModSourcesPluginIf() = default;

    /// Sources were added, removed or reordered.
    virtual void srcFileListChanged() = 0;
    /// A source was saved.
    virtual void srcFileContentChanged() = 0;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModSourcesHookIf* modSourcesHook = nullptr;
};

#pragma once

class ModEditorHookIf;

/// A client of the editor.
class ModEditorPluginIf
{
public:
    virtual ~ModEditorPluginIf() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModEditorHookIf* modEditorHook = nullptr;
};

/// The assembler's role towards the editor; no class has it at present.
class ModEditorPluginIfAssembler
{
public:
    virtual ~ModEditorPluginIfAssembler() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModEditorHookIf* modEditorHook = nullptr;
};

/// A client that wants the hook and nothing else.
class ModEditorPluginIfInterMod
{
public:
    virtual ~ModEditorPluginIfInterMod() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModEditorHookIf* modEditorHook = nullptr;
};

/// A running simulator; a type of its own, so that the editor can tell simulators from other clients.
class ModEditorPluginIfSimulator
{
public:
    virtual ~ModEditorPluginIfSimulator() = default;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModEditorHookIf* modEditorHook = nullptr;
};

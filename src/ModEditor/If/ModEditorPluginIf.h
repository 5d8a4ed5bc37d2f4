#pragma once

class ModEditorHookIf;

namespace nsModEditor {
class EditorDocument;
}

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

/// Works with the text of the documents.
class ModEditorPluginIfText
{
public:
    virtual ~ModEditorPluginIfText() = default;

    /// A document has got its text and is shown.
    virtual void documentOpened(nsModEditor::EditorDocument*) {}
    /// The document is about to be deleted.
    virtual void documentClosing(nsModEditor::EditorDocument*) {}
    /// The user works in another document, or in none: null.
    virtual void currentDocumentChanged(nsModEditor::EditorDocument*) {}
};

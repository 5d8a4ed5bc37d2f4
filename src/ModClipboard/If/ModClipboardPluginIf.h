#pragma once

#include "ModClipboardHookIf.h"

/// A client with pages that support the clipboard.
class ModClipboardPluginIf
{
public:
    virtual ~ModClipboardPluginIf() = default;

    /// The user chose one of the three actions while a page of the client is current.
    virtual void clipboardAction(ModClipboardHookIf::eClipboardFeature_t feature) = 0;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModClipboardHookIf* modClipboardHook = nullptr;
};

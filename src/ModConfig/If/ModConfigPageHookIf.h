#pragma once

namespace nsModConfig {

class ModConfigPagePluginIf;

/// What a settings page can request from its dialog.
class ModConfigPageHookIf
{
public:
    virtual ~ModConfigPageHookIf() = default;

    /// The page's help reference has changed: show it if the page is the current one.
    virtual void showDialogPageHelp(ModConfigPagePluginIf* page) = 0;
};

} // namespace nsModConfig

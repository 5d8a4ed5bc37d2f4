#pragma once

class ModConfigHookIf;

namespace nsModConfig {
class ModConfigPagePluginIf;
}

/// A client with pages in the settings dialog, called in this order: configPageCnt(), configPage(),
/// configPageSetConfig(); on apply configPageCloseRequest(); configPageClose(); configPagesClosed().
class ModConfigPluginIf
{
public:
    virtual ~ModConfigPluginIf() = default;

    /// Number of pages.
    virtual int configPageCnt() = 0;
    /// Creates the page with this index; the client owns it and deletes it in configPageClose(). May be null.
    virtual nsModConfig::ModConfigPagePluginIf* configPage(int index) = 0;
    /// Puts the present settings into the page.
    virtual void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) = 0;
    /// @return the dialog may be applied and closed
    virtual bool configPageCloseRequest() = 0;
    /// @param accepted true: take the values out of the page first
    virtual void configPageClose(bool accepted) = 0;
    /// All pages are closed: apply what depends on others.
    virtual void configPagesClosed(bool accepted) = 0;

    /// Set by the server while the client is registered, null otherwise. Not owned.
    ModConfigHookIf* modConfigHook = nullptr;
};

/// A client with defaults for everything: one page, a null page, nothing to set, close allowed, nothing to do on close.
class ModConfigPluginIfDflt : public ModConfigPluginIf
{
public:
    int configPageCnt() override { return 1; }
    nsModConfig::ModConfigPagePluginIf* configPage(int) override { return nullptr; }
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf*) override {}
    bool configPageCloseRequest() override { return true; }
    void configPageClose(bool) override {}
    void configPagesClosed(bool) override {}
};

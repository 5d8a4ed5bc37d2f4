#pragma once

#include <QIcon>
#include <QString>

class QWidget;

namespace nsModConfig {

class ModConfigPageHookIf;

/// One page of the settings dialog.
class ModConfigPagePluginIf
{
public:
    virtual ~ModConfigPagePluginIf() = default;

    /// The page's widget; stays in the ownership of the module that gave the page.
    virtual QWidget* pageWidget() = 0;
    virtual QIcon pageIcon() = 0;
    virtual QString pageTitle() = 0;
    /// Help reference, such as "pageId://configPageAsmFe".
    virtual QString pageHelpRef() = 0;
    /// A project is open or not: pages with project settings enable or disable themselves.
    virtual void setPrjConfigEnabled(bool enabled) = 0;
    virtual bool pageIsEnabled() = 0;
    /// The page comes to the front or leaves it.
    virtual void setFocus(bool focus) = 0;
    /// Fills the page with the defaults of its settings.
    virtual void setDefaultConfig() = 0;
    /// @return the page's values can be taken
    virtual bool checkConfig() = 0;

    /// Set by the dialog while the page stands in it, null otherwise. Not owned.
    ModConfigPageHookIf* modConfigPageHook = nullptr;
};

} // namespace nsModConfig

#pragma once

#include <QString>

class QWidget;

namespace nsModProcessor {

/// What a processor's settings widget can request from its page.
class ProcConfigHookIf
{
public:
    virtual ~ProcConfigHookIf() = default;

    /// The widget's help reference has changed.
    virtual void setWidgetHelpChanged() = 0;
};

/// A processor's settings widget.
class ProcConfigPluginIf
{
public:
    virtual ~ProcConfigPluginIf() = default;

    virtual void initWidget() = 0;
    virtual QWidget* widget() = 0;
    virtual QString widgetHelpRef() = 0;
    virtual void setDefaultConfig() = 0;

    /// Set by the page while the widget stands in it, null otherwise. Not owned.
    ProcConfigHookIf* procConfigHook = nullptr;
};

} // namespace nsModProcessor

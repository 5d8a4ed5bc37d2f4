#pragma once

class ModClipboardPluginIf;
class QWidget;

/// Cut, copy and paste of the current page. Served by nsModClipboard::ModClipboard.
class ModClipboardHookIf
{
public:
    /// Bits; several may be given at once.
    enum eClipboardFeature_t { eClipboardFeatureCut = 1, eClipboardFeatureCopy = 2, eClipboardFeaturePaste = 4 };

    virtual ~ModClipboardHookIf() = default;

    /// Switches the actions of all features in the mask.
    virtual void setFeatureEnable(eClipboardFeature_t features, bool enable) = 0;
    virtual void registerPluginWidget(ModClipboardPluginIf* plugin, QWidget* widget) = 0;
    virtual void unregisterPluginWidget(QWidget* widget) = 0;
};

#pragma once

#include "ModConfigPagePluginIf.h"
#include "SrcNaviConfig.h"

#include <QWidget>

class MyColorSelector;
class MyFontTable;
class QComboBox;

namespace nsModSrcNavi {

/// The settings page of the source navigator.
class SrcNaviConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit SrcNaviConfigPage(QWidget* parent = nullptr);

    /// Fills the controls.
    void setConfig(const SrcNaviConfig* config);
    /// Takes the values of the controls.
    void config(SrcNaviConfig* config) const;

    // ModConfigPagePluginIf
    QWidget* pageWidget() override { return this; }
    QIcon pageIcon() override;
    QString pageTitle() override;
    QString pageHelpRef() override;
    void setPrjConfigEnabled(bool) override {}
    bool pageIsEnabled() override { return true; }
    void setFocus(bool) override {}
    void setDefaultConfig() override;
    bool checkConfig() override { return true; }

private:
    QComboBox* m_location = nullptr;
    QComboBox* m_sortMode = nullptr;
    MyColorSelector* m_bookmarkSymbolColor = nullptr;
    MyFontTable* m_fontTable = nullptr;
};

} // namespace nsModSrcNavi

#pragma once

#include "HlpConfig.h"
#include "ModConfigPagePluginIf.h"

#include <QWidget>

class QCheckBox;
class QComboBox;

namespace nsModHlp {

/// The settings page of the help.
class HlpConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit HlpConfigPage(QWidget* parent = nullptr);

    /// Fills the controls.
    void setConfig(const HlpConfig* config);
    /// Takes the values of the controls.
    void config(HlpConfig* config) const;

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
    QCheckBox* m_gettingStarted = nullptr;
    QCheckBox* m_onlyOnePage = nullptr;
    QComboBox* m_location = nullptr;
};

} // namespace nsModHlp

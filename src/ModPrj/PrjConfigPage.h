#pragma once

#include "ModConfigPagePluginIf.h"
#include "PrjConfig.h"

#include <QWidget>

class MyPageLayout;
class QLineEdit;
class QPlainTextEdit;

namespace nsModPrj {

/// The settings page "Info": title, version and comment of the project.
class PrjConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit PrjConfigPage(QWidget* parent = nullptr);

    void setConfig(const PrjConfig& config);
    PrjConfig config() const;

    // ModConfigPagePluginIf
    QWidget* pageWidget() override;
    QIcon pageIcon() override;
    QString pageTitle() override;
    QString pageHelpRef() override;
    void setPrjConfigEnabled(bool enabled) override;
    bool pageIsEnabled() override;
    void setFocus(bool focus) override;
    void setDefaultConfig() override;
    bool checkConfig() override;

private:
    MyPageLayout* m_layout = nullptr;
    QLineEdit* m_title = nullptr;
    QLineEdit* m_version = nullptr;
    QPlainTextEdit* m_comment = nullptr;
    bool m_enabled = false;
};

} // namespace nsModPrj

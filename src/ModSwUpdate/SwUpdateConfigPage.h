#pragma once

#include "ModConfigPagePluginIf.h"
#include "SwUpdateConfig.h"

#include <QWidget>

class MyPageLayout;
class QComboBox;
class QLineEdit;
class QSpinBox;

namespace nsModSwUpdate {

/// The settings page of the update check.
class SwUpdateConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit SwUpdateConfigPage(QWidget* parent = nullptr);

    /// Fills the controls.
    void setConfig(const SwUpdateConfig* config);
    /// Takes the values of the controls.
    void config(SwUpdateConfig* config) const;
    /// Why there are no checks; empty for nothing.
    void setNote(const QString& note);

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
    MyPageLayout* m_layout = nullptr;
    QLineEdit* m_release = nullptr;
    QComboBox* m_interval = nullptr;
    QSpinBox* m_timeOut = nullptr;
};

} // namespace nsModSwUpdate

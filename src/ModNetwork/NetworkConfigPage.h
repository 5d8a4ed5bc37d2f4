#pragma once

#include "ModConfigPagePluginIf.h"
#include "NetworkConfig.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace nsModNetwork {

/// The settings page of the network.
class NetworkConfigPage : public QWidget, public nsModConfig::ModConfigPagePluginIf
{
    Q_OBJECT

public:
    explicit NetworkConfigPage(QWidget* parent = nullptr);

    /// Fills the controls.
    void setConfig(const NetworkConfig* config);
    /// Takes the values of the controls.
    void config(NetworkConfig* config) const;

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

private slots:
    /// Enables the fields that the type has, and says what is still missing.
    void updateFields();

private:
    void addTypes();

    QComboBox* m_type = nullptr;
    QLineEdit* m_hostName = nullptr;
    QSpinBox* m_port = nullptr;
    QLineEdit* m_userName = nullptr;
    QLineEdit* m_userPassword = nullptr;
    QLabel* m_missing = nullptr;
};

} // namespace nsModNetwork

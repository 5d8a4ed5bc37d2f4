#include "NetworkConfigPage.h"

#include "MyPageLayout.h"
#include "SchemeIcons.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace nsModNetwork {

NetworkConfigPage::NetworkConfigPage(QWidget* parent)
    : QWidget(parent)
    , m_type(new QComboBox(this))
    , m_hostName(new QLineEdit(this))
    , m_port(new QSpinBox(this))
    , m_userName(new QLineEdit(this))
    , m_userPassword(new QLineEdit(this))
{
    setObjectName(QStringLiteral("configPage"));
    addTypes();
    m_hostName->setObjectName(QStringLiteral("proxyHostName"));
    m_port->setObjectName(QStringLiteral("proxyPort"));
    m_port->setRange(0, NetworkConfig::portMax);
    m_userName->setObjectName(QStringLiteral("proxyUserName"));
    m_userPassword->setObjectName(QStringLiteral("proxyUserPassword"));
    m_userPassword->setEchoMode(QLineEdit::Password);

    auto* layout = new MyPageLayout(this, tr("Network configuration"));
    layout->addSection(tr("Proxy"));
    layout->addField(tr("Type:"), m_type, tr("Kind of proxy that requests to other computers go through"));
    layout->addField(tr("Host name:"), m_hostName, tr("Name or address of the proxy, without a scheme"));
    layout->addField(tr("Port:"), m_port, tr("Port of the proxy"));
    layout->addField(tr("User name:"), m_userName, tr("Name for a proxy that asks for one; may be empty"));
    layout->addField(tr("Password:"), m_userPassword, tr("Password for a proxy that asks for one; may be empty"));
    m_missing = layout->addHint(tr("A proxy of this type needs a host name and a port."));
    m_missing->setObjectName(QStringLiteral("proxyMissing"));
    layout->addHint(tr("The password is stored as plain text in your settings file, which other users can not read."));

    connect(m_type, qOverload<int>(&QComboBox::currentIndexChanged), this, &NetworkConfigPage::updateFields);
    connect(m_hostName, &QLineEdit::textChanged, this, &NetworkConfigPage::updateFields);
    connect(m_port, qOverload<int>(&QSpinBox::valueChanged), this, &NetworkConfigPage::updateFields);
    setDefaultConfig();
    updateFields();
}

void NetworkConfigPage::addTypes()
{
    m_type->setObjectName(QStringLiteral("proxyType"));
    m_type->addItem(tr("No Proxy"), NetworkConfig::proxyNone);
    m_type->addItem(tr("Default Proxy"), NetworkConfig::proxyDefault);
    m_type->addItem(tr("Socks 5 Proxy"), NetworkConfig::proxySocks5);
    m_type->addItem(tr("HTTP Proxy (recommendet)"), NetworkConfig::proxyHttp);
    m_type->addItem(tr("HTTP Caching Proxy"), NetworkConfig::proxyHttpCaching);
    m_type->addItem(tr("FTP Caching Proxy"), NetworkConfig::proxyFtpCaching);
}

void NetworkConfigPage::updateFields()
{
    const bool needsHost = m_type->currentIndex() >= 0 && NetworkConfig::needsHost(m_type->currentData().toInt());
    for (QWidget* field : QList<QWidget*>{m_hostName, m_port, m_userName, m_userPassword})
        field->setEnabled(needsHost);
    const bool isComplete = !m_hostName->text().trimmed().isEmpty() && m_port->value() > 0;
    m_missing->setVisible(needsHost && !isComplete);
}

void NetworkConfigPage::setConfig(const NetworkConfig* config)
{
    m_type->setCurrentIndex(m_type->findData(config->proxyType));
    m_hostName->setText(config->proxyHostName);
    m_port->setValue(config->proxyPort);
    m_userName->setText(config->proxyUserName);
    m_userPassword->setText(config->proxyUserPassword);
}

void NetworkConfigPage::config(NetworkConfig* config) const
{
    if (m_type->currentIndex() >= 0)
        config->proxyType = m_type->currentData().toInt();
    config->proxyHostName = m_hostName->text().trimmed();
    config->proxyPort = m_port->value();
    config->proxyUserName = m_userName->text();
    config->proxyUserPassword = m_userPassword->text();
}

void NetworkConfigPage::setDefaultConfig()
{
    const NetworkConfig defaults;
    setConfig(&defaults);
}

QIcon NetworkConfigPage::pageIcon()
{
    return SchemeIcons::of(QStringLiteral(":/ModNetwork/img/configPage/configPageNetwork.png"));
}

QString NetworkConfigPage::pageTitle()
{
    return tr("Network");
}

QString NetworkConfigPage::pageHelpRef()
{
    return QStringLiteral("pageId://configPageNetwork");
}

} // namespace nsModNetwork

// The settings page of the network, by keys.

#include "ModNetwork.h"
#include "NetworkConfigPage.h"
#include "PageFixture.h"
#include "QtPrinters.h"

#include <QClipboard>
#include <QNetworkProxy>
#include <QPointer>

namespace {

using nsModNetwork::ModNetwork;
using nsModNetwork::NetworkConfig;
using nsModNetwork::NetworkConfigPage;

class NetworkConfigPageTest : public PageFixture
{
protected:
    void openPage()
    {
        page = dynamic_cast<NetworkConfigPage*>(network.configPage(0));
        network.configPageSetConfig(page);
        show(page);
        proxyType = field<QComboBox>(page, "Type:");
        hostName = field<QLineEdit>(page, "Host name:");
        port = field<QSpinBox>(page, "Port:");
        userName = field<QLineEdit>(page, "User name:");
        password = field<QLineEdit>(page, "Password:");
        for (QWidget* one : QList<QWidget*>{proxyType, hostName, port, userName, password})
            ASSERT_NE(one, nullptr);
    }
    bool hintIsShown() const { return page->findChild<QLabel*>("proxyMissing")->isVisible(); }

    ModNetwork network;
    QPointer<NetworkConfigPage> page;
    QComboBox* proxyType = nullptr;
    QLineEdit* hostName = nullptr;
    QSpinBox* port = nullptr;
    QLineEdit* userName = nullptr;
    QLineEdit* password = nullptr;
};

TEST_F(NetworkConfigPageTest, textsAndRanges)
{
    openPage();
    EXPECT_EQ(page->pageTitle(), "Network");
    EXPECT_EQ(page->pageHelpRef(), "pageId://configPageNetwork");
    EXPECT_FALSE(page->pageIcon().pixmap(48, 48).isNull());
    EXPECT_TRUE(page->pageIsEnabled());
    EXPECT_TRUE(page->checkConfig());
    for (const char* text : {"Network configuration", "Proxy"})
        EXPECT_TRUE(labels(page).contains(text)) << text;
    QStringList entries;
    for (int i = 0; i < proxyType->count(); ++i) {
        entries.append(proxyType->itemText(i));
        EXPECT_EQ(proxyType->itemData(i).toInt(), i);
    }
    EXPECT_EQ(entries, (QStringList{"No Proxy", "Default Proxy", "Socks 5 Proxy", "HTTP Proxy (recommendet)",
                                    "HTTP Caching Proxy", "FTP Caching Proxy"}));
    EXPECT_EQ(port->minimum(), 0);
    EXPECT_EQ(port->maximum(), 65535);
    expectToolTips(page);
    screenshot("config-network-none");
    network.configPageClose(false);
    EXPECT_TRUE(page.isNull());
}

TEST_F(NetworkConfigPageTest, thePasswordIsNotShown)
{
    openPage();
    choose(proxyType, "HTTP Proxy (recommendet)");
    type(hostName, "proxy.example");
    type(port, "8080");
    type(userName, "jo");
    type(password, "word");
    EXPECT_EQ(password->text(), "word");
    EXPECT_FALSE(password->displayText().contains('w'));
    EXPECT_TRUE(password->inputMethodHints().testFlag(Qt::ImhHiddenText));
    // Nor does it leave the field by the clipboard.
    password->selectAll();
    QApplication::clipboard()->setText("before");
    QTest::keyClick(password, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "before");
    password->deselect();
    screenshot("config-network");
    network.configPageClose(false);
}

TEST_F(NetworkConfigPageTest, fieldsThatATypeHasNoUseForAreDisabled)
{
    openPage();
    for (int i = 0; i < proxyType->count(); ++i) {
        choose(proxyType, proxyType->itemText(i));
        for (QWidget* one : QList<QWidget*>{hostName, port, userName, password})
            EXPECT_EQ(one->isEnabled(), i >= 2) << i;
        EXPECT_EQ(hintIsShown(), i >= 2) << i;
    }
    type(hostName, "proxy.example");
    EXPECT_TRUE(hintIsShown());
    type(port, "1");
    EXPECT_FALSE(hintIsShown());
    type(hostName, " ");
    EXPECT_TRUE(hintIsShown());
    network.configPageClose(false);
}

TEST_F(NetworkConfigPageTest, whatIsAppliedIsTheProxyFromNowOn)
{
    openPage();
    choose(proxyType, "Socks 5 Proxy");
    type(hostName, "  proxy.example ");
    type(port, "1080");
    type(userName, "jo");
    type(password, " word ");
    network.configPageClose(true);
    EXPECT_EQ(network.proxy(), QNetworkProxy(QNetworkProxy::Socks5Proxy, "proxy.example", 1080, "jo", " word "));
    // And is shown when the page opens again; cancel leaves it alone.
    openPage();
    EXPECT_EQ(proxyType->currentText(), "Socks 5 Proxy");
    EXPECT_EQ(hostName->text(), "proxy.example");
    EXPECT_EQ(port->value(), 1080);
    EXPECT_EQ(userName->text(), "jo");
    EXPECT_EQ(password->text(), " word ");
    type(hostName, "other");
    network.configPageClose(false);
    EXPECT_EQ(network.proxy().hostName(), "proxy.example");
}

TEST_F(NetworkConfigPageTest, defaultsAndRestore)
{
    network.proxyType = NetworkConfig::proxyHttp;
    network.proxyHostName = "proxy.example";
    network.proxyPort = 3128;
    network.proxyUserPassword = "word";
    openPage();
    page->setDefaultConfig();
    EXPECT_EQ(proxyType->currentText(), "No Proxy");
    EXPECT_EQ(hostName->text() + password->text(), "");
    EXPECT_EQ(port->value(), 0);
    EXPECT_FALSE(hostName->isEnabled());
    network.configPageSetConfig(page);
    EXPECT_EQ(proxyType->currentText(), "HTTP Proxy (recommendet)");
    EXPECT_EQ(hostName->text(), "proxy.example");
    EXPECT_EQ(password->text(), "word");
    EXPECT_TRUE(hostName->isEnabled());
    network.configPageClose(false);
}

TEST_F(NetworkConfigPageTest, aTypeThatThePageDoesNotKnowStays)
{
    network.proxyType = 9;
    openPage();
    EXPECT_EQ(proxyType->currentIndex(), -1);
    EXPECT_FALSE(hostName->isEnabled());
    network.configPageClose(true);
    EXPECT_EQ(network.proxyType, 9);
}

} // namespace

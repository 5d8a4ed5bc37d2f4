// Network, updates and fonts in the real window.

#include "MainWindowFixture.h"

#include "FakeBrowser.h"
#include "LocalHttpServer.h"
#include "LocalProxies.h"
#include "ModConfigHookIf.h"
#include "ModNetworkHookIf.h"
#include "ModSwUpdate.h"
#include "QtPrinters.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QNetworkProxy>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>

namespace {

const QByteArray expired = "<updateinfo><expired>1</expired><release>2031-4.2</release><date>2031-04-05</date>"
                           "<changelog>A &lt;b&gt;bold&lt;/b&gt; &lt;img src='x'/&gt; line\nlast line</changelog>"
                           "</updateinfo>";

class NetworkInWindow : public MainWindowFixture
{
protected:
    NetworkInWindow()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
    }
    void openPage(const QString& title) const { module<ModConfigHookIf>()->openDialog(title); }
    template <class Widget>
    Widget* inDialog(const QString& name) const
    {
        return window->findChild<QWidget*>("configDialog")->findChild<Widget*>(name);
    }
    static void type(QWidget* field, const QString& text)
    {
        ASSERT_NE(field, nullptr);
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }
    static void choose(QComboBox* box, const QString& text)
    {
        ASSERT_NE(box, nullptr);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < box->count() && box->currentText() != text; ++i)
            QTest::keyClick(box, Qt::Key_Down);
        ASSERT_EQ(box->currentText(), text);
    }
    void apply() const
    {
        for (QPushButton* button : window->findChild<QWidget*>("configDialog")->findChildren<QPushButton*>()) {
            if (button->text() == "Apply and close") {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button";
    }
    /// Chooses an entry of the menu Help with the mouse.
    void chooseHelp(const QString& text) const
    {
        for (QAction* entry : window->menuBar()->actions()) {
            if (QString(entry->text()).remove('&') != "Help")
                continue;
            EXPECT_TRUE(entry->isEnabled());
            QMenu* menu = entry->menu();
            menu->popup(QPoint(10, 10));
            for (QAction* action : menu->actions()) {
                if (QString(action->text()).remove('&') == text) {
                    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
                    return;
                }
            }
            menu->close();
        }
        ADD_FAILURE() << "no entry " << qPrintable(text);
    }
    void useServer() const { updates()->setAddresses({server.address(), "http://127.0.0.1/nalvo-update"}); }
    nsModSwUpdate::ModSwUpdate* updates() const { return module<nsModSwUpdate::ModSwUpdate>(); }
    bool waitForMessage(const QString& text) const
    {
        return QTest::qWaitFor([&] { return messageTexts().contains(text); }, 60000);
    }

    LocalHttpServer server;
    FakeBrowser browser;
};

/// Starts the window in a process of its own. @return its report, one line an entry
QStringList startProbe(const QString& program, const QString& home, const QString& fontConfig)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", home);
    environment.insert("XDG_CACHE_HOME", home);
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    if (!fontConfig.isEmpty())
        environment.insert("FONTCONFIG_FILE", fontConfig);
    process.setProcessEnvironment(environment);
    process.start(program, QStringList());
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << process.readAllStandardError().constData();
    EXPECT_EQ(process.exitCode(), 0);
    return QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

const QString probe = QStringLiteral(NALVO_BINARY_DIR "/nalvo-args-probe");

} // namespace

// --- network ---

TEST_F(NetworkInWindow, TheProxyIsAppliedStoredForTheUserAloneAndThereAfterARestart)
{
    openPage("Network");
    choose(inDialog<QComboBox>("proxyType"), "HTTP Proxy (recommendet)");
    type(inDialog<QWidget>("proxyHostName"), "proxy.example");
    type(inDialog<QWidget>("proxyPort"), "8080");
    type(inDialog<QWidget>("proxyUserName"), "jo");
    type(inDialog<QWidget>("proxyUserPassword"), "s3cret,word");
    screenshot("window-config-network");
    apply();
    const QNetworkProxy expected(QNetworkProxy::HttpProxy, "proxy.example", 8080, "jo", "s3cret,word");
    EXPECT_EQ(module<ModNetworkHookIf>()->proxy(), expected);
    EXPECT_EQ(readSetting("ModNetwork/proxyUserPassword"), "s3cret,word") << "at once, not only at the end";
    const QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFileInfo(settingsFile()).permissions(), ownerOnly);
    for (const QString& text : messageTexts())
        EXPECT_FALSE(text.contains("s3cret")) << qPrintable(text);
    ASSERT_TRUE(closeWindow());
    EXPECT_EQ(QFileInfo(settingsFile()).permissions(), ownerOnly);

    makeWindow();
    EXPECT_EQ(module<ModNetworkHookIf>()->proxy(), expected);
    openPage("Network");
    EXPECT_EQ(inDialog<QComboBox>("proxyType")->currentText(), "HTTP Proxy (recommendet)");
    EXPECT_EQ(inDialog<QLineEdit>("proxyHostName")->text(), "proxy.example");
    EXPECT_EQ(inDialog<QSpinBox>("proxyPort")->value(), 8080);
    EXPECT_EQ(inDialog<QLineEdit>("proxyUserName")->text(), "jo");
    EXPECT_EQ(inDialog<QLineEdit>("proxyUserPassword")->text(), "s3cret,word");
    EXPECT_FALSE(inDialog<QLineEdit>("proxyUserPassword")->displayText().contains('s'));
    // A window that goes without a close, with its page open.
    window.reset();
}

// --- updates ---

TEST_F(NetworkInWindow, TheSettingsOfTheUpdatesSurviveARestart)
{
    openPage("Updates");
    EXPECT_EQ(inDialog<QLineEdit>("currentRelease")->text(), QCoreApplication::applicationVersion());
    choose(inDialog<QComboBox>("updateCheckInterval"), "Monthly");
    type(inDialog<QWidget>("timeOut"), "45");
    screenshot("window-config-updates");
    apply();
    ASSERT_TRUE(closeWindow());
    makeWindow();
    openPage("Updates");
    EXPECT_EQ(inDialog<QComboBox>("updateCheckInterval")->currentText(), "Monthly");
    EXPECT_EQ(inDialog<QSpinBox>("timeOut")->value(), 45);
    EXPECT_TRUE(closeWindow());
}

TEST_F(NetworkInWindow, ABuildWithoutAnUpdateServerSaysSo)
{
    updates()->setAddresses({QString(), QString()});
    EXPECT_FALSE(messageTexts().contains("Checking for update..."));
    chooseHelp("Check for Nalvo update");
    EXPECT_EQ(messageTexts().last(), "This build has no update server.");
    chooseHelp("Open Nalvo download page");
    EXPECT_EQ(messageTexts().last(), "This build has no download page.");
    EXPECT_EQ(browser.opened, QStringList());
    EXPECT_TRUE(closeWindow());
}

TEST_F(NetworkInWindow, ANewerReleaseIsShownAsPlainTextThroughTheProxyOfTheUser)
{
    LocalHttpProxy proxy;
    proxy.user = "jo";
    proxy.password = "s3cret";
    server.answer = [](const LocalHttpServer::Request&) { return LocalHttpServer::page(expired); };
    useServer();
    openPage("Network");
    choose(inDialog<QComboBox>("proxyType"), "HTTP Proxy (recommendet)");
    type(inDialog<QWidget>("proxyHostName"), "127.0.0.1");
    type(inDialog<QWidget>("proxyPort"), QString::number(proxy.port()));
    type(inDialog<QWidget>("proxyUserName"), "jo");
    type(inDialog<QWidget>("proxyUserPassword"), "s3cret");
    apply();
    chooseHelp("Check for Nalvo update");
    ASSERT_TRUE(waitForMessage("Update available: 2031-4.2 from 2031-04-05"));
    EXPECT_EQ(proxy.handedOn, 1);
    EXPECT_EQ(server.requests.size(), 1);
    EXPECT_TRUE(messageTexts().contains("Changes"));
    EXPECT_TRUE(messageTexts().contains("A <b>bold</b> <img src='x'/> line"));
    EXPECT_EQ(browser.opened, QStringList("http://127.0.0.1/nalvo-update"));
    for (const QString& text : messageTexts())
        EXPECT_FALSE(text.contains("s3cret")) << qPrintable(text);
    screenshot("window-update-available");
    ASSERT_TRUE(closeWindow());
    EXPECT_EQ(readSetting("ModSwUpdate/lastUpdateCheck"), QDate::currentDate().toString(Qt::ISODate));
}

TEST_F(NetworkInWindow, TheWindowClosesDuringARequest)
{
    server.answer = nullptr;
    useServer();
    chooseHelp("Check for Nalvo update");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !server.requests.isEmpty(); }, 60000));
    ASSERT_TRUE(closeWindow());
    EXPECT_TRUE(QTest::qWaitFor([this] { return server.gone == 1; }, 60000));
    updates()->chkForUpdate();
    window.reset();
    EXPECT_EQ(readSetting("ModSwUpdate/lastUpdateCheck"), "");
    EXPECT_EQ(server.requests.size(), 1);
}

TEST_F(NetworkInWindow, TheWindowGoesDuringARequest)
{
    server.answer = nullptr;
    useServer();
    chooseHelp("Check for Nalvo update");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !server.requests.isEmpty(); }, 60000));
    window.reset();
    EXPECT_TRUE(QTest::qWaitFor([this] { return server.gone == 1; }, 60000));
}

// --- fonts ---

TEST_F(NetworkInWindow, TheFontsAreLoadedAtTheStart)
{
    EXPECT_TRUE(messageTexts().contains("Loading fonts..."));
    EXPECT_EQ(messageTexts().filter("Loading font: ").size(), 4);
    EXPECT_TRUE(closeWindow());
}

TEST_F(NetworkInWindow, TheFixedFontIsThereOnAMachineWithoutFonts)
{
    const QString config =
        writeFile("fonts.conf", "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"
                                "<fontconfig></fontconfig>\n");
    const QStringList report = startProbe(probe, projectDir(), config);
    EXPECT_TRUE(report.contains("visible: 1"));
    EXPECT_TRUE(report.contains("fixed font: DejaVu Sans Mono")) << qPrintable(report.join('\n'));
    for (const char* style : {"Book", "Bold", "Oblique", "Bold Oblique"})
        EXPECT_TRUE(report.contains(QStringLiteral("style: ") + style)) << style;
}

TEST_F(NetworkInWindow, WithoutItsFontsTheProgramStarts)
{
    const QString config =
        writeFile("fonts.conf", "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"
                                "<fontconfig></fontconfig>\n");
    QDir().mkpath(projectDir() + "/a/b/c");
    const QString moved = projectDir() + "/a/b/c/nalvo";
    ASSERT_TRUE(QFile::copy(probe, moved));
    for (const QString& fonts : {QString(), config}) {
        const QStringList report = startProbe(moved, projectDir(), fonts);
        EXPECT_TRUE(report.contains("visible: 1"));
        EXPECT_TRUE(report.contains("message: No font folder found.")) << qPrintable(report.join('\n'));
        if (!fonts.isEmpty()) {
            EXPECT_FALSE(report.contains("fixed font: DejaVu Sans Mono")) << "it comes from somewhere else";
        }
    }
    // A link to the program leads to its fonts.
    const QString link = projectDir() + "/a/b/c/link";
    ASSERT_TRUE(QFile::link(probe, link));
    EXPECT_EQ(startProbe(link, projectDir(), QString()).filter("message: Loading font: ").size(), 4);
}

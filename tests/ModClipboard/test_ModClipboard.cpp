// Cut, copy and paste: who gets them, when they are on, and that they leave text fields alone.

#include "ModAction.h"
#include "ModClipboard.h"
#include "ModGui.h"

#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolBar>

static void initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

namespace {

using Hook = ModClipboardHookIf;

/// Owns pages and records what it is asked for.
struct Client : public ModClipboardPluginIf
{
    void clipboardAction(Hook::eClipboardFeature_t feature) override { asked.append(feature); }
    QList<int> asked;
};

class Clipboard : public ::testing::Test
{
protected:
    Clipboard()
    {
        initResources();
        gui = new nsModGui::ModGui(&window);
        action = new nsModAction::ModAction(&window);
        module = new nsModClipboard::ModClipboard(&window);
        const QList<ModPluginIf*> modules = {action, module, gui};
        for (ModPluginIf* one : modules)
            one->modRegisterPlugins(modules);
        for (ModPluginIf* one : modules)
            one->modInit();
        for (ModPluginIf* one : modules)
            one->modInitIntermod();
        for (ModPluginIf* one : modules)
            one->modRun();
        module->registerPlugin(&client);
        window.resize(800, 600);
        window.show();
        QApplication::setActiveWindow(&window);
        QApplication::clipboard()->setText("before");
    }
    ~Clipboard() override
    {
        // The pages stand in the window, which goes after the clients.
        for (QWidget* page : pages)
            delete page;
    }

    QWidget* addPage(const QString& name, QWidget* page = nullptr)
    {
        pages.append(page != nullptr ? page : new QWidget);
        gui->addWidget(nullptr, ModGuiHookIf::eLocationTabs, pages.last(), name);
        return pages.last();
    }
    QList<QAction*> actions() const { return module->menuActions(ModActionHookIf::eActionClassEdit); }
    /// "xcv" with the letters of what is on.
    QString enabled() const
    {
        QString letters;
        for (int i = 0; i < actions().size(); ++i)
            letters += actions().at(i)->isEnabled() ? QString("xcv").at(i) : QChar('-');
        return letters;
    }
    static Hook::eClipboardFeature_t features(int bits) { return static_cast<Hook::eClipboardFeature_t>(bits); }

    Client client;
    QMainWindow window;
    nsModGui::ModGui* gui = nullptr;
    nsModAction::ModAction* action = nullptr;
    nsModClipboard::ModClipboard* module = nullptr;
    QList<QWidget*> pages;
};

TEST_F(Clipboard, actionsHaveTheirTextsTipsShortcutsAndIcons)
{
    ASSERT_EQ(actions().size(), 3);
    const struct
    {
        const char* text;
        const char* tip;
        QKeySequence::StandardKey key;
    } expected[] = {{"Cut", "Cut selection to clipboard", QKeySequence::Cut},
                    {"Copy", "Copy selection to clipboard", QKeySequence::Copy},
                    {"Paste", "Paste content from clipboard", QKeySequence::Paste}};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(actions().at(i)->text(), expected[i].text);
        EXPECT_EQ(actions().at(i)->toolTip(), expected[i].tip);
        EXPECT_EQ(actions().at(i)->shortcuts(), QKeySequence::keyBindings(expected[i].key));
        EXPECT_EQ(actions().at(i)->data().toInt(), i);
        EXPECT_FALSE(actions().at(i)->icon().pixmap(22).isNull());
    }
    EXPECT_EQ(module->toolBarActions(ModActionHookIf::eActionClassEdit), actions());
}

TEST_F(Clipboard, actionsStandInNoOtherMenu)
{
    for (int actionClass = 0; actionClass < 8; ++actionClass) {
        const auto id = static_cast<ModActionHookIf::eActionClass_t>(actionClass);
        EXPECT_EQ(module->menuActions(id).isEmpty(), id != ModActionHookIf::eActionClassEdit);
        EXPECT_EQ(module->toolBarActions(id).isEmpty(), id != ModActionHookIf::eActionClassEdit);
    }
}

TEST_F(Clipboard, allAreOffAtTheStart)
{
    EXPECT_EQ(enabled(), "---");
}

TEST_F(Clipboard, eachBitSwitchesItsAction)
{
    const char* expected[] = {"---", "x--", "-c-", "xc-", "--v", "x-v", "-cv", "xcv"};
    for (int bits = 0; bits < 8; ++bits) {
        module->setFeatureEnable(features(0xff), false);
        module->setFeatureEnable(features(bits), true);
        EXPECT_EQ(enabled(), expected[bits]);
        module->setFeatureEnable(features(0xff), true);
        module->setFeatureEnable(features(bits), false);
        EXPECT_EQ(enabled(), expected[7 - bits]);
    }
    module->setFeatureEnable(features(0xf8), true);
    EXPECT_EQ(enabled(), "---");
}

TEST_F(Clipboard, pageThatIsNotRegisteredSwitchesAllOff)
{
    QWidget* document = addPage("document");
    module->registerPluginWidget(&client, document);
    module->setFeatureEnable(features(4), true);
    EXPECT_EQ(enabled(), "--v");
    addPage("settings");
    EXPECT_EQ(enabled(), "---");
    // The plug-in of a registered page sets its features itself.
    gui->setCurrentWidget(document);
    EXPECT_EQ(enabled(), "---");
    module->setFeatureEnable(features(7), true);
    QWidget* other = addPage("document");
    EXPECT_EQ(enabled(), "---");
    module->registerPluginWidget(&client, other);
    module->setFeatureEnable(features(7), true);
    gui->setCurrentWidget(document);
    EXPECT_EQ(enabled(), "xcv");
}

TEST_F(Clipboard, lastPageThatGoesSwitchesAllOff)
{
    QWidget* document = addPage("document");
    module->registerPluginWidget(&client, document);
    module->setFeatureEnable(features(7), true);
    gui->removeWidget(document);
    EXPECT_EQ(enabled(), "---");
}

TEST_F(Clipboard, otherAreasSwitchNothing)
{
    QWidget* document = addPage("document");
    module->registerPluginWidget(&client, document);
    module->setFeatureEnable(features(7), true);
    QWidget dock;
    gui->addWidget(nullptr, ModGuiHookIf::eLocationDockLeft, &dock, "dock");
    EXPECT_EQ(enabled(), "xcv");
    gui->removeWidget(&dock);
    EXPECT_EQ(enabled(), "xcv");
}

TEST_F(Clipboard, clickGoesToTheClientOfTheCurrentPage)
{
    Client second;
    QWidget* one = addPage("one");
    QWidget* two = addPage("two");
    module->registerPluginWidget(&client, one);
    module->registerPluginWidget(&second, two);
    module->setFeatureEnable(features(7), true);
    for (QAction* entry : actions())
        entry->trigger();
    EXPECT_EQ(second.asked, QList<int>({1, 2, 4}));
    EXPECT_EQ(client.asked, QList<int>());
    gui->setCurrentWidget(one);
    actions().at(2)->trigger();
    EXPECT_EQ(client.asked, QList<int>({4}));
    // A later client of a page takes the place of the earlier one.
    module->registerPluginWidget(&second, one);
    actions().at(0)->trigger();
    EXPECT_EQ(second.asked, QList<int>({1, 2, 4, 1}));
    EXPECT_EQ(client.asked, QList<int>({4}));
}

TEST_F(Clipboard, toolBarButtonCuts)
{
    module->registerPluginWidget(&client, addPage("document"));
    module->setFeatureEnable(features(1), true);
    QWidget* button = nullptr;
    for (QToolBar* bar : window.findChildren<QToolBar*>()) {
        if (bar->widgetForAction(actions().first()) != nullptr)
            button = bar->widgetForAction(actions().first());
    }
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(client.asked, QList<int>({1}));
}

TEST_F(Clipboard, pageThatHasLeftGetsNothing)
{
    QWidget* document = addPage("document");
    module->registerPluginWidget(&client, document);
    module->setFeatureEnable(features(7), true);
    module->unregisterPluginWidget(document);
    module->unregisterPluginWidget(document);
    module->unregisterPluginWidget(nullptr);
    EXPECT_EQ(enabled(), "---");
    module->setFeatureEnable(features(7), true);
    actions().at(1)->trigger();
    EXPECT_EQ(client.asked, QList<int>());
}

TEST_F(Clipboard, pageThatWasDeletedIsForgotten)
{
    module->registerPluginWidget(&client, addPage("document"));
    delete pages.takeLast();
    EXPECT_EQ(enabled(), "---");
    // Any new page may have the address of the old one.
    for (int i = 0; i < 50; ++i)
        addPage("page");
    module->setFeatureEnable(features(7), true);
    for (QWidget* page : qAsConst(pages)) {
        gui->setCurrentWidget(page);
        EXPECT_EQ(enabled(), "---");
        module->setFeatureEnable(features(7), true);
        actions().at(0)->trigger();
    }
    EXPECT_EQ(client.asked, QList<int>());
}

TEST_F(Clipboard, standardKeysWorkInLineEditsOfAPageThatIsNotRegistered)
{
    auto* edit = new QLineEdit("text");
    addPage("settings", edit);
    edit->setFocus();
    edit->selectAll();
    QTest::keySequence(edit, QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "text");
    QTest::keySequence(edit, QKeySequence::Cut);
    EXPECT_EQ(edit->text(), "");
    QTest::keySequence(edit, QKeySequence::Paste);
    QTest::keySequence(edit, QKeySequence::Paste);
    EXPECT_EQ(edit->text(), "texttext");
    EXPECT_EQ(client.asked, QList<int>());
}

TEST_F(Clipboard, standardKeysBelongToTheLineEditWithTheFocusWhateverPageIsCurrent)
{
    module->registerPluginWidget(&client, addPage("document"));
    module->setFeatureEnable(features(7), true);
    auto* edit = new QLineEdit("text");
    pages.append(edit);
    gui->addWidget(nullptr, ModGuiHookIf::eLocationCenterBelow, edit, QString());
    edit->setFocus();
    edit->selectAll();
    QTest::keySequence(edit, QKeySequence::Cut);
    EXPECT_EQ(edit->text(), "");
    EXPECT_EQ(QApplication::clipboard()->text(), "text");
    EXPECT_EQ(client.asked, QList<int>());
}

TEST_F(Clipboard, keyOfARegisteredPageReachesItsClient)
{
    QWidget* document = addPage("document");
    document->setFocusPolicy(Qt::StrongFocus);
    document->setFocus();
    module->registerPluginWidget(&client, document);
    QTest::keySequence(document, QKeySequence::Copy);
    EXPECT_EQ(client.asked, QList<int>());
    module->setFeatureEnable(features(2), true);
    QTest::keySequence(document, QKeySequence::Copy);
    EXPECT_EQ(client.asked, QList<int>({2}));
}

TEST_F(Clipboard, doesWithoutHooksAndAfterItsEnd)
{
    QWidget* document = addPage("document");
    module->registerPluginWidget(nullptr, document);
    module->registerPluginWidget(&client, nullptr);
    module->registerPlugin(nullptr);
    EXPECT_EQ(client.modClipboardHook, module);
    module->registerPluginWidget(&client, document);
    module->setFeatureEnable(features(7), true);
    ModGuiHookIf* hook = module->modGuiHook;
    module->modGuiHook = nullptr;
    actions().at(0)->trigger();
    module->unregisterPluginWidget(document);
    EXPECT_EQ(client.asked, QList<int>());
    module->modGuiHook = hook;
    EXPECT_TRUE(module->modExitRequest());
    module->modExitIntermod();
    module->modExit();
    module->modExit();
    EXPECT_TRUE(actions().isEmpty());
    module->setFeatureEnable(features(7), true);
    addPage("late");
    module->modInit();
    module->modInit();
    EXPECT_EQ(actions().size(), 3);
}

} // namespace

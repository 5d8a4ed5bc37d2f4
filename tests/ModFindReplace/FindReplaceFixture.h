#pragma once

#include "ModAction.h"
#include "ModFindReplace.h"
#include "ModGui.h"
#include "Readable.h"
#include "Settle.h"

#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

static inline void initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

/// Owns pages to search in, and records the calls that it gets: "next", or "next*" with changed parameters.
struct FindClient : public ModFindReplacePluginIf
{
    QString findInit() override
    {
        log.append("init");
        return initText;
    }
    void findExit() override { log.append("exit"); }
    void findNext(bool changed) override { note("next", changed); }
    void findPrev(bool changed) override { note("prev", changed); }
    void replace(bool changed) override { note("replace", changed); }
    void replaceAll(bool changed) override { note("replaceAll", changed); }

    QStringList take()
    {
        const QStringList taken = log;
        log.clear();
        return taken;
    }

    QStringList log;
    QString initText; ///< knob: what findInit() answers

private:
    void note(const char* what, bool changed) { log.append(QString(what) + (changed ? "*" : "")); }
};

/// The bar in the window, with a client that can all and one that can only find.
class FindReplaceTest : public ::testing::Test
{
protected:
    using Actions = nsModFindReplace::FindReplaceActions;
    using Widget = nsModFindReplace::FindReplaceWidget;

    FindReplaceTest()
    {
        initResources();
        gui = new nsModGui::ModGui(&window);
        action = new nsModAction::ModAction(&window);
        module = new nsModFindReplace::ModFindReplace(&window);
        const QList<ModPluginIf*> modules = {action, module, gui};
        for (ModPluginIf* one : modules)
            one->modRegisterPlugins(modules);
        for (ModPluginIf* one : modules)
            one->modInit();
        for (ModPluginIf* one : modules)
            one->modInitIntermod();
        for (ModPluginIf* one : modules)
            one->modRun();
        module->registerPlugin(&editor);
        module->registerPlugin(&help);
        window.resize(1000, 640);
        window.show();
        QApplication::setActiveWindow(&window);
    }
    ~FindReplaceTest() override { qDeleteAll(pages); }

    /// The fading of the clear buttons outlives their fields by a moment, and is only deleted at its end.
    static void TearDownTestSuite() { settleAnimations(); }

    QWidget* addPage(const QString& name, FindClient* client = nullptr, int features = 3)
    {
        auto* page = new QWidget;
        page->setFocusPolicy(Qt::StrongFocus);
        pages.append(page);
        if (client != nullptr)
            module->registerPluginWidget(client, page, features);
        gui->addWidget(nullptr, ModGuiHookIf::eLocationTabs, page, name);
        return page;
    }
    Widget* bar() const { return window.findChild<Widget*>(); }
    template <class Type>
    Type* part(const char* name) const
    {
        return bar()->findChild<Type*>(QLatin1String(name));
    }
    QLineEdit* find() const { return part<QLineEdit>("editFind"); }
    QLineEdit* replace() const { return part<QLineEdit>("editReplace"); }
    void click(const char* name) { QTest::mouseClick(part<QAbstractButton>(name), Qt::LeftButton); }
    QAction* entry(Actions::eAction_t id) const
    {
        for (QAction* one : module->menuActions(ModActionHookIf::eActionClassEdit)) {
            if (one->data().toInt() == id)
                return one;
        }
        return nullptr;
    }
    void choose(Actions::eAction_t id) { entry(id)->trigger(); }
    /// "fnpr" with the letters of the actions that are on: find, next, previous, replace.
    QString enabled() const
    {
        QString letters;
        for (int id = 0; id < 4; ++id)
            letters += entry(Actions::eAction_t(id))->isEnabled() ? QString("fnpr").at(id) : QChar('-');
        return letters;
    }

    FindClient editor;
    FindClient help;
    QMainWindow window;
    nsModGui::ModGui* gui = nullptr;
    nsModAction::ModAction* action = nullptr;
    nsModFindReplace::ModFindReplace* module = nullptr;
    QList<QWidget*> pages;
};

// The module: the page's life, the action, scripts.

#include "ImportFixture.h"
#include "QtPrinters.h"

#include <QAction>

namespace {

class RecordingEditor : public FakeEditorHook
{
public:
    void newFile(QString text) override { texts.append(text); }
    QStringList texts;
};

class ImportModule : public ImportFixture
{
protected:
    ImportModule()
    {
        module = std::make_unique<ModImport>();
        module->modMsgHook = &msg;
        module->modPrjHook = &prj;
        module->modEditorHook = &editor;
        module->modGuiHook = &gui;
        module->modHlpHook = &hlp;
        module->modScriptHook = &script;
        module->modInit();
        module->modInitIntermod();
        prj.path = dir.filePath("p.nalvo");
        module->prjOpen();
    }
    ~ImportModule() override
    {
        if (module != nullptr) {
            module->modExitIntermod();
            module->modExit();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void open()
    {
        module->openImportDialog();
        page = qobject_cast<ImportWidget*>(gui.currentWidget(ModGuiHookIf::eLocationTabs));
    }
    QAction* action() const { return module->menuActions(ModActionHookIf::eActionClassFile).value(0); }
    static void deleteLeftOver() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    FakePrjHook prj;
    RecordingEditor editor;
    FakeGuiHook gui;
    FakeHlpHook hlp;
    FakeScriptHook script;
    std::unique_ptr<ModImport> module;
};

} // namespace

TEST_F(ImportModule, thePageOpensOnceAndCloses)
{
    open();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(gui.widgets.value(page).name, "Import files");
    EXPECT_EQ(gui.widgets.value(page).plugin, module.get());
    EXPECT_EQ(hlp.refs, QStringList("pageId://filesImport"));
    EXPECT_EQ(page->modMsgHook, &msg);
    module->openImportDialog();
    EXPECT_EQ(gui.widgets.size(), 1);
    ImportWidget* closed = page;
    module->closeImportDialog();
    EXPECT_EQ(gui.widgets.size(), 0);
    EXPECT_EQ(hlp.closed, QList<QWidget*>{closed});
    EXPECT_EQ(closed->modMsgHook, nullptr);
    deleteLeftOver();
    EXPECT_TRUE(page.isNull());
    module->closeImportDialog();
    open();
    EXPECT_NE(page, nullptr) << "and again";
}

TEST_F(ImportModule, thePageClosesWithItsTabTheProjectAndTheProgram)
{
    QWidget other;
    open();
    module->removeWidgetRequest(&other);
    module->removeWidgetRequest(nullptr);
    EXPECT_EQ(gui.widgets.size(), 1);
    module->removeWidgetRequest(page);
    EXPECT_EQ(gui.widgets.size(), 0);
    open();
    module->prjClose();
    EXPECT_EQ(gui.widgets.size(), 0);
    open();
    module->modExitIntermod();
    EXPECT_EQ(gui.widgets.size(), 0);
}

TEST_F(ImportModule, thePageClosesInTheMiddleOfAConversion)
{
    open();
    load(QByteArray("RETURN\n").repeated(100));
    page->setSliceTime(0);
    QTimer::singleShot(0, page, [&] { module->prjClose(); });
    page->convertAll();
    deleteLeftOver();
    EXPECT_TRUE(page.isNull());
}

TEST_F(ImportModule, theModuleCanGoBeforeItsPage)
{
    open();
    gui.removeWidget(page);
    module.reset();
    EXPECT_TRUE(page.isNull());
}

TEST_F(ImportModule, aPageThatWasDeletedIsForgotten)
{
    open();
    delete page;
    EXPECT_EQ(page, nullptr);
    gui.widgets.clear();
    open();
    EXPECT_NE(page, nullptr);
}

TEST_F(ImportModule, theActionBelongsToTheFileMenuAndAProject)
{
    ASSERT_NE(action(), nullptr);
    EXPECT_EQ(action()->text(), "Import files...");
    EXPECT_EQ(action()->toolTip(), "Starts import files dialog.");
    EXPECT_EQ(action()->data().toInt(), 0);
    EXPECT_TRUE(action()->isEnabled());
    for (int one = 0; one <= 7; ++one) {
        const auto actionClass = ModActionHookIf::eActionClass_t(one);
        EXPECT_EQ(module->menuActions(actionClass).size(), one == 1 ? 2 : 0);
        EXPECT_TRUE(module->toolBarActions(actionClass).isEmpty());
    }
    action()->trigger();
    EXPECT_EQ(gui.widgets.size(), 1);
    module->prjClose();
    EXPECT_FALSE(action()->isEnabled());
    EXPECT_FALSE(std::make_unique<ModImport>()->menuActions(ModActionHookIf::eActionClassFile).size());
}

TEST_F(ImportModule, theResultBecomesADocument)
{
    open();
    load("RETURN");
    page->convertAll();
    button("importUse")->click();
    EXPECT_EQ(editor.texts, QStringList("RET"));
    EXPECT_EQ(gui.widgets.size(), 1) << "the page stays open";
}

TEST_F(ImportModule, scriptsImport)
{
    EXPECT_EQ(script.objects.value("importFiles"), module.get());
    const QString path = write("source.psm", "RETURN");
    const auto call = [&](const QString& file, const QString& filter) {
        EXPECT_TRUE(
            QMetaObject::invokeMethod(module.get(), "importFile", Q_ARG(QString, file), Q_ARG(QString, filter)));
    };
    call(path, "KCPSM3");
    page = qobject_cast<ImportWidget*>(gui.currentWidget(ModGuiHookIf::eLocationTabs));
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(filters()->currentText(), "KCPSM3");
    EXPECT_EQ(source()->text(), "RETURN");
    EXPECT_TRUE(script.errors.isEmpty());
    call("source.psm", "none");
    call("none", "KCPSM6");
    call("none", "none");
    EXPECT_EQ(script.errors, QStringList({"There is no import filter: none", "Can not open file: none",
                                          "There is no import filter: none"}));
    EXPECT_TRUE(QMetaObject::invokeMethod(module.get(), "closeImportDialog"));
    EXPECT_TRUE(QMetaObject::invokeMethod(module.get(), "openImportDialog"));
    EXPECT_EQ(gui.widgets.size(), 1);
}

TEST_F(ImportModule, doesWithoutTheOtherModules)
{
    ModImport alone;
    alone.modInit();
    alone.modInitIntermod();
    alone.openImportDialog();
    alone.importFile("a", "b");
    alone.useFile("text");
    alone.prjOpen();
    alone.prjClose();
    alone.modGuiHook = &gui;
    alone.openImportDialog();
    EXPECT_EQ(gui.widgets.size(), 1);
    alone.importFile("a", "b");
    alone.modExitIntermod();
    alone.modExit();
    EXPECT_EQ(gui.widgets.size(), 0);
}

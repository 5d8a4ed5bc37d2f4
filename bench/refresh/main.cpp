// How long the window takes to follow a run with 10,000 labels and 10,000 EQUs: insertion menu, completer list and
// navigator.
//
// The program is run twice on its source: the second run also has the menu entries and tags of the first one to
// replace. Prints the times of the slower one. The real assembler calls; only the time that it spends in these three
// services counts.

#include "CfgTree.h"
#include "FakeEditorHook.h"
#include "ModAsmFe.h"
#include "ModGui.h"
#include "ModMsgHookIf.h"
#include "ModMsgPluginIf.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ModSources.h"
#include "ModSrcNavi.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMenu>
#include <QStringListModel>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTreeWidget>

/// The style sheet; at global scope, as the macro declares a function of the resource compiler.
static void initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

namespace {

const int symbolCount = 10000;

/// Adds up the time between start() and stop().
class StopWatch
{
public:
    void start() { m_clock.start(); }
    void stop() { m_nanoseconds += m_clock.nsecsElapsed(); }
    void reset() { m_nanoseconds = 0; }
    double seconds() const { return double(m_nanoseconds) * 1e-9; }

private:
    QElapsedTimer m_clock;
    qint64 m_nanoseconds = 0;
};

/// The editor as far as the assembler uses it after a run: with the real menu and the model that the completers share.
class EditorHook : public FakeEditorHook
{
public:
    void setTextCompletionList(QStringList& words) override
    {
        completion.setStringList(words);
        completion.sort(0, Qt::AscendingOrder);
    }
    nsModEditor::EditorSupportMenu* supportMenu() override { return &menu; }

    QStringListModel completion;
    nsModEditor::EditorSupportMenu menu;
};

/// Takes the times of two stages, which report themselves as groups of messages.
class MsgHook : public ModMsgHookIf
{
public:
    void registerPlugin(ModMsgPluginIfInterMod* plugin) override { plugin->modMsgHook = this; }
    void unregisterPlugin(ModMsgPluginIfInterMod* plugin) override { plugin->modMsgHook = nullptr; }
    void registerPlugin(ModMsgPluginIf* plugin) override { plugin->modMsgHook = this; }
    void unregisterPlugin(ModMsgPluginIf* plugin) override { plugin->modMsgHook = nullptr; }
    void registerPluginUrlHndlr(eUrlHndlr_t, ModMsgPluginIfUrlHndlr*) override {}
    void unregisterPluginUrlHndlr(eUrlHndlr_t, ModMsgPluginIfUrlHndlr*) override {}
    void clearMessages() override {}
    void openMessageGroup(QString, QUrl hlpDoc) override
    {
        m_open.append(hlpDoc.fragment() == QLatin1String("refreshTextCompleter")   ? &completer
                      : hlpDoc.fragment() == QLatin1String("refreshInsertionMenu") ? &menu
                                                                                   : nullptr);
        if (m_open.last() != nullptr)
            m_open.last()->start();
    }
    void closeMessageGroup(bool) override
    {
        if (StopWatch* watch = m_open.isEmpty() ? nullptr : m_open.takeLast())
            watch->stop();
    }
    void showMessage(eMsgType_t type, QString text, QUrl, nsModMsg::MsgUrl) override
    {
        if (type == eMsgError)
            errors.append(text);
    }
    void showInfoMessage(QString, QUrl, nsModMsg::MsgUrl) override {}
    void showWarningMessage(QString, QUrl, nsModMsg::MsgUrl) override {}
    void showErrorMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl link) override
    {
        showMessage(eMsgError, text, hlpDoc, link);
    }

    StopWatch completer;
    StopWatch menu;
    QStringList errors;

private:
    QList<StopWatch*> m_open;
};

/// Takes the time that the navigator needs for its part of a run.
class NaviHook : public ModSrcNaviHookIf
{
public:
    explicit NaviHook(ModSrcNaviHookIf* real)
        : m_real(real)
    {
    }
    void registerPlugin(ModSrcNaviPluginIf* plugin) override { plugin->modSrcNaviHook = this; }
    void unregisterPlugin(ModSrcNaviPluginIf* plugin) override { plugin->modSrcNaviHook = nullptr; }
    void registerPlugin(ModSrcNaviPluginIfSymbols* plugin) override { plugin->modSrcNaviHook = this; }
    void unregisterPlugin(ModSrcNaviPluginIfSymbols* plugin) override { plugin->modSrcNaviHook = nullptr; }
    void setTargetFiles(QStringList templates, QStringList outputs, QMap<QString, int> errors) override
    {
        m_real->setTargetFiles(templates, outputs, errors);
    }
    void clearTagList() override
    {
        watch.start();
        m_real->clearTagList();
        watch.stop();
    }
    void addTag(nsModSrcNavi::NaviTag* tag) override
    {
        watch.start();
        m_real->addTag(tag);
        watch.stop();
    }
    void showTagList() override
    {
        watch.start();
        m_real->showTagList();
        watch.stop();
    }

    StopWatch watch;

private:
    ModSrcNaviHookIf* m_real;
};

bool writeProject(const QDir& dir)
{
    QFile source(dir.filePath(QStringLiteral("bench.psm")));
    if (!source.open(QIODevice::WriteOnly))
        return false;
    QTextStream out(&source);
    for (int i = 0; i < symbolCount; ++i)
        out << "#EQU constant_" << i << ", " << i % 256 << "\n";
    for (int i = 0; i < symbolCount; ++i)
        out << "label_" << i << ":\n";
    out << "    NOP\n";
    out.flush();

    CfgTree tree(nullptr);
    tree.setValue(QStringLiteral("sources/srcFiles"), QStringList{QStringLiteral("bench.psm")});
    tree.setValue(QStringLiteral("ModProcessor/processor"), QStringLiteral("Xilinx PicoBlaze 3"));
    nsModPrj::ModPrj writer;
    return writer.savePrjFile(&tree, dir.filePath(QStringLiteral("bench.nalvo")));
}

/// The modules in a window.
struct Bench
{
    explicit Bench(const QString& project)
        : prj(&window)
        , sources(&window)
        , processor(&window)
        , asmFe(&window)
        , navi(&window)
        , gui(&window)
        , naviHook(&navi)
    {
        const QList<ModPluginIf*> modules = {&prj, &sources, &processor, &asmFe, &navi, &gui};
        for (ModPluginIf* module : modules) {
            if (auto* plugin = dynamic_cast<ModMsgPluginIf*>(module))
                msg.registerPlugin(plugin);
            if (auto* plugin = dynamic_cast<ModEditorPluginIf*>(module))
                editor.registerPlugin(plugin);
            if (auto* plugin = dynamic_cast<ModEditorPluginIfInterMod*>(module))
                editor.registerPlugin(plugin);
        }
        for (ModPluginIf* module : modules)
            module->modRegisterPlugins(modules);
        naviHook.registerPlugin(&asmFe);
        for (ModPluginIf* module : modules)
            module->modInit();
        for (ModPluginIf* module : modules)
            module->modInitIntermod();
        asmFe.setAssembleOnChange(false);
        window.resize(1280, 750);
        window.show();
        QApplication::processEvents();
        prj.openPrj(project);
    }
    ~Bench()
    {
        prj.closePrj();
        asmFe.modExitIntermod();
        asmFe.modExit();
    }

    /// One run, until the window is painted.
    bool run()
    {
        for (StopWatch* watch : {&msg.completer, &msg.menu, &naviHook.watch})
            watch->reset();
        asmFe.assemble(nsModAsmFe::ModAsmFe::eEventNone);
        // Painting counts as time of the navigator: nothing else in the window has changed.
        naviHook.watch.start();
        QApplication::processEvents();
        window.grab();
        naviHook.watch.stop();
        return asmFe.isAssembled();
    }
    /// Has everything arrived?
    bool isComplete() const
    {
        int entries = 0;
        for (const nsModEditor::EditorSupportMenuNode* node : editor.menu.children) {
            if (node->name == QLatin1String("Label") || node->name == QLatin1String("Defines"))
                entries += node->children.size();
        }
        const auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("codeNavi"));
        return entries >= 2 * symbolCount && editor.completion.rowCount() >= 2 * symbolCount &&
               tree->topLevelItemCount() == symbolCount;
    }
    double total() const { return msg.menu.seconds() + msg.completer.seconds() + naviHook.watch.seconds(); }

    QMainWindow window;
    MsgHook msg;
    EditorHook editor;
    nsModPrj::ModPrj prj;
    nsModSources::ModSources sources;
    nsModProcessor::ModProcessor processor;
    nsModAsmFe::ModAsmFe asmFe;
    nsModSrcNavi::ModSrcNavi navi;
    nsModGui::ModGui gui;
    NaviHook naviHook;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    initResources();
    QTextStream out(stdout);
    QTextStream err(stderr);
    QTemporaryDir folder;
    if (!writeProject(QDir(folder.path()))) {
        err << "can not write the project\n";
        return 1;
    }
    Bench bench(folder.filePath(QStringLiteral("bench.nalvo")));
    QStringList figures;
    double slowest = 0;
    for (int i = 0; i < 2; ++i) {
        if (!bench.run() || !bench.isComplete()) {
            err << "the run failed\n" << bench.msg.errors.mid(0, 5).join(QLatin1Char('\n')) << "\n";
            return 1;
        }
        if (bench.total() <= slowest)
            continue;
        slowest = bench.total();
        figures = QStringList{QStringLiteral("insertion_menu: %1").arg(bench.msg.menu.seconds()),
                              QStringLiteral("completer: %1").arg(bench.msg.completer.seconds()),
                              QStringLiteral("navigator: %1").arg(bench.naviHook.watch.seconds()),
                              QStringLiteral("seconds_10000_labels: %1").arg(slowest)};
    }
    out << figures.join(QLatin1Char('\n')) << "\n";
    return 0;
}

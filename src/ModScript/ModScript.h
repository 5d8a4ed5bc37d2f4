#pragma once

#include "ModActionPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModScriptHookIf.h"
#include "ModScriptPluginIf.h"
#include "MsgUrl.h"
#include "PluginList.h"
#include "ScriptActions.h"
#include "ScriptOutcome.h"

#include <QObject>
#include <QVector>

namespace nsModScript {

class ScriptEngine;

/// Runs scripts that drive the program, in the ECMAScript of QtScript: one engine for the whole run, in which the
/// modules are objects.
///
/// A script runs in the thread of the window and blocks what calls it, but the events of the user are handled
/// meanwhile. So the user can stop it, and everything else can happen as well: a second script is refused, an object
/// that goes makes its next call a script error, and the window closes when the script on the stack has ended.
class ModScript : public QObject,
                  public ModScriptHookIf,
                  public ModPluginIf,
                  public ModGuiPluginIf,
                  public ModActionPluginIf,
                  public ModMsgPluginIf
{
    Q_OBJECT

public:
    explicit ModScript(QObject* parent = nullptr, eScriptDebugger_t debugger = eDebuggerOnDisplay);
    ~ModScript() override;

    /// Runs the script of a file, or of a resource, in a message group. Bytes are taken up to the first zero byte.
    void executeScriptFile(QString fileName);
    /// Lets go of what the name stands for. The name stays bound.
    void unregisterObject(QString name);

    /// Script code is on the stack.
    bool isRunning() const;
    /// Ends the script that runs, which is reported, and forgets the functions that wait for their time. Script code is
    /// on the stack until ended().
    void stopScript();

    // ModScriptHookIf
    void registerObject(QObject* object, QString name) override;
    bool executeScript(QString script) override;
    void throwError(QString text) override;
    bool scriptGoesOn() override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t) override { return {}; }

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) override {}

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    /// Nothing of a script runs any more from here on.
    void modExitIntermod() override;
    void modExit() override;

    void registerPlugin(ModScriptPluginIf* plugin);

signals:
    /// The last script code has left the stack.
    void ended();

private slots:
    void handleActions(nsModScript::ScriptActions::eAction_t action);
    void updateActions();

private:
    void functionStarts();
    void functionEnded(const ScriptOutcome& outcome);
    void makeEngine(eScriptDebugger_t debugger);
    void disposeEngine();
    void runFromDialog();
    /// @param file of the script, empty if it comes from no file
    bool run(const QString& script, const QString& file);
    bool refusesSecond(const QString& what);
    /// @return true for a script that has ended well
    bool report(const ScriptOutcome& outcome);
    int groupDepth() const;
    void closeGroupsAbove(int depth, bool success);
    void error(const QString& text, const nsModMsg::MsgUrl& place = nsModMsg::MsgUrl());

    PluginList<ModScriptPluginIf> m_plugins;
    bool m_isDisposed = false;        ///< the end of the program has begun
    ScriptEngine* m_engine = nullptr; ///< ours; null while the program starts and after its end has begun
    ScriptActions* m_actions = nullptr;
    QString m_file;              ///< of the last script, empty if it came from no file
    QString m_lastDir;           ///< in which a script was selected
    QVector<int> m_groupsBefore; ///< message groups that were open at the start of each function that runs
};

} // namespace nsModScript

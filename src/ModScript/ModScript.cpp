#include "ModScript.h"

#include "DialogParent.h"
#include "ScriptEngine.h"

#include "Display.h"
#include "HelpRef.h"
#include "LateContent.h"
#include "ModMsgHookIf.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QRegExp>

#include <cstdio>

namespace nsModScript {

namespace {

const int longestLine = 4096; ///< characters of an error on standard error

bool isResource(const QString& fileName)
{
    return QRegExp("^:").indexIn(fileName) >= 0;
}

/// @return false: it can not be read. A pipe might never end, so only files are read.
bool readScript(const QString& fileName, QString* script)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return false;
    const int zero = bytes.indexOf('\0');
    *script = QString::fromUtf8(bytes.constData(), zero < 0 ? bytes.size() : zero);
    return true;
}

} // namespace

ModScript::ModScript(QObject* parent, eScriptDebugger_t debugger)
    : QObject(parent)
{
    LateContent::later(this, [this, debugger] { makeEngine(debugger); });
}

void ModScript::makeEngine(eScriptDebugger_t debugger)
{
    // The program may have ended before it had started.
    if (m_isDisposed)
        return;
    m_engine = new ScriptEngine(debugger);
    connect(m_engine, &ScriptEngine::busyChanged, this, &ModScript::updateActions);
    connect(m_engine, &ScriptEngine::ended, this, &ModScript::ended);
    connect(m_engine, &ScriptEngine::functionStarts, this, &ModScript::functionStarts);
    connect(m_engine, &ScriptEngine::functionEnded, this, &ModScript::functionEnded);
    updateActions();
}

ModScript::~ModScript()
{
    disposeEngine();
}

void ModScript::disposeEngine()
{
    m_isDisposed = true;
    if (m_engine != nullptr)
        ScriptEngine::dispose(m_engine);
    m_engine = nullptr;
}

// --- objects ---

void ModScript::registerObject(QObject* object, QString name)
{
    // As late as the engine.
    LateContent::later(this, [this, object, guard = QPointer<QObject>(object), name] {
        if (m_engine != nullptr && object == guard)
            m_engine->registerObject(object, name);
    });
}

void ModScript::unregisterObject(QString name)
{
    if (m_engine != nullptr)
        m_engine->unregisterObject(name);
}

void ModScript::throwError(QString text)
{
    if (m_engine != nullptr)
        m_engine->throwError(text);
}

bool ModScript::scriptGoesOn()
{
    const QPointer<ModScript> self(this);
    QCoreApplication::processEvents();
    return self != nullptr && m_engine != nullptr && !m_engine->isStopping();
}

// --- scripts ---

void ModScript::executeScriptFile(QString fileName)
{
    if (m_engine == nullptr || refusesSecond(fileName))
        return;
    QString script;
    if (!readScript(fileName, &script)) {
        error(tr("Can not open script file: ") + fileName);
        return;
    }
    const bool isInternal = isResource(fileName);
    if (modMsgHook != nullptr)
        modMsgHook->openMessageGroup(isInternal ? tr("Execute internal script... ") : tr("Execute script ") + fileName);
    const QPointer<ModScript> self(this);
    const bool success = run(script, isInternal ? QString() : QFileInfo(fileName).absoluteFilePath());
    if (self != nullptr && modMsgHook != nullptr)
        modMsgHook->closeMessageGroup(success);
}

bool ModScript::executeScript(QString script)
{
    return m_engine != nullptr && !refusesSecond(QString()) && run(script, QString());
}

bool ModScript::run(const QString& script, const QString& file)
{
    m_file = file;
    const QPointer<ModScript> self(this);
    const int depth = groupDepth();
    const ScriptOutcome outcome = m_engine->run(script, file.isEmpty() ? QString() : QFileInfo(file).absolutePath());
    // The window may have been deleted meanwhile.
    if (self == nullptr)
        return false;
    const bool success = report(outcome);
    closeGroupsAbove(depth, success);
    return success;
}

bool ModScript::refusesSecond(const QString& what)
{
    if (!isRunning())
        return false;
    if (what.isEmpty())
        error(tr("A script is running already."));
    else
        error(tr("A script is running already, this one was not started: %1").arg(what));
    return true;
}

bool ModScript::report(const ScriptOutcome& outcome)
{
    switch (outcome.end) {
    case ScriptOutcome::eEndGood:
        return true;
    case ScriptOutcome::eEndStopped:
        error(tr("The script was stopped."));
        break;
    case ScriptOutcome::eEndException: {
        nsModMsg::MsgUrl place;
        if (!m_file.isEmpty() && outcome.line > 0) {
            place.setScheme("file");
            place.setPath(m_file);
            place.setFragment(outcome.line - 1);
            place.setDisplayName(QFileInfo(m_file).fileName() + '#' + QString::number(outcome.line));
        }
        error(tr("Uncaught exception at line") + ' ' + QString::number(outcome.line) + " - " + outcome.text, place);
        break;
    }
    }
    return false;
}

void ModScript::functionStarts()
{
    m_groupsBefore.append(groupDepth());
}

void ModScript::functionEnded(const ScriptOutcome& outcome)
{
    const int depth = m_groupsBefore.isEmpty() ? 0 : m_groupsBefore.takeLast();
    // The script that has called it is stopped, too, and reports it.
    const bool isInner = outcome.end == ScriptOutcome::eEndStopped && isRunning();
    closeGroupsAbove(depth, isInner || report(outcome));
}

bool ModScript::isRunning() const
{
    return m_engine != nullptr && m_engine->isRunning();
}

void ModScript::stopScript()
{
    if (m_engine != nullptr)
        m_engine->stop();
}

// --- messages ---

int ModScript::groupDepth() const
{
    return modMsgHook != nullptr ? modMsgHook->messageGroupDepth() : 0;
}

/// A script that ends within a group of its own would leave it open, and the message view would never be cleared again.
void ModScript::closeGroupsAbove(int depth, bool success)
{
    for (int open = groupDepth(); open > depth; --open)
        modMsgHook->closeMessageGroup(success);
}

void ModScript::error(const QString& text, const nsModMsg::MsgUrl& place)
{
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(text, QUrl(), place);
    // Without a display, nobody can see the message view.
    if (!Display::isThere())
        std::fprintf(stderr, "%s\n", text.left(longestLine).toUtf8().constData());
}

// --- actions ---

QList<QAction*> ModScript::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    return actionClass == ModActionHookIf::eActionClassTools && m_actions != nullptr ? m_actions->menuActions()
                                                                                     : QList<QAction*>();
}

void ModScript::updateActions()
{
    if (m_actions == nullptr)
        return;
    m_actions->setEnabled(ScriptActions::eActionRun, m_engine != nullptr && !m_engine->isRunning());
    m_actions->setEnabled(ScriptActions::eActionStop, m_engine != nullptr && m_engine->isBusy());
}

void ModScript::handleActions(ScriptActions::eAction_t action)
{
    switch (action) {
    case ScriptActions::eActionRun:
        runFromDialog();
        break;
    case ScriptActions::eActionStop:
        stopScript();
        break;
    }
}

void ModScript::runFromDialog()
{
    // Anything may be deleted while the dialog is open.
    const QPointer<ModScript> self(this);
    const QPointer<QFileDialog> dialog(new QFileDialog(DialogParent::get(), tr("Run script"), m_lastDir));
    HelpRef::set(dialog, QStringLiteral("pageId://scripts#run"));
    dialog->setNameFilters({tr("Script files(*.js)"), tr("Any files(*)")});
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog != nullptr;
    const QStringList files = accepted ? dialog->selectedFiles() : QStringList();
    delete dialog;
    if (self == nullptr || files.size() != 1 || m_engine == nullptr)
        return;
    m_lastDir = QFileInfo(files.first()).absolutePath();
    if (modMsgHook != nullptr && !isRunning())
        modMsgHook->clearMessages();
    executeScriptFile(files.first());
}

// --- life ---

void ModScript::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModScriptPluginIf>(modules, this);
}

void ModScript::registerPlugin(ModScriptPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modScriptHook = this;
}

void ModScript::modInit()
{
    m_actions = new ScriptActions(this);
    connect(m_actions, qOverload<ScriptActions::eAction_t>(&ScriptActions::triggered), this, &ModScript::handleActions);
    updateActions();
}

void ModScript::modExitIntermod()
{
    disposeEngine();
}

void ModScript::modExit()
{
    delete m_actions;
    m_actions = nullptr;
}

} // namespace nsModScript

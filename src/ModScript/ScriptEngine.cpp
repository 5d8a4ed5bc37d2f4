#include "ScriptEngine.h"

#include "Display.h"

#include <QAction>
#include <QScriptContext>
#include <QScriptEngineDebugger>
#include <QTimer>
#include <QUrl>

#include <csignal>
#include <cstdio>
#include <limits>

namespace nsModScript {

namespace {

const int eventInterval = 20;   ///< milliseconds between two looks at the user's events
const int disposeInterval = 10; ///< milliseconds between two looks whether a script has ended

/// Where a function of a script keeps the function that is connected in its place.
const char* const handlerKey = "__handler";

/// A number of milliseconds; what is none counts as 0.
int milliseconds(const QScriptValue& value)
{
    const qsreal number = value.toNumber();
    if (!(number > 0))
        return 0;
    return number < std::numeric_limits<int>::max() ? int(number) : std::numeric_limits<int>::max();
}

ScriptEngine* engineOf(void* self)
{
    return static_cast<ScriptEngine*>(self);
}

} // namespace

ScriptEngine::ScriptEngine(eScriptDebugger_t debugger)
    : m_hasDebugger(debugger == eDebuggerAlways || (debugger == eDebuggerOnDisplay && Display::isThere()))
{
    m_engine.setProcessEventsInterval(eventInterval);
    qScriptRegisterMetaType<QUrl>(
        &m_engine, [](QScriptEngine*, const QUrl& url) { return QScriptValue(url.toString()); },
        [](const QScriptValue& value, QUrl& url) { url = QUrl(value.toString()); });
    makeGlobals();
    connect(&m_timeouts, &ScriptTimeouts::due, this, &ScriptEngine::runTimeout);
    connect(&m_timeouts, &ScriptTimeouts::changed, this, &ScriptEngine::busyChanged);
}

ScriptEngine::~ScriptEngine()
{
    // Values of the engine must not outlive it.
    m_timeouts.disconnect(this);
    m_timeouts.clear();
}

void ScriptEngine::dispose(ScriptEngine* engine)
{
    if (engine == nullptr)
        return;
    engine->disconnect();
    engine->m_isDisposed = true;
    engine->m_timeouts.clear();
    if (!engine->isRunning()) {
        delete engine;
        return;
    }
    engine->stop();
    // A posted deletion would also be carried out by a script that handles events.
    auto* timer = new QTimer(engine);
    timer->start(disposeInterval);
    connect(timer, &QTimer::timeout, timer, [engine, timer] {
        if (engine->isRunning())
            return;
        timer->setParent(nullptr);
        timer->deleteLater();
        delete engine;
    });
}

/// The debugger takes longer to make than all else of the engine, so it is made when the first script starts.
void ScriptEngine::attachDebugger()
{
    if (!m_hasDebugger || m_debugger != nullptr)
        return;
    // The debugger has a print() of its own, which shows the text to nobody.
    const QScriptValue ownPrint = m_engine.globalObject().property("print");
    m_debugger = std::make_unique<QScriptEngineDebugger>();
    m_debugger->setAutoShowStandardWindow(true);
    m_debugger->attachTo(&m_engine);
    m_engine.globalObject().setProperty("print", ownPrint);
    connect(m_debugger.get(), &QScriptEngineDebugger::evaluationSuspended, this, [this] {
        m_isSuspended = true;
        if (m_isStopping)
            stop();
    });
    connect(m_debugger.get(), &QScriptEngineDebugger::evaluationResumed, this, [this] { m_isSuspended = false; });
}

void ScriptEngine::makeGlobals()
{
    QScriptValue global = m_engine.globalObject();
    global.setProperty("print", m_engine.newFunction(print));
    global.setProperty("setTimeout", m_engine.newFunction(setTimeout, this));
    global.setProperty("clearTimeout", m_engine.newFunction(clearTimeout, this));
    QScriptValue functions = global.property("Function").property("prototype");
    for (const char* name : {"connect", "disconnect"}) {
        QScriptValue guarded = m_engine.newFunction(connectHandler, this);
        guarded.setData(functions.property(name));
        functions.setProperty(name, guarded, QScriptValue::SkipInEnumeration);
    }
    // What scripts can reach are the registered objects, not all that belongs to them.
    QObject object;
    QScriptValue prototype = m_engine.newQObject(&object).prototype();
    prototype.setProperty("findChild", QScriptValue());
    prototype.setProperty("findChildren", QScriptValue());
}

void ScriptEngine::registerObject(QObject* object, const QString& name)
{
    m_engine.globalObject().setProperty(
        name, m_engine.newQObject(object, QScriptEngine::QtOwnership,
                                  QScriptEngine::ExcludeDeleteLater | QScriptEngine::ExcludeChildObjects));
}

void ScriptEngine::unregisterObject(const QString& name)
{
    // The name stays bound: a script that holds the object goes on.
    const QScriptValue value = m_engine.globalObject().property(name);
    Q_UNUSED(value)
}

// --- what runs ---

void ScriptEngine::enter()
{
    if (m_depth++ == 0)
        emit busyChanged();
}

void ScriptEngine::leave()
{
    if (--m_depth > 0) {
        // A stop ends all of them; the engine itself ends the innermost one.
        if (m_isStopping)
            m_engine.abortEvaluation();
        return;
    }
    m_isStopping = false;
    emit busyChanged();
    emit ended();
}

QScriptValue ScriptEngine::evaluate(const QString& program, ScriptOutcome* outcome)
{
    const QScriptValue result = m_engine.evaluate(program, QString(), 1);
    if (m_isStopping) {
        m_engine.clearExceptions();
        outcome->end = ScriptOutcome::eEndStopped;
        return QScriptValue();
    }
    if (!m_engine.hasUncaughtException())
        return result;
    outcome->end = ScriptOutcome::eEndException;
    outcome->line = qMax(m_engine.uncaughtExceptionLineNumber(), 0);
    const QScriptValue exception = m_engine.uncaughtException();
    m_engine.clearExceptions();
    outcome->text = textOf(exception);
    if (m_isStopping)
        outcome->end = ScriptOutcome::eEndStopped;
    return QScriptValue();
}

ScriptOutcome ScriptEngine::run(const QString& script, const QString& dir)
{
    ScriptOutcome outcome;
    m_engine.globalObject().setProperty("scriptDir", dir);
    attachDebugger();
    enter();
    evaluate(script, &outcome);
    leave();
    return outcome;
}

/// Only an evaluation can be stopped, so a function is not called directly.
QScriptValue ScriptEngine::callFunction(const QScriptValue& function, const QScriptValue& self,
                                        const QScriptValue& arguments, ScriptOutcome* outcome)
{
    attachDebugger();
    enter();
    QScriptContext* context = m_engine.pushContext();
    QScriptValue scope = context->activationObject();
    scope.setProperty("f", function);
    scope.setProperty("self", self);
    scope.setProperty("a", arguments);
    const QScriptValue result = evaluate(QStringLiteral("f.apply(self, a)"), outcome);
    m_engine.popContext();
    leave();
    return result;
}

/// The text of an exception may come from a function of the script, which can fail or run without end, too.
QString ScriptEngine::textOf(const QScriptValue& exception)
{
    if (!exception.isObject())
        return exception.toString();
    QScriptContext* context = m_engine.pushContext();
    context->activationObject().setProperty("e", exception);
    const QScriptValue text = m_engine.evaluate(QStringLiteral("'' + e"));
    const bool failed = m_engine.hasUncaughtException() || m_isStopping;
    m_engine.clearExceptions();
    m_engine.popContext();
    return failed ? tr("an exception without a text") : text.toString();
}

void ScriptEngine::runTimeout(int id)
{
    if (m_isDisposed)
        return;
    // As everywhere in the language, a script is not interrupted by another function.
    if (isRunning()) {
        m_timeouts.defer(id);
        return;
    }
    const QScriptValue function = m_timeouts.take(id);
    ScriptOutcome outcome;
    emit functionStarts();
    callFunction(function, m_engine.undefinedValue(), m_engine.newArray(), &outcome);
    emit functionEnded(outcome);
}

void ScriptEngine::stop()
{
    m_timeouts.clear();
    if (!isRunning())
        return;
    m_isStopping = true;
    m_engine.abortEvaluation();
    if (m_isSuspended && m_debugger != nullptr)
        m_debugger->action(QScriptEngineDebugger::ContinueAction)->trigger();
}

void ScriptEngine::throwError(const QString& text)
{
    if (isRunning())
        m_engine.currentContext()->throwError(text);
}

// --- the functions that scripts call ---

QScriptValue ScriptEngine::print(QScriptContext* context, QScriptEngine* engine)
{
    QStringList words;
    for (int i = 0; i < context->argumentCount(); ++i) {
        words.append(context->argument(i).toString());
        // The text of an object comes from a function of the script.
        if (engine->hasUncaughtException())
            return engine->undefinedValue();
    }
    // A reader that has gone away is an error of the script, and not the end of the program.
    std::signal(SIGPIPE, SIG_IGN);
    const QByteArray line = words.join(QLatin1Char(' ')).toUtf8() + '\n';
    const bool written = std::fwrite(line.constData(), 1, size_t(line.size()), stdout) == size_t(line.size()) &&
                         std::fflush(stdout) == 0;
    if (!written) {
        std::clearerr(stdout);
        return context->throwError(tr("Can not write to the standard output."));
    }
    return engine->undefinedValue();
}

QScriptValue ScriptEngine::setTimeout(QScriptContext* context, QScriptEngine*, void* self)
{
    if (!context->argument(0).isFunction())
        return context->throwError(QScriptContext::TypeError, tr("setTimeout() needs a function."));
    return engineOf(self)->m_timeouts.add(context->argument(0), milliseconds(context->argument(1)));
}

QScriptValue ScriptEngine::clearTimeout(QScriptContext* context, QScriptEngine* engine, void* self)
{
    engineOf(self)->m_timeouts.remove(context->argument(0).toInt32());
    return engine->undefinedValue();
}

/// Stands in for connect() and disconnect() of signals, which would crash with some arguments. A function is connected
/// through runHandler(), so that it can be stopped like any other script code.
QScriptValue ScriptEngine::connectHandler(QScriptContext* context, QScriptEngine*, void* self)
{
    QScriptValueList arguments;
    for (int i = 0; i < qMin(context->argumentCount(), 2); ++i)
        arguments.append(context->argument(i));
    QScriptValue function = arguments.isEmpty() ? QScriptValue() : arguments.last();
    // The name of a function of the receiver.
    if (arguments.size() == 2 && !function.isFunction() && arguments.first().isObject())
        function = arguments.first().property(function.toString());
    if (!function.isFunction() || !context->thisObject().isFunction())
        return context->throwError(QScriptContext::TypeError, tr("A signal is connected to a function."));
    arguments.last() = engineOf(self)->handlerOf(function);
    return context->callee().data().call(context->thisObject(), arguments);
}

/// The same for one function at every call, so that it can be disconnected.
QScriptValue ScriptEngine::handlerOf(QScriptValue function)
{
    // The operation of an object is no script code; only functions of scripts have a prototype.
    if (!function.property("prototype", QScriptValue::ResolveLocal).isValid())
        return function;
    QScriptValue handler = function.property(handlerKey, QScriptValue::ResolveLocal);
    if (!handler.isValid()) {
        handler = m_engine.newFunction(runHandler, this);
        handler.setData(function);
        function.setProperty(handlerKey, handler, QScriptValue::SkipInEnumeration | QScriptValue::ReadOnly);
    }
    return handler;
}

QScriptValue ScriptEngine::runHandler(QScriptContext* context, QScriptEngine* engine, void* self)
{
    ScriptEngine* that = engineOf(self);
    if (that->m_isDisposed)
        return QScriptValue();
    QScriptValue arguments = engine->newArray(uint(context->argumentCount()));
    for (int i = 0; i < context->argumentCount(); ++i)
        arguments.setProperty(quint32(i), context->argument(i));
    ScriptOutcome outcome;
    emit that->functionStarts();
    const QScriptValue result =
        that->callFunction(context->callee().data(), context->thisObject(), arguments, &outcome);
    emit that->functionEnded(outcome);
    return result;
}

} // namespace nsModScript

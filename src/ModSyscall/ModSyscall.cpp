#include "ModSyscall.h"

#include "HelpRef.h"
#include "SyscallConfigPage.h"
#include "SyscallMonWidget.h"
#include "SyscallMsgHndlr.h"
#include "SyscallProcess.h"

#include "ConsentQuestion.h"
#include "ModConfigHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModScriptHookIf.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace nsModSyscall {

namespace {

const int waitTime = 200; ///< milliseconds between two looks at a program that is waited for
const QList<int> allPrograms = {0, 1, 2};

/// The command as the user reads it: a line for the program and each argument, whatever characters they hold.
QString shown(const SyscallCommand& command)
{
    QStringList lines = command.texts();
    for (QString& line : lines)
        line = ConsentQuestion::readable(line);
    for (int i = 1; i < lines.size(); ++i)
        lines[i] = '"' + lines.at(i) + '"';
    // An empty line of arguments is one empty argument, which says nothing to a reader.
    if (lines.size() == 2 && command.arguments.first().isEmpty())
        lines.removeLast();
    return lines.join(QLatin1String("\n    "));
}

} // namespace

ModSyscall::ModSyscall(QObject* parent)
    : QObject(parent)
    , m_msgHndlr(new SyscallMsgHndlr(this))
    , m_sequence(*this, *this, *m_msgHndlr)
{
}

ModSyscall::~ModSyscall()
{
    endPrograms(allPrograms);
    for (const QPointer<SyscallMonWidget>& monitor : monitors) {
        // One that is in the window is deleted with it.
        if (monitor != nullptr && monitor->parent() == nullptr)
            delete monitor;
    }
    delete m_page;
}

// --- clients ---

void ModSyscall::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModSyscallPluginIf>(modules, this);
}

void ModSyscall::registerPlugin(ModSyscallPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modSyscallHook = this;
}

void ModSyscall::unregisterPlugin(ModSyscallPluginIf* plugin)
{
    if (m_plugins.remove(plugin))
        plugin->modSyscallHook = nullptr;
}

// --- life cycle ---

void ModSyscall::modInit()
{
    // The end of the application need not come by way of the exit phases.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] { endPrograms(allPrograms); });
}

void ModSyscall::modInitIntermod()
{
    if (modMsgHook != nullptr)
        modMsgHook->registerPlugin(m_msgHndlr);
}

void ModSyscall::modExitIntermod()
{
    if (modMsgHook != nullptr)
        modMsgHook->unregisterPlugin(m_msgHndlr);
}

// --- project ---

bool ModSyscall::hasProject() const
{
    return modPrjHook != nullptr && modPrjHook->isValid();
}

void ModSyscall::prjOpen()
{
    ++m_openCount;
    static_cast<SyscallConfig&>(*this) = SyscallConfig();
    rdSyscallConfig(modPrjHook);
    setupMonitors();
}

void ModSyscall::prjSave()
{
    wrSyscallConfig(modPrjHook);
}

void ModSyscall::prjClose()
{
    ++m_openCount;
    endPrograms(allPrograms);
    for (int index : allPrograms)
        removeMonitor(index);
}

// --- running ---

bool ModSyscall::run(eEvent_t event)
{
    return m_sequence.run(event);
}

bool ModSyscall::runProgram(int index)
{
    return m_sequence.runProgram(index);
}

bool ModSyscall::hasProgram(int index)
{
    return monitors[index] != nullptr;
}

QString ModSyscall::executableInfo(int index)
{
    return monitors[index]->executableInfo();
}

bool ModSyscall::isRunning(int index)
{
    return monitors[index] != nullptr && monitors[index]->state() == 0;
}

bool ModSyscall::start(int index)
{
    return monitors[index]->run();
}

void ModSyscall::showProgram(int index)
{
    if (modGuiHook != nullptr)
        modGuiHook->setCurrentWidget(monitors[index]);
}

SyscallPrograms::eEnd_t ModSyscall::wait(int index)
{
    const int openCount = m_openCount;
    const QPointer<SyscallMonWidget> monitor = monitors[index];
    while (monitor != nullptr && !monitor->waitForFinished(waitTime)) {
        if (scriptGoesOn())
            continue;
        if (monitor != nullptr && monitor == monitors[index])
            endPrograms({index});
        return endGone;
    }
    // The user may have done anything meanwhile.
    if (openCount != m_openCount)
        return endGone;
    if (monitor == nullptr || monitor != monitors[index])
        return endCrashed;
    switch (monitor->state()) {
    case 0:
        return endGone;
    case 1:
        return endExited;
    default:
        return endCrashed;
    }
}

/// Handles the events of the user. @return false: the user has stopped the script that waits for the program; it could
/// not end, and the window could not close, before the program does
bool ModSyscall::scriptGoesOn()
{
    if (modScriptHook != nullptr)
        return modScriptHook->scriptGoesOn();
    QCoreApplication::processEvents();
    return true;
}

int ModSyscall::exitCode(int index)
{
    return monitors[index]->exitCode();
}

/// Ends the programs that still run, and says so.
void ModSyscall::endPrograms(const QList<int>& indexes)
{
    QList<SyscallProcess*> processes;
    QList<int> running;
    for (int index : indexes) {
        if (!isRunning(index))
            continue;
        running.append(index);
        processes.append(monitors[index]->process());
    }
    if (processes.isEmpty())
        return;
    const QList<SyscallProcess*> killed = SyscallProcess::endAll(processes);
    for (int i = 0; i < running.size(); ++i) {
        m_msgHndlr->signMsg(killed.contains(processes.at(i)) ? SyscallMsgHndlr::warnKilled
                                                             : SyscallMsgHndlr::warnTerminated,
                            QString::number(running.at(i) + 1));
    }
}

// --- what may be run ---

ProjectConsent ModSyscall::consent() const
{
    return ProjectConsent(modCfgAppHook, modPrjHook->prjDir().absoluteFilePath(modPrjHook->prjFileName()));
}

SyscallCommand ModSyscall::commandOf(int index) const
{
    return SyscallCommand::of(programs[index], modPrjHook->prjDir());
}

/// Nobody needs to be asked about a command that can not be started.
bool ModSyscall::isKnown(const SyscallCommand& command) const
{
    return !QDir::isAbsolutePath(command.program) ||
           consent().answer(ProjectConsent::kindProgram, command.act()) == ProjectConsent::answerYes;
}

SyscallPrograms::ePermission_t ModSyscall::mayRun(int index)
{
    if (!hasProject())
        return permissionGone;
    const SyscallCommand command = commandOf(index);
    if (isKnown(command)) {
        monitors[index]->setCommand(command);
        return permissionGiven;
    }
    if (consent().answer(ProjectConsent::kindProgram, command.act()) == ProjectConsent::answerNo)
        return permissionRefused;
    return ask(index, command);
}

/// Asks, and keeps the answer; project and program may have gone or changed under the question.
SyscallPrograms::ePermission_t ModSyscall::ask(int index, const SyscallCommand& command)
{
    const QPointer<ModSyscall> self(this);
    const QPointer<SyscallMonWidget> monitor = monitors[index];
    monitor->setBusy(true);
    const ConsentQuestion::eAnswer_t answer = ConsentQuestion::ask(
        tr("External program of the project"),
        tr("The project \"%1\" wants to run a program on this computer, with these arguments.\n\nShall this command be "
           "run, now and whenever the project asks for it?")
            .arg(ConsentQuestion::readable(modPrjHook->prjFileName())),
        shown(command), QStringLiteral("pageId://externalPrograms#consent"));
    if (monitor != nullptr)
        monitor->setBusy(false);
    if (!self || monitor == nullptr || monitor != monitors[index] || commandOf(index) != command)
        return permissionGone;
    if (answer == ConsentQuestion::answerNobody) {
        m_msgHndlr->signMsg(SyscallMsgHndlr::errNobodyToAsk, shown(command).replace(QLatin1String("\n   "), QString()));
        return permissionUnasked;
    }
    consent().setAnswer(ProjectConsent::kindProgram, command.act(), answer == ConsentQuestion::answerYes);
    if (answer == ConsentQuestion::answerNo)
        return permissionRefused;
    monitor->setCommand(command);
    return permissionGiven;
}

// --- monitors ---

void ModSyscall::setupMonitors()
{
    for (int index : allPrograms)
        setupMonitor(index);
}

void ModSyscall::setupMonitor(int index)
{
    const SyscallRecord& program = programs[index];
    if (!program.en) {
        endPrograms({index});
        removeMonitor(index);
        return;
    }
    if (monitors[index] == nullptr)
        addMonitor(index);
    if (monitors[index] != nullptr)
        monitors[index]->setConfig(program.exe, program.arg, program.comment);
}

void ModSyscall::addMonitor(int index)
{
    // Without a window nobody could see it.
    if (modGuiHook == nullptr)
        return;
    auto* monitor = new SyscallMonWidget;
    HelpRef::set(monitor, QStringLiteral("pageId://externalPrograms#monitor"));
    monitors[index] = monitor;
    connect(monitor, &SyscallMonWidget::configRequest, this, &ModSyscall::handleConfigRequest);
    connect(monitor, &SyscallMonWidget::startRequest, this, &ModSyscall::handleStartRequest);
    // An added panel comes to the front: so the panel that was in front before is brought to the front again.
    QWidget* inFront = modGuiHook->currentWidget(ModGuiHookIf::eLocationDockBottom);
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockBottom, monitor, tr("External program %1").arg(index + 1));
    if (inFront != nullptr && modGuiHook->widgetVisible(ModGuiHookIf::eLocationDockBottom))
        modGuiHook->setCurrentWidget(inFront);
}

void ModSyscall::removeMonitor(int index)
{
    const QPointer<SyscallMonWidget> monitor = monitors[index];
    monitors[index] = nullptr;
    if (monitor == nullptr)
        return;
    monitor->disconnect(this);
    if (modGuiHook != nullptr)
        modGuiHook->removeWidget(monitor);
    // The call may come from within one of its own operations.
    if (monitor != nullptr && monitor->isBusy())
        monitor->deleteLater();
    else
        delete monitor;
}

void ModSyscall::handleConfigRequest(SyscallMonWidget*)
{
    if (modConfigHook != nullptr)
        modConfigHook->openDialog(SyscallConfigPage::title());
}

/// The button "Start": no event, no message group, and the result does not matter. Who presses it wants to be asked
/// again, whatever the answer was before.
void ModSyscall::handleStartRequest(SyscallMonWidget* monitor)
{
    const auto found = std::find(std::begin(monitors), std::end(monitors), monitor);
    if (found == std::end(monitors) || monitor->state() == 0 || !hasProject())
        return;
    const int index = int(found - std::begin(monitors));
    const SyscallCommand command = commandOf(index);
    if (isKnown(command))
        monitor->setCommand(command);
    else if (ask(index, command) != permissionGiven)
        return;
    // It may have been started under the question.
    if (monitor->state() != 0)
        monitor->run();
}

// --- settings dialog ---

nsModConfig::ModConfigPagePluginIf* ModSyscall::configPage(int)
{
    if (m_page == nullptr)
        m_page = new SyscallConfigPage;
    return m_page;
}

void ModSyscall::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_page == nullptr)
        return;
    // What was read stays until the next project: it is not shown without one.
    m_page->setConfig(hasProject() ? *this : SyscallConfig(),
                      hasProject() ? modPrjHook->prjDir().absolutePath() : QString());
}

void ModSyscall::configPageClose(bool accepted)
{
    // Without a project there is nothing that the values could belong to.
    if (m_page != nullptr && accepted && hasProject())
        takePage();
    delete m_page;
}

/// What this user types is what this user wants: a new command is not asked for. One that was there before is, as it
/// may have come with the project.
void ModSyscall::takePage()
{
    const SyscallConfig before = *this;
    m_page->config(this);
    for (int index : allPrograms) {
        const SyscallRecord& old = before.programs[index];
        if (programs[index].exe != old.exe || programs[index].arg != old.arg)
            consent().setAnswer(ProjectConsent::kindProgram, commandOf(index).act(), true);
    }
}

void ModSyscall::configPagesClosed(bool accepted)
{
    if (accepted && hasProject())
        setupMonitors();
}

} // namespace nsModSyscall

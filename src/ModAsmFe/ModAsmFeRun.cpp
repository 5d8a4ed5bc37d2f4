// The run, as the other modules see it: what starts it, and what it hands to them.

#include "ModAsmFe.h"

#include "AsmFeFileHndlr.h"
#include "ConsentQuestion.h"
#include "EquListView.h"
#include "IODevViewerList.h"
#include "ModConfigHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModSourcesHookIf.h"
#include "ModSrcNaviHookIf.h"
#include "ModSyscallHookIf.h"
#include "MyBusyCursor.h"
#include "MyLongWork.h"
#include "NaviTag.h"
#include "SyscallEvent.h"

#include <QDir>

#include <algorithm>

namespace nsModAsmFe {

namespace {

/// A line for each file, whatever characters its name holds.
QString shownFiles(QStringList files)
{
    for (QString& file : files)
        file = ConsentQuestion::readable(file);
    return files.join('\n');
}

} // namespace

void ModAsmFe::assemble(eAssembleEvent_t event)
{
    if (modPrjHook == nullptr || !modPrjHook->isValid())
        return;
    if (m_assembler.isRunning()) {
        // What the user saves while an external program runs is assembled when that has ended.
        if (m_programsRun || (m_work != nullptr && m_work->isShown()))
            m_missedEvent = std::max(m_missedEvent, int(event));
        return;
    }
    m_msgHndlr->forgetErrors();
    MyBusyCursor busy;
    m_busy = &busy;
    MyLongWork work(
        tr("Assembling"),
        [this](QWidget* bar) {
            if (modGuiHook != nullptr)
                modGuiHook->addWidget(this, ModGuiHookIf::eLocationStatusThird, bar, QString());
        },
        [this](QWidget* bar) {
            if (modGuiHook != nullptr)
                modGuiHook->removeWidget(bar);
        });
    m_work = modGuiHook != nullptr ? &work : nullptr;
    if (m_actions != nullptr) {
        m_actions->setEnabled(false);
        m_actions->setEnabled(AsmFeActions::eActionAssemble, true);
    }
    m_assembler.run(modSourcesHook != nullptr ? modSourcesHook->files() : QStringList(), projectInfo(), event);
    m_busy = nullptr;
    m_work = nullptr;
    if (work.isCancelled() && modMsgHook != nullptr)
        modMsgHook->showWarningMessage(tr("The run was cancelled. The output files are as they were."));
    showFiles();
    showWritten();
    m_plugins.forEach([](ModAsmFePluginIf* plugin) { plugin->asmRunEnded(); });
    // Later, so that runs that each cause the next one leave the user a way to stop them.
    if (m_missedEvent != nothingMissed)
        QMetaObject::invokeMethod(
            this, [this] { assembleMissed(); }, Qt::QueuedConnection);
}

void ModAsmFe::assembleMissed()
{
    if (m_missedEvent == nothingMissed)
        return;
    const auto missed = static_cast<eAssembleEvent_t>(m_missedEvent);
    m_missedEvent = nothingMissed;
    assemble(missed);
}

AsmProjectInfo ModAsmFe::projectInfo() const
{
    AsmProjectInfo project;
    project.dir = modPrjHook->prjDir().absolutePath();
    project.fileName = modPrjHook->prjFileName();
    project.title = modPrjHook->prjTitle();
    project.version = modPrjHook->prjVersion();
    project.comment = modPrjHook->prjComment();
    return project;
}

/// A run blocks the GUI thread, so a long run shows the busy cursor, and after a while how far it is.
bool ModAsmFe::runGoesOn(int lines)
{
    if (m_busy != nullptr)
        m_busy->goesOn();
    return m_work == nullptr || m_work->goesOn(lines > 0 ? tr("%1 lines").arg(lines) : QString());
}

void ModAsmFe::outputsBegin()
{
    if (m_work != nullptr)
        m_work->commits();
}

void ModAsmFe::programDropped()
{
    if (modSrcNaviHook != nullptr)
        modSrcNaviHook->clearTagList();
    // The viewer has pointers to the devices.
    clearIODevViewer();
}

void ModAsmFe::clearIODevViewer()
{
    if (m_ioDevViewer != nullptr)
        m_ioDevViewer->clear();
}

void ModAsmFe::naviTagFound(const AsmNaviTag& tag)
{
    if (modSrcNaviHook == nullptr)
        return;
    using nsModSrcNavi::NaviTag;
    const auto typeOf = [](AsmNaviTag::eType_t type) {
        switch (type) {
        case AsmNaviTag::typeLabel:
            return NaviTag::typeLabel;
        case AsmNaviTag::typeHardware:
            return NaviTag::typeHardware;
        case AsmNaviTag::typeConstant:
            return NaviTag::typeConstant;
        case AsmNaviTag::typeSeparator:
            return NaviTag::typeSeparator;
        case AsmNaviTag::typeGroupBegin:
            return NaviTag::typeGroupBegin;
        case AsmNaviTag::typeGroupEnd:
            return NaviTag::typeGroupEnd;
        }
        return NaviTag::typeUnset;
    };
    auto* naviTag = new NaviTag;
    naviTag->type = typeOf(tag.type);
    naviTag->filePath = tag.filePath;
    naviTag->line = tag.line;
    naviTag->lineRef = tag.lineRef;
    naviTag->title = tag.title;
    naviTag->disabled = tag.disabled;
    modSrcNaviHook->addTag(naviTag);
}

void ModAsmFe::naviTagsComplete()
{
    if (modSrcNaviHook != nullptr)
        modSrcNaviHook->showTagList();
}

void ModAsmFe::tabIndentSet(int indent)
{
    if (modEditorHook != nullptr)
        modEditorHook->setTabIndent(indent);
}

void ModAsmFe::addressesMapped()
{
    m_editorFeed.setupMemPageAddrMap(modEditorHook, m_fileHndlr->files());
}

void ModAsmFe::programComplete()
{
    if (m_actions != nullptr)
        m_actions->setEnabled(true);
}

void ModAsmFe::refreshInsertionMenu()
{
    m_editorFeed.setupSupportMenuDynamics(modEditorHook,
                                          m_backend.plugin() != nullptr ? m_backend.processorDefine() : QString());
}

void ModAsmFe::refreshIODevViewer()
{
    if (m_ioDevViewer != nullptr)
        m_ioDevViewer->setupView(ioDevList());
}

ProjectConsent ModAsmFe::consent() const
{
    return ProjectConsent(modCfgAppHook, modPrjHook->prjDir().absoluteFilePath(modPrjHook->prjFileName()));
}

/// A project names its outputs, and so does each of its sources. To assemble a foreign one must not write just
/// anywhere.
QStringList ModAsmFe::refusedOutputs(const QVector<AsmOutsideFile>& files)
{
    // Without a window there is nobody to ask, and without settings no answer: whoever has put the modules together
    // like this answers for it.
    if (modGuiHook == nullptr || modCfgAppHook == nullptr)
        return {};
    const ProjectConsent known = consent();
    QStringList refused;
    QStringList unknown;
    for (const AsmOutsideFile& outside : files) {
        const ProjectConsent::eAnswer_t answer = known.answer(ProjectConsent::kindOutput, {outside.file});
        if (answer == ProjectConsent::answerNo)
            refused.append(outside.file);
        else if (answer == ProjectConsent::answerNone)
            unknown.append(outside.file);
    }
    if (unknown.isEmpty())
        return refused;
    if (m_busy != nullptr)
        m_busy->rests();
    if (m_work != nullptr)
        m_work->rests();
    const QPointer<ModAsmFe> self(this);
    const QString project = modPrjHook->prjDir().absoluteFilePath(modPrjHook->prjFileName());
    const ConsentQuestion::eAnswer_t answer = ConsentQuestion::ask(
        tr("Output files outside of the project"),
        tr("The project \"%1\" wants to write files outside of its folder. What is in them now will be lost.\n\nShall "
           "this run and later ones of the project write them?")
            .arg(ConsentQuestion::readable(modPrjHook->prjFileName())),
        shownFiles(unknown), QStringLiteral("pageId://configPageAsmFe#outside"));
    // The program may have been closed under the question. The answer is about the project that was open then.
    const bool allowed = answer == ConsentQuestion::answerYes;
    if (self && answer != ConsentQuestion::answerNobody) {
        ProjectConsent kept(modCfgAppHook, project);
        for (const QString& file : qAsConst(unknown))
            kept.setAnswer(ProjectConsent::kindOutput, {file}, allowed);
    }
    return allowed ? refused : refused + unknown;
}

QString ModAsmFe::refusalHint()
{
    if (ConsentQuestion::isUnattended())
        return tr("nobody can be asked");
    return tr("to allow it, enter it on the settings page of the assembler");
}

bool ModAsmFe::runExternalPrograms(eAssembleEvent_t event)
{
    nsModSyscall::eEvent_t sysCallEvent = nsModSyscall::eEventButton1;
    switch (event) {
    case eEventButton1:
        sysCallEvent = nsModSyscall::eEventButton1;
        break;
    case eEventButton2:
        sysCallEvent = nsModSyscall::eEventButton2;
        break;
    case eEventSave:
        sysCallEvent = nsModSyscall::eEventSave;
        break;
    default:
        m_msgHndlr->signMsg(infoIODevNothingToDoForWriteEvent);
        return true;
    }
    if (modSyscallHook == nullptr)
        return true;
    // While a program runs, the user goes on working.
    if (m_busy != nullptr)
        m_busy->rests();
    if (m_work != nullptr)
        m_work->rests();
    m_programsRun = true;
    const bool goesOn = modSyscallHook->run(sysCallEvent);
    m_programsRun = false;
    return goesOn;
}

void ModAsmFe::handOverAddresses()
{
    if (m_assembler.isAssembled() && !m_assembler.isRunning())
        addressesMapped();
}

void ModAsmFe::showEquList()
{
    if (m_assembler.isAssembled() && !m_assembler.isRunning())
        refreshEquList();
}

void ModAsmFe::refreshEquList()
{
    if (m_equListView != nullptr)
        m_equListView->showList(*equList());
}

// --- what comes next ---

/// Names of the output files of an event, as the settings have them. What the sources set besides is known after a run.
QStringList ModAsmFe::filesOfEvent(eAssembleEvent_t event) const
{
    QStringList files;
    for (const TargetConfig& target : targets) {
        const bool written = event == eEventButton1   ? target.writeFileEventBut1
                             : event == eEventButton2 ? target.writeFileEventBut2
                                                      : target.writeFileEventSave;
        if (target.en && written && !target.outputFile.isEmpty())
            files.append(modPrjHook->convToRelPath(target.outputFile));
    }
    return files;
}

/// Names the files that a run has written in the status bar.
void ModAsmFe::showWritten()
{
    if (modGuiHook == nullptr || modPrjHook == nullptr || !modPrjHook->isValid() || writtenFiles().isEmpty())
        return;
    QStringList files;
    for (const QString& file : writtenFiles())
        files.append(modPrjHook->convToRelPath(file));
    modGuiHook->setStatusBarText(tr("Written: %1").arg(files.join(QLatin1String(", "))));
}

void ModAsmFe::showFiles()
{
    if (modPrjHook == nullptr)
        return;
    modPrjHook->stepsChanged();
    if (!modPrjHook->isValid())
        return;
    if (m_actions != nullptr) {
        m_actions->setFiles(AsmFeActions::eActionButton1, filesOfEvent(eEventButton1));
        m_actions->setFiles(AsmFeActions::eActionButton2, filesOfEvent(eEventButton2));
    }
    if (modSrcNaviHook == nullptr)
        return;
    QStringList templates;
    QStringList outputs;
    const auto add = [this](QStringList* list, const QString& file) {
        if (!file.isEmpty())
            list->append(QDir::cleanPath(modPrjHook->convToAbsPath(file)));
    };
    for (const TargetConfig& target : targets) {
        if (!target.en)
            continue;
        add(&templates, target.templateFile);
        add(&outputs, target.outputFile);
    }
    outputs += writtenFiles();
    templates.removeDuplicates();
    outputs.removeDuplicates();
    modSrcNaviHook->setTargetFiles(templates, outputs, m_msgHndlr->errorsOfFiles());
}

QList<PrjStep> ModAsmFe::prjSteps()
{
    if (modPrjHook == nullptr || !modPrjHook->isValid() || m_actions == nullptr)
        return {};
    QList<PrjStep> steps;
    const auto isOn = [](const TargetFile& target) { return target.en; };
    bool anyOutput = std::any_of(std::begin(targets), std::end(targets), isOn);
    // The sources may set outputs, too.
    if (isAssembled()) {
        for (const IODev* dev : ioDevList()->devices())
            anyOutput = anyOutput || std::any_of(std::begin(dev->targets), std::end(dev->targets), isOn);
    }
    if (!anyOutput && modConfigHook != nullptr)
        steps.append({PrjStep::eOrderOutput, true, tr("Choose the output files"),
                      tr("Opens the settings of the assembler: hex, mem, VHDL, Verilog"),
                      [this] { modConfigHook->openDialog(QStringLiteral("Assembler")); }});
    const bool canRun =
        m_backend.plugin() != nullptr && modSourcesHook != nullptr && !modSourcesHook->files().isEmpty();
    if (!canRun)
        return steps;
    if (!isAssembled())
        steps.append({PrjStep::eOrderAssemble, true, tr("Run the assembler"), tr("Assembles the sources (Ctrl+B)"),
                      [this] { handleActions(AsmFeActions::eActionAssemble); }});
    else if (anyOutput && m_assembler.writtenFiles().isEmpty())
        steps.append({PrjStep::eOrderWrite, true, tr("Write the output files"), tr("Writes the files of button 1"),
                      [this] { handleActions(AsmFeActions::eActionButton1); }});
    return steps;
}

} // namespace nsModAsmFe

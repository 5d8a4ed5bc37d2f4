// The run, as the other modules see it: what starts it, and what it hands to them.

#include "ModAsmFe.h"

#include "AsmFeFileHndlr.h"
#include "ConsentQuestion.h"
#include "EquListView.h"
#include "IODevViewerList.h"
#include "ModEditorHookIf.h"
#include "ModPrjHookIf.h"
#include "ModSourcesHookIf.h"
#include "ModSrcNaviHookIf.h"
#include "ModSyscallHookIf.h"
#include "MyBusyCursor.h"
#include "NaviTag.h"
#include "SyscallEvent.h"

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
        if (m_programsRun)
            m_missedEvent = std::max(m_missedEvent, int(event));
        return;
    }
    MyBusyCursor busy;
    m_busy = &busy;
    if (m_actions != nullptr) {
        m_actions->setEnabled(false);
        m_actions->setEnabled(AsmFeActions::eActionAssemble, true);
    }
    m_assembler.run(modSourcesHook != nullptr ? modSourcesHook->files() : QStringList(), projectInfo(), event);
    m_busy = nullptr;
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

/// A run blocks the GUI thread, so a long run shows the busy cursor.
void ModAsmFe::runGoesOn()
{
    if (m_busy != nullptr)
        m_busy->goesOn();
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
    m_programsRun = true;
    const bool goesOn = modSyscallHook->run(sysCallEvent);
    m_programsRun = false;
    return goesOn;
}

void ModAsmFe::refreshEquList()
{
    if (m_equListView != nullptr)
        m_equListView->showList(*equList());
}

} // namespace nsModAsmFe

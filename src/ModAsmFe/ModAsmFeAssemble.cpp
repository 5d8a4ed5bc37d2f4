// The run: its stages in their order, and what it hands to the other modules.

#include "ModAsmFe.h"

#include "AsmFeFileHndlr.h"
#include "EditorMemPageAddrMap.h"
#include "EquListView.h"
#include "IODevViewerList.h"
#include "ModEditorHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModSrcNaviHookIf.h"
#include "ModSyscallHookIf.h"
#include "MyBusyCursor.h"
#include "Opcode.h"

#include <QDateTime>
#include <QTextCodec>

namespace nsModAsmFe {

namespace {

/// The moment that outputs are stamped with. Reproducible builds set it by the environment, in seconds since 1970, as
/// UTC.
QDateTime stampTime()
{
    bool ok = false;
    const qint64 epoch = qgetenv("SOURCE_DATE_EPOCH").toLongLong(&ok);
    return ok ? QDateTime::fromSecsSinceEpoch(epoch, Qt::UTC) : QDateTime::currentDateTime();
}

} // namespace

void ModAsmFe::assemble(eAssembleEvent_t event)
{
    // A hook that is called during a run may save a file or change the list of files: the run in progress continues,
    // and no second one starts.
    if (m_running || modPrjHook == nullptr || !modPrjHook->isValid())
        return;
    m_running = true;
    MyBusyCursor busy;
    m_busy = &busy;
    m_runSucceeded = false;
    if (m_actions != nullptr) {
        m_actions->setEnabled(false);
        m_actions->setEnabled(AsmFeActions::eActionAssemble, true);
    }
    if (modMsgHook != nullptr)
        modMsgHook->clearMessages();
    openGroup(tr("Assembling..."));
    clearAll();
    // A run depends on the project and its sources, not on what a directive of the last run has set.
    m_defaultCodec = QTextCodec::codecForName(defaultCharset.toLatin1());
    runStages(event);
    m_busy = nullptr;
    m_running = false;
    if (m_abandoned)
        dropProgram();
}

/// Forgets the program of the last run.
void ModAsmFe::dropProgram()
{
    m_abandoned = false;
    clearAll();
    showEquList();
    m_assembled = false;
    m_runSucceeded = false;
}

void ModAsmFe::showEquList()
{
    if (m_equListView != nullptr)
        m_equListView->showList(m_equList);
}

void ModAsmFe::clearIODevViewer()
{
    if (m_ioDevViewer != nullptr)
        m_ioDevViewer->clear();
}

void ModAsmFe::clearAll()
{
    if (modSrcNaviHook != nullptr)
        modSrcNaviHook->clearTagList();
    // The viewer has pointers to the devices, which are deleted below.
    clearIODevViewer();
    m_equDeadEnds.clear();
    m_opcodeList.clear();
    m_equList.clear();
    m_orgList.clear();
    m_labelList.clear();
    m_setList.clear();
    m_ioDevList.clear();
    m_fileHndlr->clear();
    m_defines.clear();
    m_defineSet.clear();
    m_memRangeList.clear();
    m_pool.clear();
    m_writtenFiles.clear();
}

/// A run blocks the GUI thread, so a long run shows the busy cursor.
void ModAsmFe::goesOn()
{
    if (m_busy != nullptr)
        m_busy->goesOn();
}

template <class Stage>
bool ModAsmFe::runGroup(eMsgGrp_t group, const QString& arg, Stage stage)
{
    goesOn();
    m_msgHndlr->signMsgGroup(group, arg);
    m_assembled = stage() && !m_abandoned;
    closeGroup(m_assembled);
    return m_assembled;
}

void ModAsmFe::runStages(eAssembleEvent_t event)
{
    m_assembled = true;
    if (m_asmBe != nullptr) {
        addDefine(m_asmBe->processorDefine());
        m_msgHndlr->signMsg(infoSetProcDef, m_asmBe->processorDefine());
    }
    runFrontEndStages();
    if (m_asmBe == nullptr) {
        m_assembled = false;
        m_msgHndlr->signMsg(errNoAsmBe);
        closeGroup(false);
        return;
    }
    if (m_assembled)
        runBackEndStages();
    if (m_assembled)
        finishRun();
    if (m_asmBe != nullptr)
        m_asmBe->setAssembled(m_assembled);
    m_assembled = m_assembled && !m_abandoned;
    if (!m_assembled)
        clearIODevViewer();
    closeGroup(m_assembled);
    m_runSucceeded = m_assembled;
    if (event == eEventNone)
        return;
    if (m_assembled)
        writeOutputs(event);
    goesOn();
    showEquList();
}

bool ModAsmFe::runFrontEndStages()
{
    const bool parsed = runGroup(grpParsingFiles, QString(), [this] { return parseFiles(); });
    if (modSrcNaviHook != nullptr)
        modSrcNaviHook->showTagList();
    return parsed && runGroup(chkSetDirectives, QString(), [this] { return syntacticsCheckSet(); }) &&
           runGroup(chkLabelDirectives, QString(), [this] { return syntacticsCheckLabel(); }) &&
           runGroup(chkOrgDirectives, QString(), [this] { return mapOpcodeToMemCheckOrgDirectives(); }) &&
           runGroup(chkEquDirectives, QString(),
                    [this] { return syntacticsCheckEquNames() && syntacticsCheckEquArguments(); });
}

void ModAsmFe::runBackEndStages()
{
    const QString processor = m_asmBe->processorName();
    if (!runGroup(grpMapOpcodeToMem, QString(), [this] { return mapOpcodeToMem(); }))
        return;
    runGroup(refreshMemAddrMapInfo, QString(), [this] {
        setupMemPageAddrMap();
        return true;
    });
    if (!runGroup(chkInstructions, QString(), [this] { return syntacticsCheckOpcode(); }) ||
        !runGroup(grpRunBackend1, processor, [this] { return m_asmBe->assembleStage1(); }))
        return;
    setupMetaTags();
    if (!runGroup(grpSetupIODevs, QString(), [this] { return setupIODevs(); }))
        return;
    runGroup(grpRunBackend2, processor, [this] { return m_asmBe->assembleStage2(); });
}

void ModAsmFe::finishRun()
{
    runGroup(grpUsageCheck, QString(), [this] {
        usageCheck();
        return true;
    });
    if (m_actions != nullptr)
        m_actions->setEnabled(true);
    runGroup(refreshTextCompleter, QString(), [this] {
        setupTextCompleter();
        return true;
    });
    runGroup(refreshInsertionMenu, QString(), [this] {
        setupSupportMenuDynamics();
        return true;
    });
    runGroup(refreshIODevViewer, QString(), [this] {
        if (m_ioDevViewer != nullptr)
            m_ioDevViewer->setupView(&m_ioDevList);
        return true;
    });
}

void ModAsmFe::writeOutputs(eAssembleEvent_t event)
{
    m_msgHndlr->signMsgGroup(grpWriteIODevToFile);
    const bool written = mapIODevToFile(event);
    closeGroup(written);
    m_assembled = written;
    m_runSucceeded = written;
    if (!written) {
        clearIODevViewer();
        return;
    }
    openGroup(tr("Executing external programs..."));
    m_runSucceeded = execSysCall(event);
    closeGroup(m_runSucceeded);
}

bool ModAsmFe::execSysCall(eAssembleEvent_t event)
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
    return modSyscallHook == nullptr || modSyscallHook->run(sysCallEvent);
}

void ModAsmFe::setupMetaTags()
{
    m_metaTags.prjPath = modPrjHook->prjDir().absolutePath();
    m_metaTags.prjFileName = modPrjHook->prjFileName();
    m_metaTags.prjTitle = modPrjHook->prjTitle();
    m_metaTags.prjVersion = modPrjHook->prjVersion();
    m_metaTags.prjComment = modPrjHook->prjComment();
    m_metaTags.dateTime = stampTime().toString("yyyy-MM-dd hh:mm:ss ");
}

void ModAsmFe::setupMemPageAddrMap()
{
    if (modEditorHook == nullptr)
        return;
    QStringList files = m_fileHndlr->files();
    auto map = std::make_unique<nsModEditor::EditorMemPageAddrMap>(&files);
    for (const Opcode* opcode : m_opcodeList) {
        if (!map->addItem(opcode->srcRef.fileNo, opcode->srcRef.lineNo, opcode->pageAddr))
            return;
    }
    modEditorHook->setMemPageAddrMap(map.release());
}

void ModAsmFe::setupTextCompleter()
{
    if (modEditorHook == nullptr)
        return;
    QStringList words = charsetNames();
    words << "\\navConst \"\""
          << "\\navSep \"\""
          << "\\navGrpBegin \"\""
          << "\\navGrpEnd"
          << "\\navHw \"\"";
    words << m_labelList.nameList() << m_equList.nameList();
    modEditorHook->setTextCompletionList(words);
}

void ModAsmFe::openGroup(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->openMessageGroup(text);
}

void ModAsmFe::closeGroup(bool success)
{
    if (modMsgHook != nullptr)
        modMsgHook->closeMessageGroup(success);
}

} // namespace nsModAsmFe

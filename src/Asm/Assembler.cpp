#include "Assembler.h"

#include "ArgumentChecker.h"
#include "AsmBackend.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "DeviceBuilder.h"
#include "EquResolver.h"
#include "FormulaResolver.h"
#include "InstructionChecker.h"
#include "MemoryMapper.h"
#include "OutputWriter.h"
#include "SetChecker.h"
#include "SourceReader.h"
#include "StringEncoder.h"
#include "SymbolChecker.h"
#include "SymbolReader.h"

#include <QDateTime>

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

Assembler::Assembler(AsmFeFileHndlr& files, AsmFeMsgHndlr& messages, const AsmFeConfig& config)
    : m_files(files)
    , m_messages(messages)
    , m_config(config)
    , m_listener(&m_nobody)
    , m_numbers(&messages)
    , m_charsets(messages)
{
}

void Assembler::setBackend(AsmBackend* backend)
{
    m_backend = backend;
    if (backend == nullptr) {
        m_assembled = false;
        m_abandoned = m_running;
    }
    refreshProcessorNames();
}

void Assembler::setListener(AsmRunListener* listener)
{
    m_listener = listener != nullptr ? listener : &m_nobody;
}

bool Assembler::run(const QStringList& sources, const AsmProjectInfo& project, AsmFeConfig::eAssembleEvent_t event)
{
    // Whoever is called during a run may save a file or change the list of files: the run in progress continues, and no
    // second one starts.
    if (m_running)
        return false;
    m_running = true;
    m_runSucceeded = false;
    m_watch = RunWatch(m_listener);
    m_project = project;
    m_messages.clearMessages();
    m_messages.openGroup(AsmFeMsgHndlr::tr("Assembling..."));
    clear();
    // A run depends on the project and its sources, not on what a directive of the last run has set.
    m_charsets.resetDefaultCodec(m_config.defaultCharset);
    m_assembled = true;
    if (m_backend != nullptr) {
        m_program.defines.add(m_backend->processorDefine());
        m_messages.signMsg(infoSetProcDef, m_backend->processorDefine());
    }
    runFrontEndStages(sources);
    runStages(event);
    m_running = false;
    if (m_abandoned)
        dropProgram();
    return m_runSucceeded;
}

void Assembler::drop()
{
    // A run in progress still uses its elements: they are dropped when it has ended.
    if (m_running)
        m_abandoned = true;
    else
        dropProgram();
}

void Assembler::dropProgram()
{
    m_abandoned = false;
    clear();
    m_listener->refreshEquList();
    m_assembled = false;
    m_runSucceeded = false;
}

void Assembler::clear()
{
    m_listener->programDropped();
    m_program.clear();
    m_files.clear();
}

template <class Stage>
bool Assembler::runGroup(eMsgGrp_t group, const QString& arg, Stage stage)
{
    const bool goesOn = m_watch.ask();
    m_messages.signMsgGroup(group, arg);
    // Whoever shows the group may have taken away what the stage works with.
    m_assembled = goesOn && !m_abandoned && stage() && !m_abandoned;
    m_messages.closeGroup(m_assembled);
    return m_assembled;
}

void Assembler::runFrontEndStages(const QStringList& sources)
{
    SourceReader reader(m_program, m_files, m_charsets, m_config, m_messages, *m_listener);
    const bool parsed = runGroup(grpParsingFiles, QString(), [&] { return reader.parseFiles(sources); });
    m_listener->naviTagsComplete();
    if (!parsed)
        return;
    SetChecker sets(m_program.sets, m_charsets, m_numbers, m_messages, *m_listener, m_watch);
    SymbolChecker symbols(m_program, m_words, m_messages, m_watch);
    MemoryMapper mapper(m_program, m_config, m_numbers, m_messages, m_watch);
    if (runGroup(chkSetDirectives, QString(), [&] { return sets.syntacticsCheckSet(); }) &&
        runGroup(chkLabelDirectives, QString(), [&] { return symbols.syntacticsCheckLabel(); }) &&
        runGroup(chkOrgDirectives, QString(), [&] { return mapper.mapOpcodeToMemCheckOrgDirectives(); }))
        runGroup(chkEquDirectives, QString(), [&] { return symbols.syntacticsCheckEquNames() && checkEqus(); });
}

/// Goes on after the stages that need no processor, up to the outputs.
void Assembler::runStages(AsmFeConfig::eAssembleEvent_t event)
{
    if (m_backend == nullptr) {
        m_assembled = false;
        m_messages.signMsg(errNoAsmBe);
        m_messages.closeGroup(false);
        return;
    }
    if (m_assembled)
        runBackEndStages();
    if (m_assembled)
        finishRun();
    if (m_backend != nullptr)
        m_backend->setAssembled(m_assembled);
    m_assembled = m_assembled && !m_abandoned;
    if (!m_assembled)
        m_listener->runFailed();
    m_messages.closeGroup(m_assembled);
    m_runSucceeded = m_assembled;
    if (event == AsmFeConfig::eEventNone)
        return;
    if (m_assembled)
        writeOutputs(event);
    m_listener->runGoesOn(0);
    m_listener->refreshEquList();
}

bool Assembler::checkEqus()
{
    ArgumentChecker arguments(m_numbers, m_messages);
    FormulaResolver formulas(m_program.equs, m_numbers, m_messages);
    StringEncoder strings(m_charsets, m_config, m_numbers, m_messages);
    return EquResolver(m_program.equs, m_words, arguments, formulas, strings, m_numbers, m_messages, m_watch)
        .syntacticsCheckEquArguments();
}

bool Assembler::checkInstructions()
{
    ArgumentChecker arguments(m_numbers, m_messages);
    FormulaResolver formulas(m_program.equs, m_numbers, m_messages);
    StringEncoder strings(m_charsets, m_config, m_numbers, m_messages);
    return InstructionChecker(m_program, m_words, arguments, formulas, strings, m_numbers, m_messages, m_watch)
        .syntacticsCheckOpcode();
}

void Assembler::runBackEndStages()
{
    const QString processor = m_backend->processorName();
    MemoryMapper mapper(m_program, m_config, m_numbers, m_messages, m_watch);
    DeviceBuilder devices(m_program, m_config, m_project, m_numbers, m_messages, m_watch);
    if (!runGroup(grpMapOpcodeToMem, QString(), [&] { return mapper.mapOpcodeToMem(m_backend->beConfig()); }))
        return;
    runGroup(refreshMemAddrMapInfo, QString(), [&] {
        m_listener->addressesMapped();
        return true;
    });
    if (!runGroup(chkInstructions, QString(), [&] { return checkInstructions(); }) ||
        !runGroup(grpRunBackend1, processor, [&] { return m_backend->assembleStage1(backendProgram()); }))
        return;
    setupMetaTags();
    if (!runGroup(grpSetupIODevs, QString(), [&] { return devices.setupIODevs(); }))
        return;
    runGroup(grpRunBackend2, processor, [&] { return m_backend->assembleStage2(backendProgram()); });
}

/// What the back end works on.
AsmBeProgram Assembler::backendProgram()
{
    AsmBeProgram program;
    program.opcodes = &m_program.opcodes;
    program.sets = &m_program.sets;
    program.ioDevs = &m_program.ioDevs;
    program.msgHndlr = &m_messages;
    program.watch = &m_watch;
    program.isSetRefused = m_config.behaviorSet == AsmFeConfig::setError;
    program.isSetWarned = m_config.behaviorSet == AsmFeConfig::setWarn;
    program.pageSize = m_program.geometry.pageSize;
    program.pageCount = m_program.geometry.pageCount;
    program.isSharedMemHigh = m_program.geometry.isSharedHigh;
    program.chkIntVector = m_config.behaviorChkIntVector;
    return program;
}

void Assembler::finishRun()
{
    runGroup(grpUsageCheck, QString(), [&] {
        SymbolChecker(m_program, m_words, m_messages, m_watch).usageCheck();
        return m_watch.ask();
    });
    m_listener->programComplete();
    runGroup(refreshTextCompleter, QString(), [&] {
        m_listener->refreshTextCompleter();
        return true;
    });
    runGroup(refreshInsertionMenu, QString(), [&] {
        m_listener->refreshInsertionMenu();
        return true;
    });
    runGroup(refreshIODevViewer, QString(), [&] {
        m_listener->refreshIODevViewer();
        return true;
    });
}

void Assembler::writeOutputs(AsmFeConfig::eAssembleEvent_t event)
{
    OutputWriter writer(m_program, m_config, m_files, m_project, m_messages, *m_listener);
    m_messages.signMsgGroup(grpWriteIODevToFile);
    const bool written = writer.mapIODevToFile(event);
    m_messages.closeGroup(written);
    m_assembled = written;
    m_runSucceeded = written;
    if (written)
        runExternalPrograms(event);
    else
        m_listener->runFailed();
}

void Assembler::runExternalPrograms(AsmFeConfig::eAssembleEvent_t event)
{
    m_messages.openGroup(AsmFeMsgHndlr::tr("Executing external programs..."));
    m_runSucceeded = m_listener->runExternalPrograms(event);
    m_messages.closeGroup(m_runSucceeded);
}

SymbolTable Assembler::symbols(const QVector<sSymbolSource>& sources) const
{
    SymbolReader reader(m_words, m_config, m_project);
    SymbolTable table = reader.read(sources, m_backend != nullptr ? m_backend->processorDefine() : QString(),
                                    m_running ? nullptr : &m_program);
    table.processor = m_backend != nullptr ? m_backend->processorName() : QString();
    table.isAssembled = m_assembled && !m_running;
    return table;
}

void Assembler::setupMetaTags()
{
    MetaTags& tags = m_program.metaTags;
    tags.prjPath = m_project.dir;
    tags.prjFileName = m_project.fileName;
    tags.prjTitle = m_project.title;
    tags.prjVersion = m_project.version;
    tags.prjComment = m_project.comment;
    tags.dateTime = stampTime().toString("yyyy-MM-dd hh:mm:ss ");
}

} // namespace nsModAsmFe

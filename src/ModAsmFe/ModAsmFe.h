#pragma once

#include "AsmFeActions.h"
#include "AsmFeConfig.h"
#include "AsmFeFormula.h"
#include "AsmFeLineHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "EquList.h"
#include "IODevList.h"
#include "LabelList.h"
#include "MemRangeList.h"
#include "MetaTags.h"
#include "ModActionPluginIf.h"
#include "ModAsmFeHookIf.h"
#include "ModAsmFePluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModSourcesPluginIf.h"
#include "ModSrcNaviPluginIf.h"
#include "ModSyscallPluginIf.h"
#include "OpcodeList.h"
#include "OrgList.h"
#include "PluginList.h"
#include "SetList.h"
#include "StringPool.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>

#include <memory>
#include <vector>

class MyBusyCursor;
class QTextCodec;

namespace nsModEditor {
class EditorSupportMenu;
}

namespace nsModAsmFe {

class AsmFeFileHndlr;
class AsmFeParseArg;
class AsmFeConfigPage;
class AsmFeStatusBar;
class EquListView;
class IODevViewerList;
class Opcode;
class TargetMapper;

/// The assembler: all that is common to the processors, from the sources to the output files.
///
/// assemble() runs the stages in a fixed order and is the only place that decides when a run stops. Each stage
/// processes all its elements before it returns, so that one run reports all the errors of a stage; after a failed
/// stage the later ones are skipped. A run is synchronous. The stages stand in source files of their own:
/// ModAsmFeParse, ModAsmFeDirectives, ModAsmFeArguments and so on.
class ModAsmFe : public QObject,
                 public ModAsmFeHookIf,
                 public ModPluginIf,
                 public ModMsgPluginIf,
                 public ModPrjPluginIf,
                 public ModConfigPluginIfDflt,
                 public ModGuiPluginIf,
                 public ModSourcesPluginIf,
                 public ModEditorPluginIf,
                 public ModSrcNaviPluginIf,
                 public ModActionPluginIf,
                 public ModSyscallPluginIf,
                 public AsmFeConfig,
                 public AsmFeLineHndlr
{
    Q_OBJECT

public:
    /// Why a run was started: which output files and external programs belong to it.
    enum eAssembleEvent_t { eEventNone = 0, eEventButton1 = 1, eEventButton2 = 2, eEventSave = 3 };

    /// Largest instruction memory and largest IO device, in words. Larger ones are refused, so that a typing error in a
    /// `#SET` can not use up the memory of the machine.
    static const int maxMemWords = 1 << 24;
    /// Longest source line in characters; what exceeds it is reported and skipped.
    static const int maxLineLength = 1 << 24;
    /// Longest namespace in characters, including those around it: each element in it stores the complete name.
    static const int maxNameSpaceLength = 1 << 15;

    explicit ModAsmFe(QObject* parent = nullptr);
    ~ModAsmFe() override;

    /// Runs the assembler on the open project, from the sources on the disk to the files of the event.
    void assemble(eAssembleEvent_t event);
    /// Whether a saved source or a changed list of sources starts a run; on by default. A batch program starts its run
    /// itself.
    void setAssembleOnChange(bool enabled) { m_assembleOnChange = enabled; }
    /// Output files that the last run has written, absolute, in order.
    QStringList writtenFiles() const { return m_writtenFiles; }
    /// @return the last run assembled the program and wrote all files of its event
    bool runSucceeded() const { return m_runSucceeded; }

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override;

    // ModAsmFeHookIf
    void registerPlugin(ModAsmFePluginIfInterMod* plugin) override;
    void unregisterPlugin(ModAsmFePluginIfInterMod* plugin) override;
    void registerPlugin(ModAsmFePluginIf* plugin) override;
    void unregisterPlugin(ModAsmFePluginIf* plugin) override;
    void registerPlugin(ModAsmFePluginIfBackend* plugin) override;
    void unregisterPlugin(ModAsmFePluginIfBackend* plugin) override;
    LabelList* labelList() override { return &m_labelList; }
    EquList* equList() override { return &m_equList; }
    OrgList* orgList() override { return &m_orgList; }
    SetList* setList() override { return &m_setList; }
    OpcodeList* opcodeList() override { return &m_opcodeList; }
    IODevList* ioDevList() override { return &m_ioDevList; }
    bool setOverwriteBehaviorError() override { return behaviorSet == setError; }
    bool setOverwriteBehaviorWarning() override { return behaviorSet == setWarn; }
    bool isAssembled() override { return m_assembled; }
    bool instMemConfig(int* pageSize, int* pageCount, bool* sharedMemHi) override;
    AsmFeFileHndlr* fileHndlr() override { return m_fileHndlr; }
    AsmFeMsgHndlr* msgHndlr() override { return m_msgHndlr; }
    AsmFeParseArg* parseArg() override { return m_parseArg; }
    int asmBehaviorChkIntVector() override { return behaviorChkIntVector; }

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;
    void configPagesClosed(bool accepted) override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjSave() override;
    void prjClose() override;

    // ModSourcesPluginIf
    void srcFileListChanged() override;
    void srcFileContentChanged() override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget* widget) override;
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

    const MemRangeList* memRangeList() const { return &m_memRangeList; }
    QStringList defines() const { return m_defines; }
    /// The instruction words, as the name rule and the highlighter know them.
    const QStringList& instructionWords() const { return m_instructionWords; }

public slots:
    void handleActions(nsModAsmFe::AsmFeActions::eAction_t action);
    /// Moves the editor to a place in the sources. @param srcRef of this run, or null for none
    void showSrcReference(nsModAsmFe::SrcReference* srcRef);

private:
    // Life of a run (ModAsmFeAssemble.cpp)
    void clearAll();
    void dropProgram();
    void clearIODevViewer();
    void showEquList();
    void addIODevViewer();
    void removeIODevViewer();
    void runStages(eAssembleEvent_t event);
    bool runFrontEndStages();
    void runBackEndStages();
    void finishRun();
    void writeOutputs(eAssembleEvent_t event);
    template <class Stage>
    bool runGroup(eMsgGrp_t group, const QString& arg, Stage stage);
    bool execSysCall(eAssembleEvent_t event);
    void setupMetaTags();
    void setupMemPageAddrMap();
    void setupTextCompleter();
    void applyBaseConfig();
    void applyBackendConfig();
    void goesOn();
    void openGroup(const QString& text);
    void closeGroup(bool success);

    // Reading (ModAsmFeParse.cpp)
    bool parseFiles();
    bool parseFile(SrcReference* srcRef, const QString& file);
    bool parseLine(SrcReference* srcRef, QString line);
    void parseLineNaviTag(SrcReference* srcRef);
    QString parseLineNaviTagLineRef(QString* line, const QString& word);
    void addNaviTag(const SrcReference& srcRef, int type, const QString& title, const QString& lineRef);
    bool parseLineDirectiveLabel(SrcReference* srcRef);
    bool parseLineOpcode(SrcReference* srcRef, const QString& word);
    void splitFromArgAttr(SrcReference* srcRef, QString* arg, QString* attr);
    void splitFromArgRange(SrcReference* srcRef, QString* arg, QString* range);
    bool splitFromArgParentheseOpen(QString* arg);
    bool splitFromArgParentheseClose(QString* arg);

    // Directives (ModAsmFeDirectives.cpp)
    struct sDirective_t
    {
        const char* word;
        bool (ModAsmFe::*parse)(SrcReference* srcRef);
    };
    bool parseLineByWord(SrcReference* srcRef, const QString& word, const sDirective_t* directives, int count,
                         bool* isKnown);
    bool parseLineConditional(SrcReference* srcRef, const QString& word, bool* isConditional);
    bool parseLineDirective(SrcReference* srcRef, const QString& word, bool* isDirective);
    bool parseLineDirectiveIf(SrcReference* srcRef);
    bool parseLineDirectiveElseIf(SrcReference* srcRef);
    bool parseLineDirectiveElse(SrcReference* srcRef);
    bool parseLineDirectiveEndIf(SrcReference* srcRef);
    bool parseLineDirectiveDef(SrcReference* srcRef);
    bool parseLineDirectiveEqu(SrcReference* srcRef);
    bool parseLineDirectiveNs(SrcReference* srcRef);
    bool parseLineDirectiveEndNs(SrcReference* srcRef);
    bool parseLineDirectiveSet(SrcReference* srcRef);
    bool parseLineDirectiveOrg(SrcReference* srcRef);
    // Macros are reserved words without a meaning: nobody calls these two.
    bool parseLineDirectiveMacro(SrcReference*) { return true; }
    bool parseLineDirectiveEndMacro(SrcReference*) { return true; }
    bool refuseArguments(SrcReference* srcRef);
    void addDefine(const QString& name);
    bool syntacticsCheckSet();
    bool syntacticsCheckSetAsm(Set* set);
    bool syntacticsCheckSetEditor(Set* set);
    void classifySet(Set* set);

    // Arguments (ModAsmFeArguments.cpp)
    bool syntacticsCheckArgNumeric(const SrcReference* srcRef, Arg* arg, ArgExt* ext);
    bool syntacticsCheckArgReg(const SrcReference* srcRef, Arg* arg, ArgExt* ext);
    bool syntacticsCheckArgBankName(const SrcReference* srcRef, Arg* arg, ArgExt* ext);
    bool syntacticsCheckArgType(const SrcReference* srcRef, Arg* arg, ArgExt* ext, Arg::eArgType_t type);
    bool refuseArgExt(const SrcReference* srcRef, const ArgExt* ext, bool parenthesesToo);
    void syntacticsSetArgParentheses(Arg* arg, ArgExt* ext);
    void syntacticsSetArgNameSpace(Arg* arg, const QString& nameSpace);
    bool syntacticsCheckOpcodeArgumentRegRef(Opcode* opcode);
    bool formula(const SrcReference* srcRef, const QString& nameSpace, const QString& text, unsigned int* value);
    bool evaluateFormula(const SrcReference* srcRef, const QString& text, const AsmFeFormula::TermValue& termValue,
                         unsigned int* value);
    bool formulaTermValue(const SrcReference* srcRef, const QString& nameSpace, const QString& term, int* value);
    Equ* equOfTerm(const QString& nameSpace, const QString& term) const;
    bool equTermValue(const SrcReference* srcRef, const QString& term, Equ* equ, int* value);
    bool syntacticsCheckArgFormula(const SrcReference* srcRef, Arg* arg);
    static bool isFormula(const QString& text) { return AsmFeFormula::isFormula(text); }

    // Strings and character sets (ModAsmFeStrings.cpp)
    static bool isString(const QString& text);
    static QString toString(QString text);
    static QByteArray toEncString(const QString& text, QTextCodec* codec);
    bool syntacticsCheckArgString(const SrcReference* srcRef, Arg* arg, ArgExt* ext, bool keepString);
    bool encodeString(const SrcReference* srcRef, Arg* arg, ArgExt* ext);
    QTextCodec* codecOfString(const SrcReference* srcRef, ArgExt* ext);
    bool selectFromString(const SrcReference* srcRef, Arg* arg, ArgExt* ext, bool keepString);
    bool setupDefaultCodec(const QString& name);
    bool syntacticsCheckDefaultTextCodec();
    bool isCharset(const QString& upperName);
    const QStringList& charsetNames();

    // Symbols (ModAsmFeSymbols.cpp)
    void setupKeywordLists();
    static bool isValidName(const QString& name);
    bool checkName(const SrcReference* srcRef, const QString& name);
    bool syntacticsCheckLabel();
    bool syntacticsCheckEquNames();
    bool syntacticsCheckOpcode();
    bool syntacticsCheckOpcodeArgument(Opcode* opcode, Arg* arg, ArgExt* ext);
    bool syntacticsCheckOpcodeArgumentLabel(Opcode* opcode, Arg* arg, ArgExt* ext);
    bool syntacticsCheckOpcodeArgumentWord(Opcode* opcode, Arg* arg, ArgExt* ext);
    void usageCheck();

    // Values of constants (ModAsmFeEqu.cpp)
    enum eEquResult_t { equDone, equFailed, equWaits };
    struct sEquStep_t;
    /// Why a chain of names has no value.
    struct sEquDeadEnd_t
    {
        Equ* last;   ///< the last name that refers to another one
        Equ* target; ///< what that one refers to: an `#EQU` that fails itself, or one of the chain
    };
    bool syntacticsCheckEquArguments();
    bool syntacticsCheckEquArgument(Equ* root);
    eEquResult_t checkEquStep(std::vector<sEquStep_t>* path, bool success);
    eEquResult_t checkEquAlias(std::vector<sEquStep_t>* path, Equ* target);
    eEquResult_t checkEquFormula(sEquStep_t* step);
    bool takeEquAlias(const sEquStep_t& step, bool success);
    void noteEquLoop(const std::vector<sEquStep_t>& path);
    void prepareEqu(Equ* equ);

    // Memory mapping (ModAsmFeMemMap.cpp)
    bool mapOpcodeToMem();
    bool mapOpcodeToMemCheckOrgDirectives();
    bool mapOpcodeToMemSetConfig();
    bool mapOpcodeToMemSetConfigNumber(Set* set, int* value, const char* name);
    bool mapOpcodeToMemSetConfigSharedLocation(Set* set);
    bool mapOpcodeToMemSetRanges();
    bool addMemRanges();
    void assignMemRanges();
    bool mapOpcodeToMemSetAddresses();
    bool applyOrgAddresses();
    bool mapSharedRange(int* pageStart, int* pageLimit);
    bool placeOpcode(Opcode* opcode, int range, int* free, int limit);
    bool mapOpcodeToMemSetAddressesUpwards(int range, int start, int* limit);
    bool mapOpcodeToMemSetAddressesDownwards(int range, int* start, int limit);
    bool mapOpcodeToMemCheckForUnmappedOpcode();
    bool mapOpcodeToMemCheckForInterPageReferencing();
    void mapOpcodeToMemSignErrorOutOfMemoryRange(const SrcReference* srcRef, int range, int addr);
    QString memRangeName(int range) const;

    // IO devices (ModAsmFeIODev.cpp, ModAsmFeIODevValue.cpp)
    bool setupIODevs();
    bool setupIODev(IODev* dev);
    bool setupIODevAttrSize(IODev* dev);
    bool setupIODevAttrBaseAddr(IODev* dev);
    bool setupIODevAttrInitValue(IODev* dev);
    bool setupIODevAttrSimEn(IODev* dev);
    bool setupIODevAttrSimAccessMode(IODev* dev);
    bool setupIODevAttrType(IODev* dev);
    bool setupIODevAttrValues(IODev* dev);
    bool setupIODevAttrValue(IODev* dev, Set* set);
    bool setupIODevAttrValueNumeric(IODev* dev, Set* set, const QString& item, int addr);
    bool setupIODevAttrValueInstMem(IODev* dev, Set* set, const QString& item, int* addr);
    bool setupIODevAttrTargetVhdl(IODev* dev);
    bool setupIODevAttrTargetVerilog(IODev* dev);
    bool setupIODevAttrTargetHex(IODev* dev);
    bool setupIODevAttrTargetMem(IODev* dev);
    bool setupIODevAttrTargetMemGapStuffing(IODev* dev);
    bool setupIODevAttrTargetEn(IODev* dev, const QString& kind, bool* en);
    bool setupIODevAttrTargetFile(IODev* dev, const QString& kind, QString* file);
    bool setupIODevAttrTargetHdl(IODev* dev, const QString& kind, bool* en, QString* entity, QString* templateFile,
                                 QString* targetFile);
    bool setupIODevSetNumeric(Set* set, int* value);
    bool setupIODevSetBoolean(Set* set, bool* value);
    bool setupIODevSetString(Set* set, QString* value);
    bool setupIODevSetPath(Set* set, QString* value);
    bool setupIODevDefault();
    bool setupIODevChkInstMemMapped();
    struct sInstMemSpan_t;
    bool parseInstMemItem(Set* set, const QString& item, sInstMemSpan_t* span);
    bool parseInstMemRange(Set* set, const QString& range, sInstMemSpan_t* span);
    bool parseInstMemBits(Set* set, const QString& bits, sInstMemSpan_t* span);
    bool mapInstMem(IODev* dev, Set* set, const sInstMemSpan_t& span, int addr);
    bool mapInstWord(IODev* dev, Set* set, const sInstMemSpan_t& span, int addr, Opcode* opcode, qint64 memAddr);

    // Output (ModAsmFeOutput.cpp)
    bool mapIODevToFile(eAssembleEvent_t event);
    bool mapIODevToFileVhdl();
    bool mapIODevToFileVerilog();
    bool mapIODevToFileHex();
    bool mapIODevToFileMem();
    template <class Write>
    bool mapIODevToFiles(TargetMapper* writer, const QString& groupText, bool IODev::*en, QString IODev::*file,
                         Write write);
    bool checkTargetFile(const QString& file);

    // Insertion menu and highlighting (ModAsmFeMenus.cpp)
    void setupSupportMenuBasic();
    void setupSupportMenuDynamics();
    void setupSupportMenuNames(nsModEditor::EditorSupportMenu* menu, const QString& title, const QStringList& names,
                               QStringList* shown);
    void setupSupportMenuHardware();
    void setHighlighter();
    void clearHighlighter();

    PluginList<ModAsmFePluginIf> m_plugins;
    ModAsmFePluginIfBackend* m_asmBe = nullptr; ///< not owned

    AsmFeActions* m_actions = nullptr;
    AsmFeFileHndlr* m_fileHndlr;
    AsmFeMsgHndlr* m_msgHndlr;
    AsmFeParseArg* m_parseArg;
    QPointer<AsmFeConfigPage> m_configPage; ///< null while the settings dialog is closed
    AsmFeStatusBar* m_statusBar = nullptr;
    QPointer<EquListView> m_equListView;     ///< null without a window
    QPointer<IODevViewerList> m_ioDevViewer; ///< null without a window or an open project

    QStringList m_charsetNames; ///< upper case; filled on first use, as asking the platform for them takes its time
    QSet<QString> m_charsetSet;
    QStringList m_instructionWords;
    QStringList m_argumentWords;
    QSet<QString> m_instructionWordSet;
    QSet<QString> m_argumentWordSet;
    QHash<QString, int> m_regTable;
    QHash<QString, int> m_bankTable;
    QTextCodec* m_defaultCodec = nullptr; ///< not owned, may be null

    bool m_assembleOnChange = true;
    bool m_assembled = false;
    bool m_running = false;         ///< a run must not be started from within a run
    MyBusyCursor* m_busy = nullptr; ///< of the run in progress; not owned
    bool m_abandoned = false;       ///< project or back end were removed during the run
    bool m_runSucceeded = false;
    QStringList m_writtenFiles;
    QStringList m_menuLabels; ///< names in the insertion menu
    QStringList m_menuDefines;

    // State of reading
    int m_ifActive = 0;
    bool m_ifMatched = false;
    bool m_ifSkip = false;
    bool m_lastLineEnded = true; ///< the last line of the file has a line end
    QStringList m_defines;       ///< upper case
    QSet<QString> m_defineSet;
    QString m_nameSpace;
    StringPool m_pool;

    // Elements of the run
    EquList m_equList;
    SetList m_setList;
    OrgList m_orgList;
    OpcodeList m_opcodeList;
    LabelList m_labelList;
    IODevList m_ioDevList;
    MemRangeList m_memRangeList;
    MetaTags m_metaTags;

    QHash<const Equ*, sEquDeadEnd_t> m_equDeadEnds; ///< during the check of the constants
    QSet<const Equ*> m_equCheckStack;               ///< the `#EQU`s on the present path of resolution
    bool m_equFailed = false;                       ///< one of them has failed

    const SrcReference* m_devSrcRef = nullptr; ///< where the device that is set up was declared; not owned
    int m_devWords = 0;                        ///< cells of all devices so far
    int m_pageSize = 0;
    int m_pageCount = 1;
    bool m_sharedMemHi = true;
    bool m_instMemMapped = false; ///< some device took the instructions
};

} // namespace nsModAsmFe

#pragma once

#include "FakeEditorHook.h"
#include "FakeMsgHook.h"
#include "FakeSrcNaviHook.h"

#include "ModAsmFeHookIf.h"
#include "ModAsmFePluginIf.h"
#include "ModSyscallHookIf.h"
#include "ModSyscallPluginIf.h"
#include "Opcode.h"
#include "OpcodeList.h"

#include <QSet>

#include <functional>
#include <memory>

// Fakes that write down their calls into one common list, so that a test sees the order over all hooks.

/// The message service: groups by their key, or by their text where they have none.
class LoggingMsgHook : public FakeMsgHook
{
public:
    explicit LoggingMsgHook(QStringList* log)
        : calls(log)
    {
    }

    using FakeMsgHook::registerPlugin;
    using FakeMsgHook::unregisterPlugin;
    void registerPlugin(ModMsgPluginIf* plugin) override
    {
        FakeMsgHook::registerPlugin(plugin);
        registered.insert(plugin);
        ++registrations;
    }
    void unregisterPlugin(ModMsgPluginIf* plugin) override
    {
        FakeMsgHook::unregisterPlugin(plugin);
        registered.remove(plugin);
    }
    void clearMessages() override
    {
        FakeMsgHook::clearMessages();
        calls->append("clear");
    }
    void openMessageGroup(QString text, QUrl hlpDoc = QUrl()) override
    {
        FakeMsgHook::openMessageGroup(text, hlpDoc);
        calls->append("open " + (hlpDoc.fragment().isEmpty() ? text : hlpDoc.fragment()));
        if (onGroup)
            onGroup(text);
    }
    void closeMessageGroup(bool success) override
    {
        FakeMsgHook::closeMessageGroup(success);
        calls->append(success ? "close ok" : "close failed");
    }
    void showMessage(eMsgType_t type, QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile) override
    {
        FakeMsgHook::showMessage(type, text, hlpDoc, srcFile);
        calls->append("msg " + (hlpDoc.fragment().isEmpty() ? text.section(' ', 0, 1) : hlpDoc.fragment()));
    }

    QStringList* calls;
    std::function<void(const QString& text)> onGroup;
    QSet<ModMsgPluginIf*> registered;
    int registrations = 0;
};

/// The navigator: keeps the tags.
class LoggingNaviHook : public FakeSrcNaviHook
{
public:
    explicit LoggingNaviHook(QStringList* log)
        : calls(log)
    {
    }

    void clearTagList() override
    {
        calls->append("navi.clear");
        FakeSrcNaviHook::clearTagList();
    }
    void showTagList() override { calls->append("navi.show"); }

    QStringList* calls;
};

/// External programs: the answer is a knob.
class LoggingSyscallHook : public ModSyscallHookIf
{
public:
    explicit LoggingSyscallHook(QStringList* log)
        : calls(log)
    {
    }

    void registerPlugin(ModSyscallPluginIf* plugin) override { plugin->modSyscallHook = this; }
    void unregisterPlugin(ModSyscallPluginIf* plugin) override { plugin->modSyscallHook = nullptr; }
    bool run(nsModSyscall::eEvent_t event) override
    {
        calls->append(QString("syscall.run %1").arg(int(event)));
        if (onRun)
            onRun();
        return answer;
    }

    QStringList* calls;
    bool answer = true;
    std::function<void()> onRun; ///< knob: what happens during the call
};

/// The editor as the assembler sees it.
class LoggingEditorHook : public FakeEditorHook
{
public:
    explicit LoggingEditorHook(QStringList* log)
        : calls(log)
    {
    }

    void saveAllFiles() override { calls->append("editor.saveAllFiles"); }
    using FakeEditorHook::setCursorToLine;
    void setCursorToLine(QString path, int line) override
    {
        places.append(path.section('/', -1) + ':' + QString::number(line));
    }
    void clearHighlighter() override
    {
        calls->append("editor.clearHighlighter");
        rules.clear();
    }
    void configHighlighterAddRegExp(eHighlightRule_t rule, QRegExp regExp) override { rules.append({rule, regExp}); }
    void setTabIndent(int indent) override { calls->append(QString("editor.setTabIndent %1").arg(indent)); }
    void setMemPageAddrMap(nsModEditor::EditorMemPageAddrMap* newMap) override
    {
        calls->append("editor.setMemPageAddrMap");
        map.reset(newMap);
        if (onMap)
            onMap();
    }
    void setTextCompletionList(QStringList& words) override
    {
        calls->append("editor.setTextCompletionList");
        completion = words;
    }
    nsModEditor::EditorSupportMenu* supportMenu() override { return withMenu ? &menu : nullptr; }

    QStringList* calls;
    std::unique_ptr<nsModEditor::EditorMemPageAddrMap> map;
    QStringList completion;
    QStringList places; ///< where the cursor was sent: "file:line", counted from 0
    QList<QPair<int, QRegExp>> rules;
    nsModEditor::EditorSupportMenu menu;
    bool withMenu = true;        ///< knob: is there an insertion menu
    std::function<void()> onMap; ///< knob: what happens when the map is handed over
};

/// A processor with the registers s0 to sF and the banks A and B.
class FakeBackend : public ModAsmFePluginIfBackend
{
public:
    explicit FakeBackend(QStringList* log)
        : calls(log)
    {
        for (int i = 0; i < 16; ++i)
            regs.insert("s" + QString::number(i, 16).toUpper(), i);
        banks = {{"A", 0}, {"B", 1}};
    }

    QString processorName() override { return name; }
    QString processorDefine() override { return define; }
    const QHash<QString, int>* regNames() override { return &regs; }
    const QHash<QString, int>* regBankNames() override { return &banks; }
    bool assembleStage1() override
    {
        calls->append("be.stage1");
        wasAssembled = modAsmFeHook->isAssembled();
        for (nsModAsmFe::Opcode* opcode : *modAsmFeHook->opcodeList())
            opcode->instWord = opcode->pageAddr + firstWord;
        if (onStage1)
            onStage1();
        return stage1;
    }
    bool assembleStage2() override
    {
        calls->append("be.stage2");
        return stage2;
    }
    void setAssembled(bool assembled) override
    {
        calls->append(assembled ? "be.setAssembled 1" : "be.setAssembled 0");
        if (onAssembled)
            onAssembled(assembled);
    }
    int beConfig() override { return pageSize; }

    QStringList* calls;
    QString name = QStringLiteral("Fake 1");
    QString define = QStringLiteral("PROC::FAKE1");
    QHash<QString, int> regs;
    QHash<QString, int> banks;
    bool stage1 = true; ///< knobs: the answers
    bool stage2 = true;
    int pageSize = 16;
    int firstWord = 0x100;     ///< the word of an instruction is its address in the page, counted from here
    bool wasAssembled = false; ///< what the hook said during stage 1
    std::function<void()> onStage1;
    std::function<void(bool)> onAssembled;
};

#include "ProcRun.h"

#include "Opcode.h"
#include "OpcodeList.h"

#include <QFile>

ProcRun::ProcRun(const QString& processorName, const QHash<QString, int>& settings)
{
    const QList<ModPluginIf*> modules = {&processor, &asmFe};
    msg.registerPlugin(static_cast<ModMsgPluginIf*>(&processor));
    msg.registerPlugin(static_cast<ModMsgPluginIf*>(&asmFe));
    prj.registerPlugin(static_cast<ModPrjPluginIf*>(&processor));
    prj.registerPlugin(static_cast<ModPrjPluginIf*>(&asmFe));
    m_sources.registerPlugin(&asmFe);
    asmFe.modRegisterPlugins(modules);
    asmFe.setAssembleOnChange(false);
    asmFe.modInit();
    asmFe.modInitIntermod();
    for (auto it = settings.cbegin(); it != settings.cend(); ++it)
        prj.tree.set(it.key(), it.value());
    prj.tree.set("ModProcessor/processor", processorName);
    prj.open(m_dir.filePath("case.nalvo"));
}

ProcRun::~ProcRun()
{
    processor.prjClose();
    asmFe.modExitIntermod();
    asmFe.modExit();
}

bool ProcRun::assemble(const QStringList& lines)
{
    QFile file(m_dir.filePath("main.psm"));
    if (!file.open(QIODevice::WriteOnly) || file.write((lines.join('\n') + '\n').toLatin1()) < 0)
        return false;
    file.close();
    m_sources.srcFiles = QStringList(file.fileName());
    asmFe.behaviorChkIntVector = 2;
    msg.reset();
    asmFe.assemble(nsModAsmFe::ModAsmFe::eEventNone);
    collectWords(lines.size());
    collectMessages();
    return asmFe.isAssembled();
}

void ProcRun::collectWords(int lineCount)
{
    m_words.fill(-1, lineCount);
    for (const nsModAsmFe::Opcode* opcode = asmFe.opcodeList()->first(); opcode != nullptr; opcode = opcode->next)
        m_words[opcode->srcRef.lineNo] = opcode->instWord;
}

void ProcRun::collectMessages()
{
    m_messages.clear();
    m_messagesWithoutLine.clear();
    for (const FakeMsgHook::Entry& entry : qAsConst(msg.log)) {
        if (entry.kind != FakeMsgHook::kindMessage || entry.type == ModMsgHookIf::eMsgInfo)
            continue;
        const QString text = entry.key() + " | " + entry.text;
        if (entry.srcFile.isEmpty())
            m_messagesWithoutLine.append(text);
        else
            m_messages[entry.line()].append(text);
    }
}

std::string ProcRun::summary() const
{
    return (msg.errors() + msg.warnings()).mid(0, 10).join('\n').toStdString();
}

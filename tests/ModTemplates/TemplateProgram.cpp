#include "TemplateProgram.h"

#include "CfgTree.h"
#include "EditorSupportMenu.h"
#include "Label.h"
#include "LabelList.h"
#include "ModTemplates.h"
#include "Opcode.h"
#include "OpcodeList.h"

#include <QRegularExpression>

namespace {

/// What the menu of the editor inserts for a template file.
QString insertedText(const QString& path)
{
    QString text;
    nsModEditor::EditorSupportMenu menu;
    QObject::connect(&menu, &nsModEditor::EditorSupportMenu::insertText,
                     [&text](const QString& part) { text += part; });
    menu.setEntry("entry", path, nsModEditor::EditorSupportMenu::typeFile);
    menu.node({"entry"})->action->trigger();
    return text;
}

QString firstMatch(const QString& text, const QString& pattern)
{
    return QRegularExpression(pattern, QRegularExpression::MultilineOption).match(text).captured(1).trimmed();
}

} // namespace

TemplateFile::TemplateFile(const QString& filePath)
    : path(filePath)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    const QString text = QString::fromLatin1(file.readAll());
    const QString about = text.left(text.indexOf("\ntemplate ="));
    processors = firstMatch(about, "^Processors:(.*)$").split(", ", Qt::SkipEmptyParts);
    const QString insert = firstMatch(about, "^Insert:(.*)$");
    kind = insert.section(' ', 0, 0);
    routines = insert.section(' ', 1).split(", ", Qt::SkipEmptyParts);
    auto it = QRegularExpression("^menuItem = (.*)$", QRegularExpression::MultilineOption).globalMatch(text);
    while (it.hasNext())
        menuItems.append(it.next().captured(1));
    inserted = insertedText(path);
}

QStringList TemplateFile::all()
{
    return nsModTemplates::ModTemplates::scanDirectory(NALVO_SOURCE_DIR "/Common/asmTemplates").filter(".psm");
}

TemplateFile TemplateFile::named(const QString& name, const QString& processor)
{
    for (const QString& path : all()) {
        TemplateFile file(path);
        if (QFileInfo(path).completeBaseName() == name && file.processors.contains(processor))
            return file;
    }
    return TemplateFile(QString());
}

QString TemplateFile::source() const
{
    if (kind == "program")
        return inserted;
    QString calls = "main:\n";
    if (kind != "routines")
        calls += "        INT     ENABLE\n";
    for (const QString& routine : routines)
        calls += "        CALL    " + routine + '\n';
    calls += "  main_loop:\n        JUMP    main_loop\n";
    return kind == "start" ? inserted + calls : calls + inserted;
}

TemplateProgram::TemplateProgram(const QString& source, const QString& processor, bool needsVector)
{
    QFile file(m_dir.filePath("main.psm"));
    if (!file.open(QIODevice::WriteOnly) || file.write(source.toLatin1()) < 0)
        return;
    file.close();
    CfgTree tree(nullptr);
    tree.setValue("sources/srcFiles", QStringList({"main.psm"}));
    tree.setValue("ModProcessor/processor", processor);
    if (!m_prj.savePrjFile(&tree, m_dir.filePath("case.nalvo")))
        return;
    const QList<ModPluginIf*> modules = {&m_prj, &m_sources, &m_processor, &m_asmFe};
    m_msg.attach(static_cast<ModMsgPluginIf*>(&m_prj));
    m_msg.attach(static_cast<ModMsgPluginIf*>(&m_sources));
    m_msg.attach(static_cast<ModMsgPluginIf*>(&m_processor));
    m_msg.attach(static_cast<ModMsgPluginIf*>(&m_asmFe));
    for (ModPluginIf* module : modules)
        module->modRegisterPlugins(modules);
    m_asmFe.modInit();
    m_asmFe.modInitIntermod();
    m_asmFe.setAssembleOnChange(false);
    if (!m_prj.openPrj(m_dir.filePath("case.nalvo")))
        return;
    m_msg.dropOnClear = false;
    m_asmFe.behaviorChkIntVector = needsVector ? 0 : 2;
    m_asmFe.assemble(nsModAsmFe::ModAsmFe::eAssembleEvent_t(0));
}

TemplateProgram::~TemplateProgram()
{
    m_processor.prjClose();
    m_asmFe.modExitIntermod();
    m_asmFe.modExit();
}

QStringList TemplateProgram::complaints() const
{
    QStringList lines;
    for (const FakeMsgHook::Entry& entry : m_msg.messages()) {
        if (entry.type != ModMsgHookIf::eMsgInfo)
            lines.append(QString("line %1: %2 %3").arg(entry.line() + 1).arg(entry.key(), entry.text));
    }
    return lines;
}

nsModAsmFe::Opcode* TemplateProgram::entry(const QString& routine)
{
    const int split = routine.lastIndexOf("::");
    const QString nameSpace = split < 0 ? QString() : routine.left(split);
    const QString name = split < 0 ? routine : routine.mid(split + 2);
    const nsModAsmFe::Label* label = m_asmFe.labelList()->find(nameSpace, name);
    return label != nullptr ? m_asmFe.opcodeList()->nextOfSrcRef(label->srcRef.fileNo, label->srcRef.lineNo) : nullptr;
}

#include "TemplateProgram.h"

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
    : m_text(processor)
{
    using nsModAsmFe::AsmFeConfig;
    m_text.config.behaviorChkIntVector = needsVector ? AsmFeConfig::intVectorError : AsmFeConfig::intVectorSilent;
    m_isAssembled = m_text.assemble(source.toLatin1());
}

nsModAsmFe::Opcode* TemplateProgram::entry(const QString& routine)
{
    const int split = routine.lastIndexOf("::");
    const QString nameSpace = split < 0 ? QString() : routine.left(split);
    const QString name = split < 0 ? routine : routine.mid(split + 2);
    const nsModAsmFe::Label* label = m_text.program().labels.find(nameSpace, name);
    return label != nullptr ? opcodes()->nextOfSrcRef(label->srcRef.fileNo, label->srcRef.lineNo) : nullptr;
}

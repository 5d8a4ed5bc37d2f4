#include "HoverTexts.h"

#include "NumberText.h"
#include "ProgramNames.h"
#include "SourceText.h"

#include "AsmFeLineHndlr.h"
#include "AsmFeParseArg.h"
#include "EditorDocument.h"
#include "InstructionNotes.h"
#include "ProcTables.h"
#include "SimValuesIf.h"

#include <QCoreApplication>
#include <QTextBlock>

namespace nsModSymbols {

using nsModAsmFe::AsmFeLineHndlr;
using nsModEditor::EditorDocument;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nsModSymbols::HoverTexts", text);
}

bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c == '_' || c == '#';
}

QString paragraph(const QString& text)
{
    return QStringLiteral("<div>%1</div>").arg(text.toHtmlEscaped());
}

} // namespace

QString HoverTexts::tipAt(const EditorDocument* document, int line, int column)
{
    QString tip;
    for (const QString& message : document->messagesAt(line))
        tip += paragraph(message);
    const QString text = document->document()->findBlockByNumber(line).text();
    if (column >= SourceText::codeLength(text))
        return tip;
    int start = column;
    while (start > 0 && isWordPart(text.at(start - 1)))
        --start;
    int end = column;
    while (end < text.size() && isWordPart(text.at(end)))
        ++end;
    int number = 0;
    bool isNumber = false;
    const QString word = text.mid(start, end - start);
    QString known = symbolText(document, line, column, &number, &isNumber);
    if (known.isEmpty() && !word.isEmpty()) {
        known = wordText(text, word, start);
        if (known.isEmpty() && nsModAsmFe::AsmFeParseArg::isNumeric(word)) {
            number = nsModAsmFe::AsmFeParseArg(nullptr).toNumeric(word);
            isNumber = true;
            known = NumberText::inBases(number);
        }
    }
    if (!known.isEmpty())
        tip += paragraph(known);
    if (isNumber) {
        const QString simulated = simulatedText(text, start, number);
        if (!simulated.isEmpty())
            tip += paragraph(simulated);
    }
    return tip;
}

QString HoverTexts::symbolText(const EditorDocument* document, int line, int column, int* number, bool* isNumber)
{
    const int index = m_names->symbolAt(document, line, column, ProgramNames::eQuick);
    if (index < 0)
        return QString();
    const nsModAsmFe::sSymbol& symbol = m_names->lastTable().symbol(index);
    switch (symbol.kind) {
    case nsModAsmFe::symbolConstant:
        *isNumber = symbol.hasValue;
        *number = symbol.value;
        return symbol.hasValue ? symbol.fullName() + QLatin1String(" = ") + NumberText::inBases(symbol.value)
                               : symbol.fullName() + QLatin1String(": ") + symbol.text;
    case nsModAsmFe::symbolLabel:
        return symbol.fullName() + QLatin1String(": ") +
               (symbol.hasValue ? NumberText::address(symbol.value, symbol.page)
                                : tr("a label without an address: the last run has not seen it"));
    case nsModAsmFe::symbolNameSpace:
        return tr("Namespace %1").arg(symbol.name);
    case nsModAsmFe::symbolDevice:
        return tr("Device %1").arg(symbol.name);
    case nsModAsmFe::symbolFile:
        return symbol.name;
    }
    return QString();
}

/// An instruction or a register.
QString HoverTexts::wordText(const QString& lineText, const QString& word, int start)
{
    const nsProc::ProcTable* table = nsProc::procTable(m_names->lastTable().processor);
    AsmFeLineHndlr line;
    line.splitLine(lineText);
    if (start == line.tagStart(AsmFeLineHndlr::eTagInstruction)) {
        const nsModAsmFe::eOpcode_t opcode = nsModAsmFe::opcodeOfMnemonic(word.toUpper());
        if (opcode == nsModAsmFe::ocUndefined)
            return QString();
        if (table != nullptr && table->assembled(opcode) == nullptr)
            return tr("%1: %2 does not have this instruction").arg(word.toUpper(), QLatin1String(table->name));
        return word.toUpper() + QLatin1Char(' ') + nsProc::instructionNote(table, opcode);
    }
    for (int i = 0; table != nullptr && i < table->regs.count; ++i) {
        if (table->regName(i) != word)
            continue;
        int value = 0;
        const bool isKnown = m_values != nullptr && m_values->registerValue(word, &value);
        return isKnown ? word + QLatin1String(" = ") + NumberText::inBases(value)
                       : tr("%1: register %2").arg(word).arg(i);
    }
    return QString();
}

/// What stands at the scratchpad address or the port that the instruction of the line names.
QString HoverTexts::simulatedText(const QString& lineText, int start, int number) const
{
    if (m_values == nullptr || !m_values->isSimulating())
        return QString();
    AsmFeLineHndlr line;
    line.splitLine(lineText);
    if (start < line.tagStart(AsmFeLineHndlr::eTagArg1))
        return QString();
    int value = 0;
    switch (nsModAsmFe::opcodeOfMnemonic(line.tag(AsmFeLineHndlr::eTagInstruction).toUpper())) {
    case nsModAsmFe::ocRdmem:
    case nsModAsmFe::ocWrmem:
        return m_values->scratchpadValue(number, &value)
                   ? tr("Scratchpad cell %1 = %2").arg(number).arg(NumberText::inBases(value))
                   : QString();
    case nsModAsmFe::ocRdprt:
    case nsModAsmFe::ocWrprt:
        return m_values->portValue(number, &value) ? tr("Port %1 = %2").arg(number).arg(NumberText::inBases(value))
                                                   : tr("Port %1: no value").arg(number);
    default:
        return QString();
    }
}

} // namespace nsModSymbols

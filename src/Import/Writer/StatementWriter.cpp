#include "StatementWriter.h"

#include "ForeignNumbers.h"

#include "ProcTable.h"

namespace nsImport {

const QLatin1String StatementWriter::noCounterpart("NO_COUNTERPART");

namespace {

const int tabWidth = 8;

int columnAt(const QString& text, int pos)
{
    int column = 0;
    for (int i = 0; i < pos && i < text.size(); ++i)
        column = text.at(i) == '\t' ? (column / tabWidth + 1) * tabWidth : column + 1;
    return column;
}

/// Fills the text up to a column, with a blank at least.
void padTo(QString* text, int column)
{
    if (text->isEmpty() && column == 0)
        return;
    const int blanks = column - columnAt(*text, text->size());
    text->append(QString(qMax(blanks, text->isEmpty() ? 0 : 1), QLatin1Char(' ')));
}

QString indentOf(const QString& text)
{
    int end = 0;
    while (end < text.size() && text.at(end).isSpace())
        ++end;
    return text.left(end);
}

} // namespace

QString StatementWriter::addressLine(int address)
{
    return QString(tabWidth, ' ') + QStringLiteral("#ORG    ADDR, ") + hexNumber(address);
}

QStringList StatementWriter::write(int index, bool replaceBroken) const
{
    const ForeignStatement& statement = m_program.statements.at(index);
    if (statement.isEmpty() && statement.commentPos < 0)
        return {QString()};
    if (statement.size > 0 || statement.isBroken)
        return writeCode(statement, replaceBroken);
    QStringList lines;
    QStringList labels = labelsOf(statement);
    const QString word = statement.hasWord() ? writeDefinition(statement, index) : QString();
    if (!statement.hasWord() && !labels.isEmpty()) {
        // The comment stays with the last label.
        Parts parts = columnsOf(statement);
        parts.label = labels.takeLast();
        for (const QString& label : qAsConst(labels))
            lines.append(label + ':');
        lines.append(line(statement, parts, commentOf(statement)));
        return lines;
    }
    for (const QString& label : qAsConst(labels))
        lines.append(label + ':');
    if (!statement.hasWord() && !statement.labels.isEmpty())
        lines.append(asComment(statement));
    else if (!statement.hasWord())
        lines.append(indentOf(statement.text).left(statement.commentPos) + ';' + statement.comment);
    else
        lines.append(word);
    return lines;
}

QStringList StatementWriter::labelsOf(const ForeignStatement& statement) const
{
    QStringList labels;
    for (int i = 0; statement.firstLabel >= 0 && i < statement.labels.size(); ++i) {
        if (m_layout.isInPlace(statement.firstLabel + i))
            labels.append(m_program.symbols.at(statement.firstLabel + i).ours);
    }
    return labels;
}

void StatementWriter::appendLooseLabels(int address, QStringList* lines) const
{
    const QStringList labels = m_layout.looseLabels().value(address);
    for (const QString& label : labels)
        lines->append(label + ':');
}

StatementWriter::Parts StatementWriter::columnsOf(const ForeignStatement& statement) const
{
    Parts parts;
    const ForeignPiece& first = statement.name.length > 0 ? statement.name : statement.word;
    if (!statement.labels.isEmpty())
        parts.labelColumn = columnAt(statement.text, statement.labels.first().pos);
    if (first.length > 0)
        parts.wordColumn = columnAt(statement.text, first.pos);
    // Operands that stand in a column of their own stay there; others follow their word.
    parts.operandColumn = statement.name.length > 0 ? parts.wordColumn + tabWidth : -1;
    if (!statement.operands.isEmpty() && statement.name.length == 0) {
        const int pos = statement.operands.first().pos;
        const int wordEnd = statement.word.pos + statement.word.length;
        if (pos - wordEnd > 1 || statement.text.mid(wordEnd, 1) == QLatin1String("\t"))
            parts.operandColumn = columnAt(statement.text, pos);
    }
    return parts;
}

QString StatementWriter::commentOf(const ForeignStatement& statement) const
{
    QString comment;
    if (statement.commentPos >= 0)
        comment = ';' + statement.comment;
    if (!statement.remark.isEmpty())
        comment += (comment.isEmpty() ? QStringLiteral("; ") : QStringLiteral(" ; ")) + statement.remark;
    return comment;
}

QString StatementWriter::line(const ForeignStatement& statement, const Parts& parts, const QString& comment) const
{
    QString text;
    if (!parts.label.isEmpty()) {
        padTo(&text, parts.labelColumn);
        text += parts.label + ':';
    }
    if (!parts.word.isEmpty()) {
        padTo(&text, parts.wordColumn);
        text += parts.word;
    }
    if (!parts.operands.isEmpty()) {
        padTo(&text, qMax(parts.operandColumn, 0));
        text += parts.operands;
    }
    if (!comment.isEmpty()) {
        // As operands: in a column of its own, or a blank behind the code.
        const int pos = statement.commentPos;
        const bool follows = pos < 2 || (statement.text.at(pos - 1) == ' ' && !statement.text.at(pos - 2).isSpace());
        padTo(&text, follows ? 0 : columnAt(statement.text, pos));
        text += comment;
    }
    return text;
}

QStringList StatementWriter::writeCode(const ForeignStatement& statement, bool replaceBroken) const
{
    QStringList lines;
    QStringList labels = labelsOf(statement);
    appendLooseLabels(statement.size > 0 ? statement.address : -1, &lines);
    Parts parts = columnsOf(statement);
    if (!labels.isEmpty())
        parts.label = labels.takeLast();
    for (const QString& label : qAsConst(labels))
        lines.append(label + ':');
    QString comment = commentOf(statement);
    if (statement.isBroken) {
        parts.word = replaceBroken ? QStringLiteral("NOP") : QString(noCounterpart);
        if (replaceBroken && statement.size == 0)
            parts.word.clear();
        comment = QStringLiteral("; ") + statement.code.trimmed() +
                  (comment.isEmpty() ? QString() : QStringLiteral("  ") + comment);
        lines.append(line(statement, parts, comment));
        for (int i = 1; replaceBroken && i < statement.size; ++i)
            lines.append(QStringLiteral("        NOP"));
        return lines;
    }
    for (int i = 0; i < statement.size; ++i) {
        const QString& text = m_program.instructions.at(statement.firstInstruction + i).text;
        const int blank = text.indexOf(' ');
        parts.word = text.left(blank);
        parts.operands = blank < 0 ? QString() : text.mid(blank + 1);
        if (i > 0)
            appendLooseLabels(statement.address + i, &lines);
        lines.append(line(statement, parts, comment));
        parts.label.clear();
        comment.clear();
    }
    return lines;
}

QStringList StatementWriter::writeFiller(int address, const QString& instruction) const
{
    QStringList labels = m_layout.looseLabels().value(address);
    const QString label = labels.isEmpty() ? QString() : labels.takeLast() + ':';
    QStringList lines;
    for (const QString& other : qAsConst(labels))
        lines.append(other + ':');
    QString text = label;
    padTo(&text, tabWidth);
    text += instruction;
    padTo(&text, 40);
    lines.append(text + QStringLiteral("; unused in the original"));
    return lines;
}

/// The whole line as a comment.
QString StatementWriter::asComment(const ForeignStatement& statement) const
{
    const QString indent = indentOf(statement.code);
    QString text = indent + QStringLiteral("; ") + statement.code.mid(indent.size());
    if (statement.commentPos >= 0) {
        padTo(&text, columnAt(statement.text, statement.commentPos));
        text += ';' + statement.comment;
    }
    return text;
}

QString StatementWriter::writeDefinition(const ForeignStatement& statement, int index) const
{
    switch (statement.op()) {
    case opConstant:
    case opSetConstant:
    case opEquate:
    case opNameReg:
        if (statement.symbol >= 0 && m_program.symbols.at(statement.symbol).statement == index)
            return definitionLine(statement, m_program.symbols.at(statement.symbol));
        break;
    case opAddress:
        if (m_layout.placesCode(index)) {
            Parts parts = columnsOf(statement);
            parts.word = QStringLiteral("#ORG");
            parts.operands = QStringLiteral("ADDR, ") + hexNumber(statement.address);
            return line(statement, parts, commentOf(statement));
        }
        break;
    default:
        break;
    }
    return asComment(statement);
}

QString StatementWriter::definitionLine(const ForeignStatement& statement, const ForeignSymbol& symbol) const
{
    const bool isRegister = symbol.kind == ForeignSymbol::eRegister;
    Parts parts = columnsOf(statement);
    parts.word = QStringLiteral("#EQU");
    const QString value = isRegister ? m_program.dialect->processor().regName(symbol.value) : symbol.text;
    parts.operands = symbol.ours + QStringLiteral(", ") + value;
    QString comment = commentOf(statement);
    // What a device of another simulator was is worth knowing.
    const QString word = statement.part(statement.word).toUpper();
    if (statement.op() == opEquate && word.startsWith(QLatin1String("DS"))) {
        const QString rest = statement.operands.size() > 1 ? ' ' + statement.operand(1) : QString();
        comment += (comment.isEmpty() ? QStringLiteral("; ") : QStringLiteral(" ; ")) + word + rest;
    }
    return line(statement, parts, comment);
}

} // namespace nsImport

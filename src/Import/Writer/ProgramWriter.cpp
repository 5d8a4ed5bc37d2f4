#include "ProgramWriter.h"

#include "ForeignNumbers.h"
#include "StatementWriter.h"
#include "WordEncoder.h"

#include "ProcDisassembler.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace nsImport {

ProgramWriter::ProgramWriter(const ForeignProgram& program, const ProgramLayout& layout)
    : m_program(program)
    , m_layout(layout)
{
}

/// Name of a source: that of its file, and one of its own where a file becomes several.
QString ProgramWriter::sourceName(const LayoutSource& source, QStringList* taken) const
{
    QString base;
    const QString original = QFileInfo(m_program.files.at(source.file).path).completeBaseName();
    for (const QChar c : original)
        base += c.isLetterOrNumber() || c == '-' || c == '.' ? c : QChar('_');
    if (base.isEmpty() || base.startsWith('.'))
        base.prepend('_');
    QString name = source.part == 1 ? base : base + '_' + QString::number(source.part);
    for (int number = 2; taken->contains(name, Qt::CaseInsensitive); ++number)
        name = base + '_' + QString::number(number);
    taken->append(name);
    return QStringLiteral("src/") + name + QStringLiteral(".psm");
}

/// Definitions of the names that the dialect knows, as far as the program uses them.
QStringList ProgramWriter::knownConstants() const
{
    QStringList lines;
    for (const ForeignSymbol& symbol : m_program.symbols) {
        if (symbol.statement < 0)
            lines.append(QStringLiteral("        #EQU    ") + symbol.ours + QStringLiteral(", ") + symbol.text);
    }
    if (!lines.isEmpty()) {
        lines.prepend(QCoreApplication::translate("nsImport::ProgramWriter", "; Names that %1 knows by itself")
                          .arg(QLatin1String(m_program.dialect->title)));
        lines.append(QString());
    }
    return lines;
}

/// The instruction that stands where the program has none: the memory of the old tool is zero there.
QString ProgramWriter::fillerText() const
{
    if (m_program.defaultJump >= 0)
        return m_program.instructions.at(m_program.statements.at(m_program.defaultJump).firstInstruction).text;
    return nsProc::ProcDisassembler(m_program.dialect->processor()).text(0, 0, [](int) { return QString(); });
}

quint32 ProgramWriter::fillerWord(int) const
{
    if (m_program.defaultJump < 0)
        return 0;
    return m_program.instructions.at(m_program.statements.at(m_program.defaultJump).firstInstruction).word;
}

QVector<ImportSource> ProgramWriter::write(bool replaceBroken) const
{
    QVector<ImportSource> sources;
    QStringList taken;
    const StatementWriter writer(m_program, m_layout);
    const QString filler = fillerText();
    QStringList head = knownConstants();
    const QVector<LayoutSource>& all = m_layout.sources();
    const bool hasMain = std::any_of(all.cbegin(), all.cend(), [](const LayoutSource& s) { return s.file == 0; });
    for (const LayoutSource& layout : all) {
        ImportSource source;
        source.name = sourceName(layout, &taken);
        QString text;
        const auto append = [&](const QStringList& lines, int statement) {
            for (const QString& line : lines) {
                text += line;
                text += QLatin1Char('\n');
                source.statements.append(statement);
            }
        };
        if (hasMain ? layout.file == 0 : true) {
            append(head, -1);
            head.clear();
        }
        for (const LayoutItem& item : layout.items) {
            switch (item.kind) {
            case LayoutItem::eStatement:
                append(writer.write(item.statement, replaceBroken), item.statement);
                break;
            case LayoutItem::eAddress:
                append({StatementWriter::addressLine(item.address)}, -1);
                break;
            case LayoutItem::eFiller:
                append(writer.writeFiller(item.address, filler), -1);
                break;
            }
        }
        source.text = text.toUtf8();
        sources.append(source);
    }
    return sources;
}

ProgramImage ProgramWriter::image() const
{
    ProgramImage image;
    for (int i = 0; i < m_program.statements.size(); ++i) {
        const ForeignStatement& statement = m_program.statements.at(i);
        if (statement.isBroken)
            continue;
        for (int word = 0; word < statement.size; ++word)
            image.setWord(statement.address + word, m_program.instructions.at(statement.firstInstruction + word).word,
                          statement.line);
    }
    for (const LayoutSource& source : m_layout.sources()) {
        for (const LayoutItem& item : source.items) {
            if (item.kind == LayoutItem::eFiller)
                image.setWord(item.address, fillerWord(item.address));
        }
    }
    return image;
}

} // namespace nsImport

#include "HdlText.h"

#include "ImageBuilder.h"

#include <QRegularExpression>

#include <algorithm>

namespace nsImport {

namespace {

/// The text with its comments blanked. Attributes for the synthesis may stand in comments of Verilog.
QByteArray withoutComments(const QByteArray& content, bool isVhdl)
{
    QByteArray text = content;
    for (int pos = 0; pos + 1 < text.size(); ++pos) {
        const char c = text.at(pos);
        const char next = text.at(pos + 1);
        const bool toEndOfLine = isVhdl ? c == '-' && next == '-' : c == '/' && next == '/';
        if (!toEndOfLine && (isVhdl || c != '/' || next != '*'))
            continue;
        int end = pos + 2;
        while (end < text.size() && (toEndOfLine ? text.at(end) != '\n' && text.at(end) != '\r'
                                                 : text.at(end - 1) != '*' || text.at(end) != '/' || end < pos + 3))
            ++end;
        end = std::min(toEndOfLine ? end : end + 1, text.size());
        const QByteArray comment = text.mid(pos, end - pos);
        const bool isAttribute = !isVhdl && comment.contains("synthesis") && comment.contains("INIT");
        for (int i = pos; i < end; ++i) {
            const bool isMark = i < pos + 2 || (!toEndOfLine && i >= end - 2);
            if (text.at(i) != '\n' && text.at(i) != '\r' && (isMark || !isAttribute))
                text[i] = ' ';
        }
        pos = end - 1;
    }
    return text;
}

bool isVhdlText(const QByteArray& content)
{
    static const QRegularExpression words(QStringLiteral("^[ \\t]*+(entity|architecture|library)\\b"),
                                          QRegularExpression::CaseInsensitiveOption |
                                              QRegularExpression::MultilineOption);
    return words.match(QString::fromLatin1(content)).hasMatch();
}

/// Turns 256 bits as hexadecimal digits, the highest first, into bytes, the lowest first. @return empty: they are none
QByteArray bytesOf(QByteArray digits, bool mayBeShort)
{
    const int digitCount = 64;
    digits.replace('_', QByteArray());
    if (digits.isEmpty() || digits.size() > digitCount || (digits.size() < digitCount && !mayBeShort))
        return QByteArray();
    QByteArray bytes = QByteArray::fromHex(digits.rightJustified(digitCount, '0'));
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

// A file is not searched for more, or further, than a design can need.
const int maxMemories = 64;
const int maxInstanceText = 1 << 16;
const int maxInstanceHead = 1 << 8;

class HdlScanner
{
public:
    HdlScanner(const QByteArray& content, QVector<HdlMemory>* memories, ImageBuilder* image)
        : m_memories(*memories)
        , m_image(*image)
        , m_isVhdl(isVhdlText(content))
        , m_lines(content)
    {
        m_text = QString::fromLatin1(withoutComments(content, m_isVhdl));
    }

    bool scan()
    {
        // An attribute of a label, an association of a generic, a parameter, or a value of defparam.
        static const QRegularExpression entry(
            QStringLiteral("\\b(?:([A-Za-z_]\\w*+)\\s*+\\.\\s*+)?INIT(P?)_([0-9A-F]{2})(?!\\w)\\s*+"
                           "(?:of\\s++(\\w++)\\s*+(?::\\s*+label\\b\\s*+)?is\\s*+|=>\\s*+|=\\s*+|\\(\\s*+)"
                           "(?:x?\"([0-9A-F_]*+)\"|256\\s*+'\\s*+h\\s*+([0-9A-F_]++))?\\s*+(&?)"),
            QRegularExpression::CaseInsensitiveOption);
        QRegularExpressionMatchIterator matches = entry.globalMatch(m_text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            if (!takeEntry(match))
                return false;
            if (m_memories.size() > maxMemories)
                return m_image.fail(m_memories.last().line,
                                    QStringLiteral("There are more than %1 memories.").arg(maxMemories));
            m_lastEnd = match.capturedEnd();
        }
        completeInstance();
        return true;
    }

private:
    bool takeEntry(const QRegularExpressionMatch& match)
    {
        const bool isParity = !match.captured(2).isEmpty();
        const int index = match.captured(3).toInt(nullptr, 16);
        const bool isVerilogNumber = !match.captured(6).isEmpty();
        HdlMemory::Block block;
        block.line = m_lines.lineAt(match.capturedStart(2) >= 0 ? match.capturedStart(3) : match.capturedStart());
        block.bytes = bytesOf(match.captured(isVerilogNumber ? 6 : 5).toLatin1(), isVerilogNumber);
        if (block.bytes.isEmpty() || !match.captured(7).isEmpty())
            return m_image.fail(block.line,
                                QStringLiteral("The value of INIT%1_%2 is no string of 64 hexadecimal digits.")
                                    .arg(match.captured(2), match.captured(3)));
        const QString owner = match.captured(match.captured(1).isEmpty() ? 4 : 1);
        HdlMemory& memory = m_memories[owner.isEmpty() ? instance(match, isParity, index) : named(owner, block.line)];
        QMap<int, HdlMemory::Block>& blocks = isParity ? memory.parity : memory.data;
        const auto known = blocks.constFind(index);
        if (known != blocks.constEnd() && known->bytes != block.bytes)
            return m_image.fail(block.line, QStringLiteral("INIT%1_%2 of %3 has another value in line %4.")
                                                .arg(match.captured(2), match.captured(3), memory.label)
                                                .arg(known->line));
        if (known == blocks.constEnd())
            blocks.insert(index, block);
        return true;
    }

    /// The memory with this label, whose instance stands elsewhere.
    int named(const QString& owner, int line)
    {
        completeInstance();
        for (int i = 0; i < m_memories.size(); ++i) {
            if (m_memories.at(i).label.compare(owner, Qt::CaseInsensitive) == 0)
                return i;
        }
        HdlMemory memory;
        memory.label = owner;
        memory.line = line;
        const QRegularExpression declaration(
            m_isVhdl
                ? QStringLiteral("\\b%1\\s*:\\s*(?:entity\\s+|component\\s+)?([\\w.]+)[^;]{0,65000}").arg(owner)
                : QStringLiteral("\\b(\\w+)\\s+(?:#\\s*\\([^;]{0,4096}?\\)\\s*)?%1\\s*\\([^;]{0,65000}").arg(owner),
            QRegularExpression::CaseInsensitiveOption);
        QRegularExpressionMatchIterator matches = declaration.globalMatch(m_text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            // `attribute INIT_00 of label : label is` looks alike.
            if (match.captured(1).compare(QLatin1String("label"), Qt::CaseInsensitive) == 0)
                continue;
            memory.component = match.captured(1);
            memory.text = match.captured();
            break;
        }
        m_memories.append(memory);
        return m_memories.size() - 1;
    }

    /// The memory whose list of generics or parameters holds the entry.
    int instance(const QRegularExpressionMatch& match, bool isParity, int index)
    {
        static const QRegularExpression listStart(QStringLiteral("\\bgeneric\\s+map\\b|#\\s*\\("),
                                                  QRegularExpression::CaseInsensitiveOption);
        const QString between = m_text.mid(m_lastEnd, match.capturedStart() - m_lastEnd);
        int listPos = between.lastIndexOf(listStart);
        const bool isSame =
            m_instance >= 0 && listPos < 0 &&
            !(isParity ? m_memories.at(m_instance).parity : m_memories.at(m_instance).data).contains(index);
        if (isSame)
            return m_instance;
        completeInstance();
        m_instance = m_memories.size();
        m_instancePos = m_lastEnd + std::max(listPos, 0);
        HdlMemory memory;
        memory.line = m_lines.lineAt(match.capturedStart());
        const QString before = between.left(std::max(listPos, 0)).right(maxInstanceHead);
        static const QRegularExpression vhdlStart(
            QStringLiteral("(\\w+)\\s*:\\s*(?:entity\\s+|component\\s+)?([\\w.]+)\\s*(?:\\(\\s*\\w+\\s*\\)\\s*)?$"),
            QRegularExpression::CaseInsensitiveOption);
        static const QRegularExpression verilogStart(QStringLiteral("(\\w+)\\s*$"));
        const QRegularExpressionMatch start = (m_isVhdl ? vhdlStart : verilogStart).match(before);
        if (start.hasMatch()) {
            memory.label = m_isVhdl ? start.captured(1) : QString();
            memory.component = start.captured(m_isVhdl ? 2 : 1);
        }
        m_memories.append(memory);
        return m_instance;
    }

    /// Takes the rest of the instance, which ends at the next semicolon: its ports, and in Verilog its name.
    void completeInstance()
    {
        if (m_instance < 0)
            return;
        HdlMemory& memory = m_memories[m_instance];
        const QString tail = m_text.mid(m_lastEnd, maxInstanceText);
        const QString ports = tail.left(tail.indexOf(';'));
        memory.text = m_text.mid(m_instancePos, std::min(m_lastEnd - m_instancePos, maxInstanceText)) + ports;
        static const QRegularExpression verilogName(QStringLiteral("\\)\\s*([A-Za-z_]\\w*)\\s*\\("));
        if (!m_isVhdl)
            memory.label = verilogName.match(ports).captured(1);
        m_instance = -1;
    }

    QVector<HdlMemory>& m_memories;
    ImageBuilder& m_image;
    bool m_isVhdl;
    LineIndex m_lines;
    QString m_text;
    int m_lastEnd = 0;     ///< of the last entry
    int m_instance = -1;   ///< whose list is being read; -1: none
    int m_instancePos = 0; ///< where its list begins
};

} // namespace

bool findHdlMemories(const QByteArray& content, QVector<HdlMemory>* memories, ImageBuilder* image)
{
    return HdlScanner(content, memories, image).scan();
}

} // namespace nsImport

#include "RandomDisguise.h"

#include "RandomText.h"

#include <QRegularExpression>

namespace foreign {

namespace {

class RandomDisguise : private RandomText
{
public:
    RandomDisguise(Dialect dialect, unsigned seed)
        : RandomText(seed, {}, true)
        , m_isMico8(dialect == Dialect::Mico8Vendor || dialect == Dialect::Mico8Gnu)
        , m_labelsDefinitions(dialect != Dialect::PBlazIde)
    {
    }

    QByteArray run(const SourceFile& file);

private:
    void addLine(QString text);
    QString lineEnd();
    QString newLabel() { return QString("Zq%1").arg(m_labels++) + mayGap() + ":"; }

    bool m_isMico8;
    bool m_labelsDefinitions; ///< a label may stand in front of a definition
    bool m_mayLabel = true;
    bool m_inComment = false;
    int m_labels = 0;
    int m_ends = 0; ///< kind of the line ends
    QString m_text;
};

QString RandomDisguise::lineEnd()
{
    switch (m_ends) {
    case 0:
        return "\n";
    case 1:
        return "\r\n";
    case 2:
        return "\r";
    default:
        return chance(50) ? "\n" : "\r\n";
    }
}

void RandomDisguise::addLine(QString text)
{
    const bool wasComment = m_inComment;
    if (m_isMico8 && text.contains("/*"))
        m_inComment = !text.mid(text.indexOf("/*")).contains("*/");
    else if (m_isMico8 && text.contains("*/"))
        m_inComment = false;
    static const QRegularExpression plain("^[^\"';/#:]*$");
    static const QRegularExpression definition("^\\s*\\w+\\s+(equ|dsin|dsout|dsio|dsram|dsrom)\\b",
                                               QRegularExpression::CaseInsensitiveOption);
    const bool isPlain = !wasComment && plain.match(text).hasMatch();
    if (!wasComment && m_mayLabel && chance(6))
        m_text += mayGap() + newLabel() + mayGap() + (chance(30) ? ";" + commentText() : QString()) + lineEnd();
    if (chance(4))
        m_text += mayGap() + (chance(50) ? ";" + commentText() : QString()) + lineEnd();
    const bool mayLabel = m_labelsDefinitions || !definition.match(text).hasMatch();
    if (isPlain && m_mayLabel && mayLabel && chance(5)) {
        text = newLabel() + mayGap() + text;
    } else if (isPlain && m_isMico8 && chance(10) && text.trimmed().contains(' ')) {
        const QString odd = chance(50) ? "/* r1, x: */" : "/**/";
        const int blank = text.size() - text.trimmed().size() + text.trimmed().indexOf(' ');
        if (text.startsWith(' ') || text.startsWith('\t') || blank > 0)
            text.replace(text.indexOf(QRegularExpression("\\S")) + text.trimmed().indexOf(' '), 1, " " + odd + "\t");
    } else if (!wasComment && chance(5)) {
        text = gap() + text;
    }
    if (isPlain && chance(5))
        text += gap() + ";" + commentText();
    if (!m_inComment && chance(5))
        text += gap();
    m_text += text + lineEnd();
}

QByteArray RandomDisguise::run(const SourceFile& file)
{
    // A file that is included more than once can not define labels.
    m_mayLabel = file.name != "again.psm";
    m_ends = below(4);
    m_text.clear();
    QByteArray bytes = file.text;
    const bool hasMark = bytes.endsWith('\x1A');
    if (hasMark)
        bytes.chop(1);
    bytes.replace("\r\n", "\n");
    QStringList lines = QString::fromLatin1(bytes).split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    for (const QString& line : lines)
        addLine(line);
    if (chance(40) && !m_text.isEmpty()) {
        // Without an end of the last line.
        while (m_text.endsWith('\n') || m_text.endsWith('\r'))
            m_text.chop(1);
    }
    return m_text.toLatin1() + (hasMark || chance(10) ? "\x1A" : "");
}

} // namespace

RandomProgram disguised(const RandomProgram& program, Dialect dialect, unsigned seed)
{
    RandomDisguise disguise(dialect, seed);
    RandomProgram result = program;
    for (SourceFile& file : result.files)
        file.text = disguise.run(file);
    return result;
}

} // namespace foreign
